#include "import/forms/frmoption.h"

#include "import/forms/importsession.h"

frmoption::frmoption(QWidget* parent) : AddressBookChoice("frmoption", parent) {}

void frmoption::RunChoice(int index) { ShowImportForm(ImportKind(index), this); }
