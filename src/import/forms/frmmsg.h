#pragma once
// The confirm-replace question: a contact of the clashing name already stands
// in the target. Four answers; the caller reads ConfirmResult after the
// modal showing.
#include "platform/forms/modal.h"

class QLabel;
class QPushButton;

class frmMsg : public Form {
    Q_OBJECT
public:
    explicit frmMsg(QWidget* parent = nullptr);
    void FormLoad() override;

    // 1 Yes, 2 Yes to All, 3 No, 4 Not to All; 0 while unanswered.
    qint16 ConfirmResult() const { return intConfirmResult; }

    QLabel* lblMsg;
    QLabel* lblMsg2;
    QPushButton* btnYes;
    QPushButton* btnYestoAll;
    QPushButton* btnNo;
    QPushButton* btnNotoAll;

private:
    qint16 intConfirmResult = 0;
};
