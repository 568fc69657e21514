#pragma once
// The new-contact dialog: enters one contact after another. Save writes a
// complete contact through the staged write and leaves the dialog open,
// emptied, for the next one.
#include "platform/modal.h"

class frmaddtask : public Form {
    Q_OBJECT
public:
    explicit frmaddtask(QWidget* parent = nullptr);
    void formLoad() override;
};
