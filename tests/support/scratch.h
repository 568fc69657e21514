#pragma once
// A scratch application folder and staging area for one test, removed after.
// Points the program's folders at them for the test's duration.
#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

class ScratchStore {
public:
    ScratchStore();
    ~ScratchStore();
    QString app() const;                 // the application folder
    QString temp() const;                // the staging area (…/Vellumark/temp)
    QString appFile(const QString& name) const { return app() + "/" + name; }
    QString tempFile(const QString& name) const { return temp() + "/" + name; }
    // Writes bytes as they stand (use "\r\n" for line ends).
    void write(const QString& path, const QByteArray& bytes) const;
    QByteArray read(const QString& path) const;  // empty when missing
    bool exists(const QString& path) const;
    QStringList tempFiles() const;               // names in the staging area, sorted
private:
    QTemporaryDir dir_;
};

// Windows-1252 bytes from a UTF-8 literal, for hand-written store files.
QByteArray Cp1252(const char* utf8);
// Text from Windows-1252 bytes written as a UTF-8 literal (for routines that
// take text already read).
QString Cp1252ToText(const char* utf8);
