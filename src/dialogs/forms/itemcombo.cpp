#include "dialogs/forms/itemcombo.h"

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
