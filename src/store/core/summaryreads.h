#pragma once
// The list's five keys of many record files at once, in their order. A
// record read before and unchanged since is confirmed by its stamp alone,
// without opening it; any other is opened once, which is its existence test
// as well. A missing record gives nothing; one that can't be read gives
// empty keys.
//
// Opening thousands of small files is mostly waiting on the file system, so
// a long walk shares its files out among a few threads, which read and
// decode them. What is kept for the next walk is kept by the caller's
// thread, which also keeps the windows painting.
#include <QStringList>
#include <optional>
#include <vector>
#include "store/core/recordsummaries.h"

std::vector<std::optional<RecordSummary>> ReadRecordSummaries(const QStringList& paths);
