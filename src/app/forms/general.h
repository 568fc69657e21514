#pragma once
// Start of the program: the refusals, the store's base files, the
// libraries, the splash form, then the main window.

class FrmMain;

enum class StartResult { Refused, Started, Failed };

// The four refusals, as the program shows them (no library is loaded yet).
extern const char* const kAlreadyRunningMessage;
extern const char* const kNoLanguageIdMessage;
extern const char* const kNoLanguageFileMessage;
extern const char* const kNoCharsetMessage;

// Runs the start; on Started the main window is shown and `mainWindow`
// (when given) receives it. The caller then runs the event loop.
StartResult Main(FrmMain** mainWindow = nullptr);
