#pragma once
// GetOpenFileName: the desktop's open-file dialog. It gives the path of an
// existing file the user chose, or empty text when the user cancels.
#include <QString>
#include <functional>

class QWidget;

// `filter` is one pattern, such as "*.csv", offered as it stands.
QString GetOpenFileName(QWidget* owner, const QString& title, const QString& filter);

// ---- for tests: the handler answers in place of the desktop ----
using OpenFileNameHandler = std::function<QString(const QString& title, const QString& filter)>;
void SetOpenFileNameHandlerForTest(OpenFileNameHandler handler);
