#pragma once
// The splash form shown while the libraries are copied at start.
#include "platform/forms/modal.h"

class QLabel;

class frmprogress : public Form {
    Q_OBJECT
public:
    explicit frmprogress(QWidget* parent = nullptr);
    void FormLoad() override;
private:
    QLabel* lbcaption;
};
