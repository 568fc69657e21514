#pragma once
// What a write of the store gives back: done, or the reason it was not. The
// store shows no message; the form that asked turns the reason into the
// words the user reads.
#include <optional>

enum class StoreError {
    Failed,               // any failure of the write: the store is as the failure table leaves it
    StagedRecordMissing,  // the staged record was not there after it was written
};

class StoreResult {
public:
    StoreResult() = default;  // done
    StoreResult(StoreError error) : error_(error) {}
    explicit operator bool() const { return !error_; }
    StoreError error() const { return error_.value_or(StoreError::Failed); }

private:
    std::optional<StoreError> error_;
};
