#pragma once
// The phone code look-up: the user picks a country and reads its
// international dialling code. Nothing is passed back.
#include "platform/modal.h"

class frmphone : public Form {
    Q_OBJECT
public:
    explicit frmphone(QWidget* parent = nullptr);
    void formLoad() override;
    void formActivate() override;  // the scan of the phone code library
};
