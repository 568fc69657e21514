#pragma once
// Every file operation of the store, and the print page's, passes through
// here. That makes one seam where a test can make the k-th operation fail, as
// a pulled drive or a full disk would, and where the order of writes can be
// watched.
//
// What leaves the staging area lasts: a file written, copied or moved onto
// the drive (or anywhere but the staging area) has its data flushed before
// its name is put in place, and its folder flushed after, before the call
// returns; a delete there flushes its folder. A pulled drive then holds, at
// any moment, the old state or the new one of each step that returned.
//
// No file is opened through a symbolic link: the staging area is a shared
// place on the local disk, and a planted link must not redirect a write.
#include <QByteArray>
#include <QString>
#include <QStringList>
#include <functional>
#include <vector>

// Existence as the store tests it: a regular file, whether read-only or
// hidden or not. Folders and other kinds of file are not found. An empty
// name finds any file of the working folder, as the look-up lists it.
bool FileExists(const QString& path);
// The stricter test of the id generator: normal files only, so a read-only
// or hidden file is not seen.
bool NormalFileExists(const QString& path);
bool FolderExists(const QString& path);

// What tells one state of a file from another without reading it: its
// size, its modification and change times, and which file it is. A
// program that writes a file anew (by a rename over it, or a copy) gives
// it another identity; one that rewrites it in place changes its times.
struct FileStamp {
    qint64 size = -1;
    qint64 modifiedNs = 0;
    qint64 changedNs = 0;
    quint64 device = 0;
    quint64 inode = 0;
    bool operator==(const FileStamp&) const = default;
};
// The existence test of FileExists (the same operation, as the seam counts
// it), telling also the file's stamp when it is found.
bool FileExistsWithStamp(const QString& path, FileStamp& stamp);
// The existence test and the read of a file in one opening, telling the
// stamp of what was read. Missing is what FileExists would not find;
// Unreadable a file it finds that can't be read (through a link, say).
enum class StampedRead { Read, Missing, Unreadable };
StampedRead ReadFileWithStamp(const QString& path, QByteArray& bytes, FileStamp& stamp);
// Now, on the clock the file times are kept in, in nanoseconds.
qint64 FileClockNowNs();
bool MakeFolder(const QString& path);  // one level

// FileCopy: the target is replaced if it exists.
bool CopyFile(const QString& source, const QString& target);
// Kill: deletes one file; false when it isn't there or can't go.
bool Kill(const QString& path);
// Deletes the file when the existence test finds it: true when it is gone
// or never was, false when the delete failed.
bool KillIfExists(const QString& path);
// Name: moves a file; fails when the target exists. Across file systems
// it is a copy to a side name beside the target (target + ".new"), renamed
// into place once it lasts; the source is deleted last.
bool MoveFile(const QString& source, const QString& target);

bool ReadWholeFile(const QString& path, QByteArray& bytes);
// Creates or truncates, writes, closes.
bool WriteWholeFile(const QString& path, const QByteArray& bytes);
// Writes a new file beside the target and renames it over the target, so
// that a fault leaves either the old or the new content.
bool ReplaceFileContent(const QString& path, const QByteArray& bytes);

// A file of the user's own in a folder that other users can write, such as
// the system's temporary folder, where a fixed name is otherwise a way for
// another user to have a file of the user's overwritten (a planted symbolic
// or hard link) or to read what is written. Creates or empties the file and
// writes the bytes, readable by the user alone (mode 0600); false, with
// nothing written, when the name is a symbolic link or a file that is not
// the user's own regular file with one name.
bool WritePrivateFile(const QString& path, const QByteArray& bytes);

// A sequential output file: opened for output (truncated), for appending,
// or in binary mode (created when missing, kept as it is, written from its
// first byte on, so that a longer old content keeps its tail).
class OutputFile {
public:
    OutputFile() = default;
    ~OutputFile();
    OutputFile(const OutputFile&) = delete;
    OutputFile& operator=(const OutputFile&) = delete;
    bool openForOutput(const QString& path);
    bool openForAppend(const QString& path);
    bool openForBinary(const QString& path);
    bool write(const QByteArray& bytes);
    // The pieces one after another, as one write of their whole.
    bool write(const std::vector<QByteArrayView>& pieces);
    bool close();
    bool isOpen() const { return fd_ >= 0; }
private:
    bool open(const QString& path, const char* kind, int flags);
    int fd_ = -1;
    QString path_;
};

// ---- the seam, for tests ----
// Makes operation number k (counted from 1 after the reset) fail; 0 turns
// failing off. Resets the count.
void FailFileOperationAt(long k);
// Makes the next operation that is exactly `operation` ("exists <path>") fail,
// once. Resets the count.
void FailFileOperationOn(const QString& operation);
long FileOperationCount();
// True while a test makes operations fail, traces them or watches changes:
// the steps must then come one after another, in the program's order.
bool FileStepsWatched();
// "copy <target>", "kill <path>", ... of the operation made to fail, or empty.
QString FailedFileOperation();
// When on, every operation that changes a file is logged as "kind path".
void SetFileOperationLogging(bool on);
QStringList FileOperationLog();
void ClearFileOperationLog();
// Every operation counted while logging is on, in order, as "kind path".
QStringList FileOperationTrace();

// Each change a call makes to the file system, told as it is made, for the
// tests' simulation of a pulled drive: a file created or written (Changed),
// its data flushed (Synced), a rename, a delete, a folder's names flushed.
enum class FileEvent { Changed, Synced, Renamed, Removed, FolderSynced };
using FileEventWatcher = std::function<void(FileEvent, const QString& path, const QString& target)>;
void SetFileEventWatcher(FileEventWatcher watcher);  // empty: none
// Told the path of every file this process creates, writes, renames (both
// names) or deletes, whatever the seam is doing: what a reader keeps of a
// file it read can be let go when the program itself changes the file.
using FileChangeListener = void (*)(const QString& path);
void SetFileChangeListener(FileChangeListener listener);  // nullptr: none
// Off, no flush is made: for the benches that measure what the flushes cost.
void SetFlushingForBench(bool on);
// Every open of a file (to read it, write it or flush it) first waits this
// long, as on a drive that answers slowly; 0 (the default) for no wait.
void SetOpenDelayForBench(int microseconds);
