#pragma once
// The edit dialog: shows the contact in ContactBuffer, lets the user change
// every field, and writes the change through the staged write. It closes
// itself after a successful save.
#include "platform/modal.h"

class frmedittask : public Form {
    Q_OBJECT
public:
    explicit frmedittask(QWidget* parent = nullptr);
    void formLoad() override;
    void formActivate() override;  // fills the fields from ContactBuffer, every time
};
