#pragma once
// A drop-down whose items carry more text than they show. The program's
// items are padded texts: a name padded or cut to a fixed width, then an id
// or a dialling code. On the original window the tail lay beyond the
// control's width; here the control shows the name part alone, and the
// whole item text is kept beside it, which is what the program reads.
#include <QComboBox>
#include <QStringList>

class ItemCombo : public QComboBox {
    Q_OBJECT
public:
    // `shownLength`: how many leading characters of an item make its name.
    explicit ItemCombo(int shownLength, QWidget* parent = nullptr);

    void addItemText(const QString& item);
    void addItemTexts(const QStringList& items);
    QString itemTextAt(int index) const;  // the whole item; empty text out of range
    QString currentItemText() const;      // the whole selected item, or empty text
    QStringList itemTexts() const;

    // The part an item shows: its name field without the padding.
    QString shownText(const QString& item) const;

private:
    int shownLength_;
};

// The category list from category.dat (items CategoryItemText), the first
// selected; the pointer is the hourglass meanwhile. On a failure, the lines
// read so far.
void FillCategoryCombo(ItemCombo* combo);
// The countries of the country library, the first selected.
void FillCountryCombo(ItemCombo* combo);

// Sets a drop-down's selection as a list index is set: -1 clears it, an
// index past either end is refused with false and changes nothing.
bool SetListIndex(ItemCombo* combo, int index);
