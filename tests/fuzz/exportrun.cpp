// The export's walk over any snapshot of cat.dat.
#include "export/core/exportrun.h"
#include "fuzzfolder.h"
#include "store/core/failure.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    FuzzFile("temp/addr_cat.dat", Input(data, size));
    FuzzFile("data/addr00001.b64", "[Setting]\r\ninfoname=Ola\r\ncountry=3\r\ncategory=00002\r\nmail=o@x.no\r\n");
    ExportCountry = "Norway";
    ExportCategoryId = "00002";
    bCancelExport = false;
    try {
        WriteExportFile(ExportShapeOf(ExportKind(size % 4)), FuzzRoot() + "/export.csv", [] {});
    } catch (const RoutineFailure&) {
    }
    return 0;
}
