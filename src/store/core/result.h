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
    StoreResult(StoreError error, int runtimeError = 0) : error_(error), runtimeError_(runtimeError) {}
    explicit operator bool() const { return !error_; }
    StoreError error() const { return error_.value_or(StoreError::Failed); }
    // The run time's error number of a failure raised inside the write (a
    // file that could not be written or deleted); 0 for a step that gave false.
    int runtimeError() const { return runtimeError_; }

private:
    std::optional<StoreError> error_;
    int runtimeError_ = 0;
};
