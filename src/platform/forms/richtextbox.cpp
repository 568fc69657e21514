#include "platform/forms/richtextbox.h"

RichTextBox::RichTextBox(QWidget* parent) : QTextEdit(parent) {}

void RichTextBox::SetTextRTF(const QString& rtf) {
    rtf_ = rtf;
    setPlainText(rtf);
}
