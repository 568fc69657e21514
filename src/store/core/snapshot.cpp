#include "store/core/snapshot.h"

#include "platform/core/fileops.h"
#include "store/core/paths.h"

namespace {
bool Refresh(const QString& source, const QString& target) {
    if (!KillIfExists(target)) return false;
    return CopyFile(source, target);
}
}  // namespace

void CopyAddrFile() {
    // Any failure ends it silently.
    if (!Refresh(LiveIndex("cat"), CatSnapshot())) return;
    Refresh(CategoryFile(), CategorySnapshot());
}

void DelAddrFile() {
    KillIfExists(CatSnapshot());
    KillIfExists(CategorySnapshot());
}
