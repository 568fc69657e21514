#pragma once
// The caption rule every form applies in its load, after its captions:
// labels (and, where asked, buttons) take 9 points for the two Chinese
// languages and 8 for all others; every label, drop-down, text box and
// button takes the charset of the settings; then a pause of 200 ms.
#include <QList>

class QWidget;

struct CaptionRuleOptions {
    bool sizeButtons = false;              // the contact dialogs size Save and Close too
    QList<QWidget*> withoutCharset;        // controls left with the design's charset
};

void ApplyCaptionRule(QWidget* form, const CaptionRuleOptions& options = {});

// The font charset given to a control (the property "fontCharset"), or -1.
int FontCharsetOf(const QWidget* control);
void SetFontCharset(QWidget* control);
void SetFontSize(QWidget* control, int points);
