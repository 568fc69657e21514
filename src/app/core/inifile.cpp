#include "app/core/inifile.h"

#include "platform/core/appfolder.h"
#include "platform/core/fileops.h"
#include "platform/core/profile.h"
#include "platform/core/tempfolder.h"

QString SettingFile() { return AppFile("setting.ini"); }

QString GetIniValue(const QString& section, const QString& key, const QString& defaultValue,
                    const QString& file) {
    qint64 size = 256;
    QString buffer;
    for (;;) {
        int count = GetPrivateProfileString(section, key, defaultValue, buffer, int(size), file);
        if (count != size - 1 && count != size - 2) return buffer.left(count);
        size *= 2;  // the value may have been cut
        if (size > 0x7fffffff) return QString();
    }
}

bool PutIniValue(const QString& section, const QString& key, const QString& value,
                 const QString& file) {
    return WritePrivateProfileString(section, key, value, file);
}

QString ReadLanguageId() { return GetIniValue("Setting", "Language", "", SettingFile()); }
QString ReadCharsetId() { return GetIniValue("Setting", "Charset", "", SettingFile()); }

QByteArray FirstRunSettingText() {
    static const char* const lines[] = {
        "[Setting]", "Language=0409", "Charset=0", "Country=113", "",
        "[Size]", "Height=7260", "Width=9930", "",
        "[Grid]", "ColWidth0=2069.858", "ColWidth1=3569.953", "ColWidth2=1395.213",
        "ColWidth3=1619.717", "ColWidth4=14.74016", "ColWidth5=0", "",
        "[VSplitter]", "Left=3190", "",
        "[VSplitter]", "Left=4700", "",
        "[Skin]", "SkinFile=Skins\\default.skf"};
    QByteArray text;
    for (const char* line : lines) text += QByteArray(line) + "\r\n";
    return text;
}

namespace {
// Writes the file when it is missing, then asks for it again.
bool EnsureFile(const QString& name, const QByteArray& content) {
    const QString path = AppFile(name);
    if (FileExists(path)) return true;
    if (!WriteWholeFile(path, content)) return false;
    return FileExists(path);
}

}  // namespace

bool EnsureStoreFiles() {
    if (!EnsureFile("setting.ini", FirstRunSettingText())) return false;
    if (!EnsureFile("category.dat", "\"00001\",\"Main\"\r\n")) return false;
    for (const char* index : {"cat.dat", "cty.dat", "name.dat"})
        if (!EnsureFile(index, QByteArray())) return false;
    // addr_category.tmp stands where addr_cat.tmp would be expected; the
    // staging deletes addr_cat.tmp itself before its next use.
    for (const char* leftover : {"addr_category.tmp", "addr_cty.tmp", "addr_name.tmp"})
        if (!KillIfExists(TempFile(leftover))) return false;
    return true;
}
