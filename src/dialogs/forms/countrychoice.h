#pragma once
// The country a duplicate goes into: a drop-down of the country library's
// names on the country stored in setting.ini, and a check box beside it
// that enables the drop-down. It starts unchecked and disabled, so unless
// the box is checked the stored country is the one taken.
class QCheckBox;
class QComboBox;

void FillCountryChoice(QComboBox* countries, QCheckBox* enable);
