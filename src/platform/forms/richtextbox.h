#pragma once
// The rich text box: a text box that is given RTF and gives RTF back. Qt's
// rich text reads and writes no RTF, so the text is kept as it was given and
// comes back unchanged; shown, it reads as plain text.
#include <QTextEdit>

class RichTextBox : public QTextEdit {
    Q_OBJECT
public:
    explicit RichTextBox(QWidget* parent = nullptr);
    void SetTextRTF(const QString& rtf);
    QString TextRTF() const { return rtf_; }
private:
    QString rtf_;
};
