#pragma once
// A handler that the window system calls has no caller of the program's own
// to pass a failure to: the failure ends the handler, the window goes on,
// and the failure is noted on the error stream.
#include <QtGlobal>
#include <exception>

template <class Handler>
void RunHandler(const char* name, Handler&& handler) {
    try {
        handler();
    } catch (const std::exception& failure) {
        qWarning("%s ended by a failure: %s", name, failure.what());
    }
}
