#pragma once
// String libraries: plain UTF-8 text files of "number=text" lines that
// stand in for resource-only libraries. LoadStringA returns the text in the
// process code page, cut at the byte limit as the Windows call cuts it.
#include <QString>
#include <cstdint>

using LibraryHandle = std::intptr_t;  // 0: no library

LibraryHandle LoadLibrary(const QString& path);
void FreeLibrary(LibraryHandle handle);

// Copies the string `id` into `buffer` in the ANSI code page, at most
// limit - 1 bytes, and returns the number of bytes copied (0 when the
// library lacks the number or the handle is 0). Afterwards `buffer` holds
// exactly the bytes copied, with no NUL after them.
int LoadStringA(LibraryHandle handle, int id, QByteArray& buffer, int limit);

// The executable's own small string table (997, 998, 1000, 1001).
QString LoadResString(int id);
