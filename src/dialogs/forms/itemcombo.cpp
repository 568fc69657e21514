#include "dialogs/forms/itemcombo.h"

#include "app/core/libraries.h"
#include "platform/forms/pointer.h"
#include "store/core/categories.h"

ItemCombo::ItemCombo(int shownLength, QWidget* parent)
    : QComboBox(parent), shownLength_(shownLength) {
    // The shown names decide the width, not the padded items.
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(20);
}

QString ItemCombo::shownText(const QString& item) const {
    QString name = item.left(shownLength_);
    qsizetype end = name.size();
    while (end > 0 && name[end - 1] == u' ') --end;
    return name.left(end);
}

void ItemCombo::addItemText(const QString& item) {
    addItem(shownText(item), item);  // the whole item rides as the item's data
}

void ItemCombo::addItemTexts(const QStringList& items) {
    for (const QString& item : items) addItemText(item);
}

QString ItemCombo::itemTextAt(int index) const {
    if (index < 0 || index >= count()) return QString();
    return itemData(index).toString();
}

QString ItemCombo::currentItemText() const { return itemTextAt(currentIndex()); }

QStringList ItemCombo::itemTexts() const {
    QStringList items;
    for (int i = 0; i < count(); ++i) items << itemTextAt(i);
    return items;
}

void FillCategoryCombo(ItemCombo* combo) {
    SetScreenPointer(11);
    combo->clear();
    QStringList items;
    CategoryComboItems(items);  // on a failure, the lines read so far
    combo->addItemTexts(items);
    combo->setCurrentIndex(items.isEmpty() ? -1 : 0);
    SetScreenPointer(0);
}

void FillCountryCombo(ItemCombo* combo) {
    combo->clear();
    for (const QString& country : CountryNames()) combo->addItemText(country);
    if (combo->count() > 0) combo->setCurrentIndex(0);
}

bool SetListIndex(ItemCombo* combo, int index) {
    if (index < -1 || index >= combo->count()) return false;
    combo->setCurrentIndex(index);
    return true;
}
