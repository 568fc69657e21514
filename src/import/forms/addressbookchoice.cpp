#include "import/forms/addressbookchoice.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>
#include <exception>
#include "app/core/libraries.h"
#include "app/core/placeholders.h"
#include "app/forms/captionrule.h"

AddressBookChoice::AddressBookChoice(const char* name, QWidget* parent) : Form(parent) {
    setObjectName(QString::fromLatin1(name));
    setWindowTitle(QStringLiteral("Please choose type of address book"));
    lbdesc = new QLabel(this);
    lbdesc->setObjectName("lbdesc");
    lbdesc->setWordWrap(true);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(lbdesc);
    // The last two keep their design captions in every language.
    const char* design[] = {"Outlook Express", "Microsoft Outlook", "Yahoo!", "IncrediMail"};
    for (int i = 0; i < 4; ++i) {
        optOperation[i] = new QRadioButton(QString::fromLatin1(design[i]), this);
        optOperation[i]->setObjectName("optOperation");
        optOperation[i]->setProperty("Index", i);
        layout->addWidget(optOperation[i]);
    }
    cmdOK = new QPushButton(this);
    cmdOK->setObjectName("cmdOK");
    cmdCancel = new QPushButton(this);
    cmdCancel->setObjectName("cmdCancel");
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cmdOK);
    buttons->addWidget(cmdCancel);
    layout->addLayout(buttons);
    connect(cmdOK, &QPushButton::clicked, this, &AddressBookChoice::cmdOK_Click);
    connect(cmdCancel, &QPushButton::clicked, this, &Form::Unload);
}

void AddressBookChoice::FormLoad() {
    setWindowTitle(GetLanguageString(312));
    lbdesc->setText(WithOwnerName(GetLanguageString(538)));
    optOperation[0]->setText(GetLanguageString(539));
    optOperation[1]->setText(GetLanguageString(540));
    cmdOK->setText(GetLanguageString(100));
    cmdCancel->setText(GetLanguageString(101));
    ApplyCaptionRule(this);
}

void AddressBookChoice::cmdOK_Click() {
    for (int i = 0; i < 4; ++i) {
        if (!optOperation[i]->isChecked()) continue;
        try {
            RunChoice(i);
        } catch (const std::exception&) {
        }
        break;
    }
    Unload();
}
