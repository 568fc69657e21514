#include "import/forms/frmmsg.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include "app/core/globals.h"
#include "app/core/libraries.h"
#include "app/forms/captionrule.h"
#include "main/core/mainwindowlink.h"

namespace {
// Each button: its name, its design caption, its string and the answer it stores.
struct Answer {
    const char* name;
    const char* design;
    int string;
    qint16 result;
};
const Answer kAnswers[] = {
    {"btnYes", "", 153, 1}, {"btnYestoAll", "Yes to All", 154, 2}, {"btnNo", "", 155, 3}, {"btnNotoAll", "Not to All", 156, 4}};
}  // namespace

frmMsg::frmMsg(QWidget* parent) : Form(parent) {
    setObjectName("frmMsg");
    setWindowTitle("Confirm File Replacement");
    lblMsg = new QLabel(this);
    lblMsg->setObjectName("lblMsg");
    lblMsg->setWordWrap(true);
    lblMsg2 = new QLabel(this);
    lblMsg2->setObjectName("lblMsg2");
    auto* buttons = new QHBoxLayout;
    QPushButton** controls[] = {&btnYes, &btnYestoAll, &btnNo, &btnNotoAll};
    for (int i = 0; i < 4; ++i) {
        auto* button = new QPushButton(QString::fromLatin1(kAnswers[i].design), this);
        button->setObjectName(kAnswers[i].name);
        button->setAutoDefault(false);
        const qint16 result = kAnswers[i].result;
        connect(button, &QPushButton::clicked, this, [this, result] {
            intConfirmResult = result;
            Unload();
        });
        buttons->addWidget(button);
        *controls[i] = button;
    }
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(lblMsg);
    layout->addWidget(lblMsg2);
    layout->addLayout(buttons);
}

void frmMsg::FormLoad() {
    setWindowTitle(GetLanguageString(333));
    const MainWindowLink* main = TheMainWindow();
    lblMsg->setText(GetLanguageString(609) + "'" + (main ? main->strClashName : QString()) + "'");
    lblMsg2->setText(GetLanguageString(610));
    for (int i = 0; i < 4; ++i) {
        const QString caption = GetLanguageString(kAnswers[i].string);
        if (!caption.isEmpty()) findChild<QPushButton*>(kAnswers[i].name)->setText(caption);
    }
    if (LabelFontSize() == 9)
        for (QWidget* control : findChildren<QWidget*>()) SetFontSize(control, 9);
}
