// The profile reader and writer over any setting.ini.
#include "fuzzfolder.h"
#include "platform/core/profile.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const QString file = FuzzFile("setting.ini", Input(data, size));
    ProfileValues values;
    ReadProfileSection("Setting", file, values);
    QString buffer;
    GetPrivateProfileString("VSplitter", "Left", "2000", buffer, 256, file);
    WritePrivateProfileString("Grid", "ColWidth0", "1500", file);
    return 0;
}
