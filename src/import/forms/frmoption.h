#pragma once
// The choice of the address book to import from: the option chosen opens
// its import form modally, then the dialog closes.
#include "import/forms/addressbookchoice.h"

class frmoption : public AddressBookChoice {
    Q_OBJECT
public:
    explicit frmoption(QWidget* parent = nullptr);

protected:
    void RunChoice(int index) override;
};
