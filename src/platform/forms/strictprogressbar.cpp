#include "platform/forms/strictprogressbar.h"

StrictProgressBar::StrictProgressBar(QWidget* parent) : QProgressBar(parent) {}

void StrictProgressBar::SetValue(int value) {
    if (value < minimum() || value > maximum()) {
        emit refused(value);
        throw InvalidPropertyValue("invalid property value");
    }
    setValue(value);
}
