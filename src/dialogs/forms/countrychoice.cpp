#include "dialogs/forms/countrychoice.h"

#include <QCheckBox>
#include <QComboBox>
#include "app/core/inifile.h"
#include "app/core/libraries.h"
#include "platform/core/numbers.h"

void FillCountryChoice(QComboBox* countries, QCheckBox* enable) {
    countries->addItems(CountryNames());
    qint16 country = 0;
    TextToInt16(GetIniValue("Setting", "Country", "0", SettingFile()), country);
    countries->setCurrentIndex(country);
    QObject::connect(enable, &QCheckBox::toggled, countries, &QWidget::setEnabled);
    enable->setChecked(false);
    countries->setEnabled(false);
}
