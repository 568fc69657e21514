// The index lines: SplitNameLine and SplitCatLine on any line, and the
// streaming routines' formatted reading over any work copy.
#include "fuzzfolder.h"
#include "platform/core/codepage.h"
#include "store/core/failure.h"
#include "store/core/indexfiles.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const QByteArray bytes = Input(data, size);
    const QString line = FromAnsi(bytes);
    SplitNameLine(line);
    try {
        SplitCatLine(line);
    } catch (const RoutineFailure&) {
    }
    for (const char* index : {"cat", "cty", "name"}) FuzzFile(QString("temp/addr_") + index + ".tmp", bytes);
    ReplaceCatLine("00001", "Norway", "00002");
    ReplaceCtyLine("00001", "Norway", "00002", CtyReplace::KeepContactId);
    ReplaceNameLine("00001", "Name", NameReplace::AppendWhenMissing);
    RemoveNameLine("00001");
    ReleaseFileNumbersForTest();  // a failure keeps them taken
    return 0;
}
