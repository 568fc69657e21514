#include "find/forms/frmfindtask.h"

#include <QComboBox>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTreeWidget>
#include <exception>
#include "app/core/libraries.h"
#include "app/core/placeholders.h"
#include "app/forms/captionrule.h"
#include "dialogs/forms/frmedittask.h"
#include "main/core/mainwindowlink.h"
#include "main/forms/twips.h"
#include "platform/core/msgbox.h"
#include "platform/forms/pointer.h"
#include "store/core/failure.h"
#include "store/core/text.h"

namespace {
constexpr int kIdColumn = 5;

template <typename T>
T* Named(QWidget* parent, const char* name) {
    auto* control = new T(parent);
    control->setObjectName(QString::fromLatin1(name));
    return control;
}

QStringList ItemsOf(const QComboBox* combo) {
    QStringList items;
    for (int i = 0; i < combo->count(); ++i) items << combo->itemText(i);
    return items;
}

// The three searches, in the order of the options.
using Search = void (*)(const QString&, const QStringList&, QList<FindHit>&);
const Search kSearches[] = {FindName, FindEmail, FindCompany};
}  // namespace

frmfindtask::frmfindtask(QWidget* parent) : Form(parent) {
    setObjectName("frmfindtask");
    for (int i = 0; i < 3; ++i) {
        optKey[i] = Named<QRadioButton>(this, "optKey");
        optKey[i]->setProperty("Index", i);
    }
    txtname = Named<QLineEdit>(this, "txtname");
    txtEmail = Named<QLineEdit>(this, "txtEmail");
    txtcompany = Named<QLineEdit>(this, "txtcompany");
    cmdFind = Named<QPushButton>(this, "cmdFind");
    cmdClose = Named<QPushButton>(this, "cmdClose");
    lbresult = Named<QLabel>(this, "lbresult");
    ListView1 = Named<QTreeWidget>(this, "ListView1");
    cmbCountry = Named<QComboBox>(this, "cmbCountry");
    cmbCountry->setVisible(false);

    ListView1->setRootIsDecorated(false);
    ListView1->setUniformRowHeights(true);
    ListView1->setColumnCount(6);
    ListView1->header()->setStretchLastSection(false);
    ListView1->header()->setMinimumSectionSize(0);  // the id column is zero wide
    ListView1->header()->setSectionsClickable(true);
    const int widths[] = {1764, 2540, 2540, 2540, 2540, 0};
    for (int i = 0; i < 6; ++i) ListView1->setColumnWidth(i, TwipsToPixelsX(widths[i]));

    auto* grid = new QGridLayout;
    for (int i = 0; i < 3; ++i) {
        grid->addWidget(optKey[i], i, 0);
        grid->addWidget(Box(i), i, 1);
    }
    grid->addWidget(cmdFind, 0, 2);
    grid->addWidget(cmdClose, 1, 2);
    grid->setColumnStretch(1, 1);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(grid);
    layout->addWidget(lbresult);
    layout->addWidget(ListView1, 1);
    resize(TwipsToPixelsX(12600), TwipsToPixelsY(6600));

    for (int i = 0; i < 3; ++i) {
        connect(optKey[i], &QRadioButton::toggled, this, [this, i](bool on) {
            if (on) optKey_Click(i);
        });
        connect(Box(i), &QLineEdit::returnPressed, this, &frmfindtask::cmdFind_Click);
    }
    for (QPushButton* button : {cmdFind, cmdClose}) button->setAutoDefault(false);
    connect(cmdFind, &QPushButton::clicked, this, &frmfindtask::cmdFind_Click);
    connect(cmdClose, &QPushButton::clicked, this, &Form::Unload);
    connect(ListView1->header(), &QHeaderView::sectionClicked, this, &frmfindtask::ListView1_ColumnClick);
    connect(ListView1, &QTreeWidget::itemDoubleClicked, this, &frmfindtask::ListView1_DblClick);
}

QLineEdit* frmfindtask::Box(int index) const {
    QLineEdit* const boxes[] = {txtname, txtEmail, txtcompany};
    return boxes[index];
}

void frmfindtask::FormLoad() {
    setWindowTitle(GetLanguageString(307));
    const int options[] = {517, 606, 607};
    for (int i = 0; i < 3; ++i) optKey[i]->setText(GetLanguageString(options[i]));
    cmdFind->setText(GetLanguageString(107));
    cmdClose->setText(GetLanguageString(103));
    lbresult->setText(GetLanguageString(516));
    ListView1->setHeaderLabels({QStringLiteral("#"), GetLanguageString(500), GetLanguageString(532),
                                GetLanguageString(501), GetLanguageString(508), QStringLiteral("szID")});
    ApplyCaptionRule(this);
    // A country's list position is its value in a record.
    cmbCountry->addItems(CountryNames());
}

void frmfindtask::FormActivate() {
    const MainWindowLink* main = TheMainWindow();
    const int key = main ? main->FindKey : 0;
    const int index = key == 2 ? 1 : key == 3 ? 2 : 0;
    // Chosen again, the option still moves the focus to its box.
    if (optKey[index]->isChecked()) optKey_Click(index);
    else optKey[index]->setChecked(true);
}

void frmfindtask::optKey_Click(int index) {
    for (int i = 0; i < 3; ++i) Box(i)->setEnabled(i == index);
    Box(index)->setFocus();
}

void frmfindtask::cmdFind_Click() {
    try {
        EmptyList();
        SetScreenPointer(11);
        int option = 0;
        while (option < 3 && !optKey[option]->isChecked()) ++option;
        if (option < 3) {
            QLineEdit* box = Box(option);
            // Empty means nothing at all: blanks pass, and are trimmed away after.
            if (box->text().isEmpty()) {
                MsgBox(WithOwnerName(GetLanguageString(593 + option)), MsgExclamation, GetLanguageString(300));
                box->setFocus();
                SetScreenPointer(0);
                return;
            }
            QList<FindHit> hits;
            try {
                kSearches[option](TrimSpaces(box->text()), ItemsOf(cmbCountry), hits);
            } catch (...) {
                AddRows(hits);
                throw;
            }
            AddRows(hits);
        }
        if (ListView1->topLevelItemCount() == 0)
            MsgBox(GetLanguageString(596), MsgExclamation, GetLanguageString(324));
        else
            Renumber();
        SetScreenPointer(0);
    } catch (const std::exception& failure) {
        SetScreenPointer(0);
        MsgBox(QStringLiteral("Error: ") + QString::fromUtf8(failure.what()), MsgCritical, QString());
    }
}

// Row i of the shrinking list goes, i counting from 1 to the first count:
// one row leaves the list empty, two or more make the counter overtake the
// list, which fails with about half the rows still there.
void frmfindtask::EmptyList() {
    const int count = ListView1->topLevelItemCount();
    for (int i = 1; i <= count; ++i) {
        if (i > ListView1->topLevelItemCount()) throw RoutineFailure("Index out of bounds");
        delete ListView1->takeTopLevelItem(i - 1);
    }
}

void frmfindtask::AddRows(const QList<FindHit>& hits) {
    QList<QTreeWidgetItem*> rows;
    for (const FindHit& h : hits)
        rows << new ListViewItem(QStringList{QString::number(h.row), h.infoname, h.mail, h.category, h.country, h.id});
    ListView1->addTopLevelItems(rows);
    listSort.Apply(ListView1);
}

void frmfindtask::Renumber() {
    for (int i = 0; i < ListView1->topLevelItemCount(); ++i)
        ListView1->topLevelItem(i)->setText(0, QString::number(i + 1));
}

void frmfindtask::ListView1_ColumnClick(int column) {
    listSort.ColumnClick(ListView1, column);
    Renumber();
}

// The row keeps its old values after an edit, until the next search.
void frmfindtask::ListView1_DblClick() {
    if (ListView1->topLevelItemCount() == 0) return;
    const QTreeWidgetItem* row = ListView1->currentItem();
    if (!row) return;
    const ContactId contactId = row->text(kIdColumn);
    ClearContact();
    LoadContact(contactId);
    ContactEditFlag = true;
    {
        frmedittask dialog(this);
        ShowModal(&dialog, this);
    }
    if (MainWindowLink* main = TheMainWindow()) main->CopyAddrFile();
    ClearContact();
}
