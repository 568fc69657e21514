#include "support/scratch.h"

#include <QDir>
#include <QFile>
#include "platform/core/appfolder.h"
#include "platform/core/codepage.h"
#include "platform/core/fileops.h"
#include "platform/core/tempfolder.h"

ScratchStore::ScratchStore() {
    QDir().mkpath(app());
    SetAppPathForTest(app());
    SetVellumarkFolderForTest(dir_.path() + "/cache/Vellumark");
    FailFileOperationAt(0);
    SetAnsiCodePage(1252);
}

ScratchStore::~ScratchStore() {
    FailFileOperationAt(0);
    SetFileOperationLogging(false);
    SetAppPathForTest(QString());
    SetVellumarkFolderForTest(QString());
}

QString ScratchStore::app() const { return dir_.path() + "/drive/Tandry"; }
QString ScratchStore::temp() const { return dir_.path() + "/cache/Vellumark/temp"; }

void ScratchStore::write(const QString& path, const QByteArray& bytes) const {
    QFile f(path);
    if (f.open(QIODevice::WriteOnly | QIODevice::Truncate)) f.write(bytes);
}

QByteArray ScratchStore::read(const QString& path) const {
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

bool ScratchStore::exists(const QString& path) const { return QFile::exists(path); }

QStringList ScratchStore::tempFiles() const {
    QStringList names = QDir(temp()).entryList(QDir::Files | QDir::Hidden | QDir::System);
    names.sort();
    return names;
}

QByteArray Cp1252(const char* utf8) { return ToCodePage(QString::fromUtf8(utf8), 1252); }

QString Cp1252ToText(const char* utf8) { return QString::fromUtf8(utf8); }
