#include "services/forms/frmabout.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include "app/core/libraries.h"
#include "app/core/placeholders.h"
#include "app/forms/captionrule.h"
#include "platform/core/appversion.h"
#include "platform/core/msgbox.h"
#include "platform/core/stringlib.h"
#include "platform/core/sysinfotool.h"

const char* const kSysInfoUnavailableMessage = "System Information Is Unavailable At This Time";

namespace {
QLabel* NewLabel(QWidget* form, const char* name, const QString& design) {
    auto* label = new QLabel(design, form);
    label->setObjectName(name);
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    return label;
}
}  // namespace

frmAbout::frmAbout(QWidget* parent) : Form(parent) {
    setObjectName("frmAbout");
    setWindowTitle("About %s");
    lblTitle = NewLabel(this, "lblTitle", "Application Title");
    lblVersion = NewLabel(this, "lblVersion", "Version");
    lblDescription = NewLabel(this, "lblDescription", "");
    lblDisclaimer = NewLabel(this, "lblDisclaimer", "");
    cmdOK = new QPushButton(this);
    cmdOK->setObjectName("cmdOK");
    cmdOK->setDefault(true);
    cmdSysInfo = new QPushButton("&System Info...", this);
    cmdSysInfo->setObjectName("cmdSysInfo");
    cmdSysInfo->setAutoDefault(false);

    QFont title = lblTitle->font();
    title.setBold(true);
    lblTitle->setFont(title);
    auto* buttons = new QVBoxLayout;
    buttons->addWidget(cmdOK);
    buttons->addWidget(cmdSysInfo);
    auto* grid = new QGridLayout(this);
    grid->addWidget(lblTitle, 0, 0);
    grid->addWidget(lblVersion, 1, 0);
    grid->addWidget(lblDescription, 2, 0);
    grid->addWidget(lblDisclaimer, 3, 0);
    grid->addLayout(buttons, 3, 1, Qt::AlignBottom);
    grid->setRowStretch(2, 1);
    grid->setColumnStretch(0, 1);
    setMinimumSize(420, 240);

    connect(cmdOK, &QPushButton::clicked, this, &Form::Unload);
    connect(cmdSysInfo, &QPushButton::clicked, this, [] { StartSysInfo(); });
}

void frmAbout::FormLoad() {
    setWindowTitle(ReplaceText(GetEditionString(303), "%s", LoadResString(998)));
    lblTitle->setText(AppTitle());
    const ProgramVersion v = AppVersion();
    lblVersion->setText(QStringLiteral("Version %1.%2.%3").arg(v.major).arg(v.minor).arg(v.revision));
    lblDescription->setText(GetLanguageString(619));
    lblDisclaimer->setText(GetEditionString(500));
    cmdOK->setText(GetEditionString(100));
    cmdSysInfo->setText(GetEditionString(112));
    ApplyCaptionRule(this);
}

void StartSysInfo() {
    const QString tool = SystemInformationTool();
    if (tool.isEmpty() || !StartProgram(tool))
        MsgBox(QString::fromLatin1(kSysInfoUnavailableMessage), 0, MsgOkOnly, AppTitle());
}
