#include "main/core/mainwindowlink.h"

namespace {
MainWindowLink* g_mainWindow = nullptr;
}

MainWindowLink::MainWindowLink() { g_mainWindow = this; }

MainWindowLink::~MainWindowLink() {
    if (g_mainWindow == this) g_mainWindow = nullptr;
}

MainWindowLink* TheMainWindow() { return g_mainWindow; }
