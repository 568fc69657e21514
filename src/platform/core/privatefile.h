#pragma once
// A file of the user's own in a folder that other users can write, such as
// the system's temporary folder. A fixed name there is otherwise a way for
// another user to have the program overwrite a file of the user's (a
// planted symbolic or hard link) or to read what it writes.
#include <QByteArray>
#include <QString>

// Creates or empties the file and writes the bytes, readable and writable by
// the user alone (mode 0600). False, with nothing written, when the name is a
// symbolic link, or a file that is not the user's own regular file with one
// name.
bool WritePrivateFile(const QString& path, const QByteArray& bytes);
