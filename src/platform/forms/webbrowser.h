#pragma once
// What the web browser control did for the print page: load a page and print
// it through the default print dialog. The page goes into a Qt rich-text
// document, whose HTML subset renders the page's tables, fonts and line
// breaks.
#include <QTextBrowser>

class WebBrowser : public QTextBrowser {
    Q_OBJECT
public:
    explicit WebBrowser(QWidget* parent = nullptr);
    // "about:blank" empties the document; any other address is a file path,
    // whose page is read in the code page and laid out before this returns.
    void Navigate(const QString& address);
    // The browser's print command with its default dialog: the document goes
    // to the printer the user chooses, or nowhere on Cancel.
    void PrintWithDialog();
};
