// The update check's parser over any reply.
#include "fuzzfolder.h"
#include "services/core/updatecheck.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    QString code, version, url;
    ParseUpdate(QString::fromUtf8(Input(data, size)), code, version, url);
    return 0;
}
