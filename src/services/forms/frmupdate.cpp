#include "services/forms/frmupdate.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include "app/core/libraries.h"
#include "app/forms/captionrule.h"
#include "platform/forms/shell.h"

frmUpdate::frmUpdate(QWidget* parent) : Form(parent) {
    setObjectName("frmUpdate");
    setAttribute(Qt::WA_DeleteOnClose);
    lbdesc = new QLabel(this);
    lbdesc->setObjectName("lbdesc");
    lbdesc->setWordWrap(true);
    lburl = new QLabel(this);
    lburl->setObjectName("lburl");
    lburl->setTextInteractionFlags(Qt::TextBrowserInteraction);
    cmdOK = new QPushButton(this);
    cmdOK->setObjectName("cmdOK");

    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cmdOK);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(lbdesc);
    layout->addWidget(lburl);
    layout->addLayout(buttons);
    setMinimumWidth(360);

    connect(lburl, &QLabel::linkActivated, this, &frmUpdate::lburl_Click);
    connect(cmdOK, &QPushButton::clicked, this, &Form::Unload);
}

void frmUpdate::ShowResult(const QString& description, const QString& url) {
    // Titled as the box that says no update exists, so both answers to one
    // question look alike.
    setWindowTitle(QStringLiteral("Vellumark"));
    lbdesc->setText(description);
    cmdOK->setText(GetEditionString(100));
    // The address comes from the server: only a web address becomes a link,
    // anything else is shown as plain text.
    const bool web = url.startsWith("http://", Qt::CaseInsensitive) || url.startsWith("https://", Qt::CaseInsensitive);
    lburl->setTextFormat(web ? Qt::RichText : Qt::PlainText);
    lburl->setText(web ? QStringLiteral("<a href=\"%1\">%1</a>").arg(url.toHtmlEscaped()) : url);
    ApplyCaptionRule(this);
}

void frmUpdate::lburl_Click(const QString& url) { ShellExecute(this, QStringLiteral("open"), url, 1); }

frmUpdate* ShowUpdateResult(QWidget* owner, const QString& description, const QString& url) {
    auto* dialog = new frmUpdate(owner);
    dialog->ShowResult(description, url);
    dialog->show();
    return dialog;
}
