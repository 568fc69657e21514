#include "support/scratch.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include "platform/core/appfolder.h"
#include "platform/core/codepage.h"
#include "platform/core/fileops.h"
#include "platform/core/tempfolder.h"
#include "store/core/genid.h"
#include "store/core/indexfiles.h"

QString ScratchDrive() { return qEnvironmentVariable("TANDRY_SCRATCH_DRIVE"); }

ScratchStore::ScratchStore() {
    static int count = 0;
    app_ = ScratchDrive().isEmpty() ? dir_.path() + "/drive/Tandry"
                                    : ScratchDrive() + QString("/t%1_%2").arg(QCoreApplication::applicationPid()).arg(++count);
    QDir().mkpath(app());
    SetAppPathForTest(app());
    SetVellumarkFolderForTest(dir_.path() + "/cache/Vellumark");
    QDir().mkpath(systemTemp());
    SetSystemTempPathForTest(systemTemp());
    FailFileOperationAt(0);
    SetAnsiCodePage(1252);
}

ScratchStore::~ScratchStore() {
    if (!ScratchDrive().isEmpty()) QDir(app_).removeRecursively();
    FailFileOperationAt(0);
    SetFileOperationLogging(false);
    SetAppPathForTest(QString());
    SetVellumarkFolderForTest(QString());
    SetSystemTempPathForTest(QString());
}

QString ScratchStore::app() const { return app_; }
QString ScratchStore::temp() const { return dir_.path() + "/cache/Vellumark/temp"; }
QString ScratchStore::systemTemp() const { return dir_.path() + "/tmp"; }

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

QByteArray RecordBytes(const QStringList& values) {
    static const char* const keys[] = {"infoid", "infoname", "country", "category", "tel1",
                                       "ext1",   "tel2",     "ext2",    "mobile",   "fax",
                                       "company", "designation", "addr", "notes",  "mail"};
    QByteArray text = "[Setting]\r\n";
    for (int i = 0; i < 15; ++i) text += QByteArray(keys[i]) + "=" + Cp1252(values.value(i).toUtf8().constData()) + "\r\n";
    return text;
}

void ScratchStore::putRecord(const QStringList& values) const {
    put("data/addr" + values.value(0) + ".b64", RecordBytes(values));
}

void ScratchStore::readyForWrites() const {
    EnsureTempArea();
    QDir().mkpath(appFile("data"));
    ReleaseFileNumbersForTest();
    ResetRandomForTest();
}
