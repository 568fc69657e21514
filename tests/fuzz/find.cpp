// The find dialog's three searches over any name.dat.
#include "find/core/findcontacts.h"
#include "fuzzfolder.h"
#include "store/core/failure.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    FuzzFile("name.dat", Input(data, size));
    FuzzFile("category.dat", "\"00001\",\"Main\"\r\n\"00002\",\"Work\"\r\n");
    FuzzFile("data/addr00001.b64", "[Setting]\r\ninfoname=Ola\r\ncountry=3\r\ncategory=00002\r\nmail=o@x.no\r\n");
    QList<FindHit> hits;
    for (auto find : {FindName, FindEmail, FindCompany}) {
        hits.clear();
        try {
            find("a", {"Norway", "Sweden", "Denmark", "Finland"}, hits);
        } catch (const RoutineFailure&) {
        }
    }
    return 0;
}
