#include "platform/forms/pointer.h"

#include <QApplication>
#include <QCursor>

namespace {
int g_shape = 0;
}

void SetScreenPointer(int shape) {
    if (shape == g_shape) return;
    if (g_shape != 0) QApplication::restoreOverrideCursor();
    g_shape = shape;
    if (shape == 11) QApplication::setOverrideCursor(QCursor(Qt::WaitCursor));
}

int ScreenPointer() { return g_shape; }
