#pragma once
// A progress bar that refuses a value outside its range, as the window
// system's control does: the caller meets the refusal as a failure.
#include <QProgressBar>
#include <stdexcept>

class InvalidPropertyValue : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

class StrictProgressBar : public QProgressBar {
    Q_OBJECT
public:
    explicit StrictProgressBar(QWidget* parent = nullptr);
    // Sets the value, or throws InvalidPropertyValue (after `refused`) when it
    // lies outside minimum..maximum.
    void SetValue(int value);
signals:
    void refused(int value);
};
