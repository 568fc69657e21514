// The Yahoo! and IncrediMail readers over any file; the input's first byte
// chooses the reader.
#include "fuzzfolder.h"
#include "import/core/csvsources.h"

namespace {
class Rows : public SourceSink {
public:
    void ShowCount(int, int) override {}
    void ClearCount() override {}
    void AddRow(const SourceRow&) override {}
};
}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size == 0) return 0;
    const QString path = FuzzFile("import.csv", Input(data + 1, size - 1));
    Rows rows;
    if (data[0] & 1)
        ReadIncrediFile(path, rows);
    else
        ReadYahooFile(path, rows);
    return 0;
}
