// The RTF to HTML converter over any text.
#include "fuzzfolder.h"
#include "platform/core/codepage.h"
#include "print/core/rtf2html.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    rtf2html(FromCodePage(Input(data, size), 1252), "");
    return 0;
}
