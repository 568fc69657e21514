#pragma once
// The about box: the product's name and version, what it does, the
// disclaimer, and a way to the system information tool.
#include "platform/forms/modal.h"

class QLabel;
class QPushButton;

class frmAbout : public Form {
    Q_OBJECT
public:
    explicit frmAbout(QWidget* parent = nullptr);
    void FormLoad() override;

    QLabel* lblTitle;
    QLabel* lblVersion;
    QLabel* lblDescription;
    QLabel* lblDisclaimer;
    QPushButton* cmdOK;
    QPushButton* cmdSysInfo;
};

extern const char* const kSysInfoUnavailableMessage;
// Starts the system information tool, or says that there is none; the
// about box stays open either way.
void StartSysInfo();
