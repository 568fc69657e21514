#pragma once
// A scratch application folder and staging area for one test, removed after.
// Points the program's folders at them for the test's duration. With
// TANDRY_SCRATCH_DRIVE set (a mounted FAT image, see tests/fat/), the
// application folder is made there, the staging area stays local.
#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

class ScratchStore {
public:
    ScratchStore();
    ~ScratchStore();
    QString app() const;                 // the application folder
    QString temp() const;                // the staging area (…/Vellumark/temp)
    QString systemTemp() const;          // the system's temporary folder
    QString appFile(const QString& name) const { return app() + "/" + name; }
    QString tempFile(const QString& name) const { return temp() + "/" + name; }
    // Writes bytes as they stand (use "\r\n" for line ends).
    void write(const QString& path, const QByteArray& bytes) const;
    QByteArray read(const QString& path) const;  // empty when missing
    bool exists(const QString& path) const;
    QStringList tempFiles() const;               // names in the staging area, sorted
    // A file of the application folder: its bytes, or written as given.
    QByteArray file(const QString& name) const { return read(appFile(name)); }
    void put(const QString& name, const QByteArray& bytes) const { write(appFile(name), bytes); }
    // data/addr<values[0]>.b64 written from RecordBytes(values).
    void putRecord(const QStringList& values) const;
    // Ready for the store's writes: the staging area and data/ made, the id
    // generator at its start and no file number held.
    void readyForWrites() const;
private:
    QTemporaryDir dir_;
    QString app_;
};
// The folder TANDRY_SCRATCH_DRIVE names, or empty.
QString ScratchDrive();

// Windows-1252 bytes from a UTF-8 literal, for hand-written store files.
QByteArray Cp1252(const char* utf8);
inline QString U(const char* utf8) { return QString::fromUtf8(utf8); }
// A record file as the contact dialogs write it: "[Setting]", then the 15
// keys in their order with the values given (UTF-8, written in 1252; the
// missing ones empty).
QByteArray RecordBytes(const QStringList& values);
