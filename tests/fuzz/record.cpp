// The record reader over any record file.
#include "fuzzfolder.h"
#include "store/core/paths.h"
#include "store/core/record.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    FuzzFile("data/addr00001.b64", Input(data, size));
    ClearContactBuffer();
    ReadContactWithId("00001");
    ReadContactSummary(DataFolder(), "00001");
    DecodeNextLine(ContactBuffer.notes);
    return 0;
}
