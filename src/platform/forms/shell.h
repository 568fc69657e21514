#pragma once
// The shell's "open": hands an address or a file to the desktop's default
// program for it (a mailto: address to the mail program, a web address to
// the browser).
#include <QString>
#include <functional>

class QWidget;

// Returns a value above 32 on success, as the shell call does, and 2 on failure.
long ShellExecute(QWidget* owner, const QString& verb, const QString& file, int showCode);

// The system's wording of a failure code below 33, as the run time describes it.
QString ShellFailureDescription(long code);

// ---- for tests: the handler sees each call instead of the desktop ----
using ShellHandler = std::function<long(const QString& verb, const QString& file)>;
void SetShellHandlerForTest(ShellHandler handler);
