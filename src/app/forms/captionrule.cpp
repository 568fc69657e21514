#include "app/forms/captionrule.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextEdit>
#include <QWidget>
#include "app/core/globals.h"
#include "platform/core/pause.h"

// A Qt font has no charset: the number is kept on the control, where the
// text drawing of the code page can find it.
void SetFontCharset(QWidget* control) {
    control->setProperty("fontCharset", CharsetId.trimmed().toInt());
}

int FontCharsetOf(const QWidget* control) {
    QVariant value = control->property("fontCharset");
    return value.isValid() ? value.toInt() : -1;
}

void SetFontSize(QWidget* control, int points) {
    QFont font = control->font();
    font.setPointSize(points);
    control->setFont(font);
}

void ApplyCaptionRule(QWidget* form, const CaptionRuleOptions& options) {
    const int size = LabelFontSize();
    for (QWidget* child : form->findChildren<QWidget*>()) {
        const bool label = qobject_cast<QLabel*>(child) != nullptr;
        const bool button = qobject_cast<QAbstractButton*>(child) != nullptr;
        const bool entry = qobject_cast<QComboBox*>(child) || qobject_cast<QLineEdit*>(child) ||
                           qobject_cast<QPlainTextEdit*>(child) || qobject_cast<QTextEdit*>(child);
        if (label || (button && options.sizeButtons)) SetFontSize(child, size);
        if ((label || button || entry) && !options.withoutCharset.contains(child) &&
            !qobject_cast<QLineEdit*>(child->parentWidget()))  // a drop-down's own edit
            SetFontCharset(child);
    }
    Sleep(200);
}
