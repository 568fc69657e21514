// The code-page conversion both ways: the first byte picks the code page.
// A code page of one byte a character keeps every byte through a round trip.
#include <cstdlib>
#include "fuzzfolder.h"
#include "platform/core/codepage.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static const int kCodePages[] = {1252, 1250, 1251, 1253, 1254, 1255, 1256, 1257, 1258, 874, 932, 936, 949, 950};
    if (size == 0) return 0;
    const int codePage = kCodePages[data[0] % std::size(kCodePages)];
    const QByteArray bytes = Input(data + 1, size - 1);
    const QString text = FromCodePage(bytes, codePage);
    const QByteArray back = ToCodePage(text, codePage);
    if (codePage == 1252 && back != bytes) std::abort();
    ToCodePage(QString::fromUtf8(bytes), codePage);
    return 0;
}
