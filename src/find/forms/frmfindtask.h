#pragma once
// The find dialog: one text searched for in the names, the e-mail
// addresses or the companies of the store, the hits in a list, and a hit
// opened in the edit dialog by a double click. It reads the store only.
#include <QList>
#include "find/core/findcontacts.h"
#include "platform/forms/listviewitem.h"
#include "platform/forms/modal.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QTreeWidget;

class frmfindtask : public Form {
    Q_OBJECT
public:
    explicit frmfindtask(QWidget* parent = nullptr);
    void FormLoad() override;
    // The main window's FindKey chooses the option, every time, over a
    // choice made by hand.
    void FormActivate() override;

    QRadioButton* optKey[3];  // name, e-mail, company
    QLineEdit* txtname;
    QLineEdit* txtEmail;
    QLineEdit* txtcompany;
    QPushButton* cmdFind;
    QPushButton* cmdClose;
    QLabel* lbresult;
    QTreeWidget* ListView1;  // "#", name, e-mail, category, country, id
    QComboBox* cmbCountry;   // never shown: a country's name by its index

private:
    void optKey_Click(int index);
    void cmdFind_Click();
    void EmptyList();
    void AddRows(const QList<FindHit>& hits);
    void Renumber();
    void ListView1_ColumnClick(int column);
    void ListView1_DblClick();
    QLineEdit* Box(int index) const;

    ListViewSort listSort;
};
