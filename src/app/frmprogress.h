#pragma once
// The splash form shown while the libraries are copied at start.
#include <QString>
#include "platform/modal.h"

class QLabel;

class frmprogress : public Form {
    Q_OBJECT
public:
    explicit frmprogress(QWidget* parent = nullptr);
    void formLoad() override;
    QString skinPath() const { return skinPath_; }
private:
    QLabel* lbcaption;
    QString skinPath_;
};
