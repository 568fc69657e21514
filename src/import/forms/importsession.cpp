#include "import/forms/importsession.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <exception>
#include "app/core/globals.h"
#include "app/core/inifile.h"
#include "app/core/libraries.h"
#include "app/core/placeholders.h"
#include "app/forms/captionrule.h"
#include "dialogs/forms/itemcombo.h"
#include "import/core/importwriter.h"
#include "import/forms/importsources.h"
#include "main/core/mainwindowlink.h"
#include "main/forms/twips.h"
#include "platform/core/appversion.h"
#include "platform/core/msgbox.h"
#include "platform/core/numbers.h"
#include "platform/core/runtimeerror.h"
#include "platform/forms/pointer.h"
#include "platform/forms/strictprogressbar.h"
#include "services/forms/skins.h"
#include "store/core/failure.h"
#include "store/core/snapshot.h"
#include "store/core/text.h"

namespace {
template <typename T>
T* Named(QWidget* parent, const char* name) {
    auto* control = new T(parent);
    control->setObjectName(QString::fromLatin1(name));
    return control;
}

// A report-style list: several rows selectable, hidden columns of no width.
void SetUpList(QTreeWidget* list, std::initializer_list<std::span<const ListColumn>> parts) {
    list->setRootIsDecorated(false);
    list->setUniformRowHeights(true);
    list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    list->header()->setStretchLastSection(false);
    list->header()->setMinimumSectionSize(0);
    list->header()->setSectionsClickable(true);
    QStringList headers;
    QList<int> widths;
    for (std::span<const ListColumn> part : parts)
        for (const ListColumn& column : part) {
            headers << QString::fromLatin1(column.header);
            widths << column.width;
        }
    list->setHeaderLabels(headers);
    for (int i = 0; i < widths.size(); ++i) list->setColumnWidth(i, TwipsToPixelsX(widths[i]));
}

// The headings the language replaces.
void LoadHeadings(QTreeWidget* list, int first, std::span<const ListColumn> columns) {
    for (int i = 0; i < int(columns.size()); ++i)
        if (columns[i].string) list->headerItem()->setText(first + i, GetLanguageString(columns[i].string));
}

// The check box column of ListView1, before the design's columns.
const ListColumn kCheckColumn[] = {{"", 400}};

void Renumber(QTreeWidget* list, int column) {
    for (int i = 0; i < list->topLevelItemCount(); ++i) list->topLevelItem(i)->setText(column, QString::number(i + 1));
}

QTreeWidgetItem* Row(QTreeWidget* list, int position) {  // 1-based, as the lists count
    QTreeWidgetItem* item = list->topLevelItem(position - 1);
    if (!item) throw RoutineFailure("Index out of bounds");
    return item;
}

// One column of a list, read once for a scan of its pairs.
QStringList Column(const QTreeWidget* list, int column) {
    QStringList texts;
    for (int i = 0; i < list->topLevelItemCount(); ++i) texts << list->topLevelItem(i)->text(column);
    return texts;
}

QStringList Texts(const QTreeWidgetItem* item) {
    QStringList texts;
    for (int i = 0; i < item->columnCount(); ++i) texts << item->text(i);
    return texts;
}

QTreeWidgetItem* NewListView1Item(int number) {
    auto* item = new ListViewItem;
    item->setCheckState(0, Qt::Unchecked);
    item->setText(1, QString::number(number));
    return item;
}
}  // namespace

ImportSession::ImportSession(ImportKind kind, QWidget* parent)
    : Form(parent), design(ImportDesignOf(kind)), source(SourceFor(kind, this)) {
    setObjectName(QString::fromLatin1(design.name));
    setWindowTitle(QString::fromLatin1(design.caption));
    lbselect = Named<QLabel>(this, "lbselect");
    ListView1 = Named<QTreeWidget>(this, "ListView1");
    chkCheck = Named<QCheckBox>(this, "chkCheck");
    chkCheck->setText(QStringLiteral("Select All Items"));
    lbcountry = Named<QLabel>(this, "lbcountry");
    cbCountry = new ItemCombo(200, this);
    cbCountry->setObjectName("cbCountry");
    lbcategory = Named<QLabel>(this, "lbcategory");
    cbCategory = new ItemCombo(200, this);
    cbCategory->setObjectName("cbCategory");
    cmdAdd = Named<QPushButton>(this, "cmdAdd");
    cmdAdd->setText(QStringLiteral("Add Item"));
    lbfinal = Named<QLabel>(this, "lbfinal");
    ListView2 = Named<QTreeWidget>(this, "ListView2");
    btnRemoveItem = Named<QPushButton>(this, "btnRemoveItem");
    btnRemoveItem->setText(QStringLiteral("Remove Item"));
    picCount = Named<QLabel>(this, "picCount");
    picCount->setFrameShape(QFrame::Panel);
    picCount->setFrameShadow(QFrame::Sunken);
    picCount->setMinimumWidth(TwipsToPixelsX(1400));
    ProgressBar = new StrictProgressBar(this);
    ProgressBar->setObjectName("ProgressBar");
    ProgressBar->setVisible(false);
    cmdOK = Named<QPushButton>(this, "cmdOK");
    cmdCancel = Named<QPushButton>(this, "cmdCancel");
    for (QPushButton* button : {cmdAdd, btnRemoveItem, cmdCancel}) button->setAutoDefault(false);
    cmdOK->setDefault(true);
    cmdOK->setEnabled(false);
    lbcategory->setVisible(!design.categoryFromFolder);
    cbCategory->setVisible(!design.categoryFromFolder);

    SetUpList(ListView1, {kCheckColumn, design.listView1});
    SetUpList(ListView2, {ListView2Head(), design.listView2Tail});

    auto* choice = new QHBoxLayout;
    choice->addWidget(chkCheck);
    choice->addStretch();
    for (QWidget* control : std::initializer_list<QWidget*>{lbcountry, cbCountry, lbcategory, cbCategory, cmdAdd})
        choice->addWidget(control);
    auto* bottom = new QHBoxLayout;
    bottom->addWidget(btnRemoveItem);
    bottom->addWidget(picCount);
    bottom->addWidget(ProgressBar, 1);
    bottom->addStretch();
    bottom->addWidget(cmdOK);
    bottom->addWidget(cmdCancel);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(lbselect);
    layout->addWidget(ListView1, 1);
    layout->addLayout(choice);
    layout->addWidget(lbfinal);
    layout->addWidget(ListView2, 1);
    layout->addLayout(bottom);
    resize(TwipsToPixelsX(13200), TwipsToPixelsY(8400));

    connect(chkCheck, &QCheckBox::clicked, this, &ImportSession::chkCheck_Click);
    connect(cmdAdd, &QPushButton::clicked, this, &ImportSession::cmdAdd_Click);
    connect(btnRemoveItem, &QPushButton::clicked, this, &ImportSession::btnRemoveItem_Click);
    connect(cmdCancel, &QPushButton::clicked, this, &ImportSession::cmdCancel_Click);
    connect(cmdOK, &QPushButton::clicked, this, &ImportSession::cmdOK_Click);
    for (QTreeWidget* list : {ListView1, ListView2})
        connect(list->header(), &QHeaderView::sectionClicked, this, [this, list](int column) { ColumnClick(list, column); });
}

ImportSession::~ImportSession() = default;

// ---- load ----

// A failure on the way shows its words and closes the form, as a load
// that stops does.
void ImportSession::FormLoad() {
    try {
        LoadSteps();
    } catch (const std::exception& failure) {
        MsgBox(QString::fromLocal8Bit(failure.what()), MsgCritical, AppTitle());
        bCloseOnActivate = true;
    }
}

// A load that stops leaves the form open, but where the design closes it.
void ImportSession::Stop() { bCloseOnActivate = design.closesOnFailedLoad; }

void ImportSession::FormActivate() {
    if (bCloseOnActivate) Unload();
}

void ImportSession::LoadSteps() {
    bCloseOnActivate = false;
    LoadCaptions();
    if (!design.categoryFromFolder) FillCategoryCombo(cbCategory);
    FillCountryCombo(cbCountry);
    if (!design.categoryFromFolder && cbCategory->count() == 0) {
        MsgBox(WithOwnerName(GetLanguageString(626)), MsgExclamation, GetLanguageString(300));
        return Stop();
    }
    if (cbCountry->count() == 0) {
        MsgBox(GetLanguageString(627), MsgExclamation, GetLanguageString(300));
        return Stop();
    }
    cmdCancel->setText(GetLanguageString(101));
    qint16 country = 0;
    if (!TextToInt16(GetIniValue("Setting", "Country", "0", SettingFile()), country))
        throw RoutineFailure(RuntimeErrorDescription(ErrTypeMismatch).toStdString());
    if (!SetListIndex(cbCountry, country))
        throw RoutineFailure(RuntimeErrorDescription(ErrInvalidPropertyValue).toStdString());
    ListView2->clear();

    if (!source->Load(*this)) {
        if (design.sourceFailedMessage)
            MsgBox(GetLanguageString(design.sourceFailedMessage), MsgExclamation, GetLanguageString(301));
        return design.closesOnSourceFailure ? Unload() : Stop();
    }
    if (design.emptyListMessage && ListView1->topLevelItemCount() == 0) {
        MsgBox(GetLanguageString(design.emptyListMessage), MsgExclamation, GetLanguageString(300));
        return Stop();
    }
    Renumber(ListView1, 1);
    if (design.sortsAtLoad) ColumnClick(ListView1, 2);  // header 3
    SkinControls({ListView1, ListView2});
}

void ImportSession::LoadCaptions() {
    cmdOK->setText(GetLanguageString(100));
    cmdCancel->setText(GetLanguageString(101));
    cmdAdd->setText(GetLanguageString(115));
    btnRemoveItem->setText(GetLanguageString(157));
    lbselect->setText(WithOwnerName(GetLanguageString(571)));
    lbcountry->setText(GetLanguageString(508));
    lbcategory->setText(GetLanguageString(501));
    chkCheck->setText(GetLanguageString(572));
    lbfinal->setText(GetLanguageString(573));
    setWindowTitle(GetLanguageString(313));
    LoadHeadings(ListView1, 1, design.listView1);
    LoadHeadings(ListView2, 0, ListView2Head());
    CaptionRuleOptions options;
    options.sizeButtons = true;
    ApplyCaptionRule(this, options);
    for (QWidget* control : std::initializer_list<QWidget*>{ListView1, ListView2, cbCountry, cbCategory, picCount})
        SetFontSize(control, LabelFontSize());
}

// The progress of a source's read: the count, then the window's queue.
void ImportSession::ShowCount(int current, int total) {
    picCount->setText(QStringLiteral("%1 / %2").arg(current).arg(total));
    picCount->repaint();
    QCoreApplication::processEvents();
}

void ImportSession::ClearCount() { picCount->clear(); }

void ImportSession::AddRow(const SourceRow& row) {
    QTreeWidgetItem* item = NewListView1Item(ListView1->topLevelItemCount() + 1);
    for (int i = 0; i < row.size() && i + 2 < ListView1->columnCount(); ++i) item->setText(i + 2, row[i]);
    ListView1->addTopLevelItem(item);
}

// ---- the two lists ----

// Every item checked and selected, or neither. The selection is made as
// one range, which the list keeps cheaply while the items move away.
void ImportSession::chkCheck_Click() {
    const bool on = chkCheck->isChecked();
    for (int i = 0; i < ListView1->topLevelItemCount(); ++i)
        ListView1->topLevelItem(i)->setCheckState(0, on ? Qt::Checked : Qt::Unchecked);
    if (on) ListView1->selectAll();
    else ListView1->clearSelection();
}

// A heading's click sorts its list by that column, the same column again
// the other way round, and numbers the rows anew in their new order.
void ImportSession::ColumnClick(QTreeWidget* list, int column) {
    (list == ListView1 ? sort1 : sort2).ColumnClick(list, column);
    Renumber(list, list == ListView1 ? 1 : 0);
}

// The checked items go to the final list from the last up, so that the
// final list shows them in reverse, each stamped with the country and
// (where the design says) the category chosen.
void ImportSession::cmdAdd_Click() {
    int next = ListView2->topLevelItemCount() + 1;
    const QString country = cbCountry->currentItemText();
    const QString category = cbCategory->currentItemText();
    for (int i = ListView1->topLevelItemCount() - 1; i >= 0; --i) {
        QTreeWidgetItem* found = ListView1->topLevelItem(i);
        if (found->checkState(0) != Qt::Checked) continue;
        auto* item = new ListViewItem;
        item->setText(0, QString::number(next++));
        item->setText(1, country);
        for (const CarriedField& field : design.carried) item->setText(field.listView2, found->text(field.listView1));
        item->setText(9, QString::number(cbCountry->currentIndex()));
        if (!design.categoryFromFolder) {
            item->setText(2, TrimSpaces(category.left(200)));
            item->setText(10, CategoryIdFromItem(category));
        }
        ListView2->addTopLevelItem(item);
        delete ListView1->takeTopLevelItem(i);
    }
    sort2.Apply(ListView2);
    ListView2->clearSelection();
    ScanForDuplicates();
    if (ListView1->topLevelItemCount() > 0) Renumber(ListView1, 1);
    if (ListView2->topLevelItemCount() > 0) {
        if (design.renumbersAfterAdd) Renumber(ListView2, 0);
        cmdOK->setEnabled(true);
    }
}

// The same name (exactly, letter case counts) twice in one category of the
// final list sends both back. After a pair of names that are equal with
// different categories, no further pair of that row is looked at: the
// second place stays where it is. After a pair went back, the scan ends
// where it would read a row past the end of the shorter list.
void ImportSession::ScanForDuplicates() {
    const int count = ListView2->topLevelItemCount();
    QStringList names = Column(ListView2, 3), categories = Column(ListView2, 2);
    for (int i = 1; i <= count; ++i) {
        int j = 1;
        for (int k = i; k <= count - 1; ++k) {
            if (i + j > names.size()) return;
            if (names.value(i - 1) == names.value(i + j - 1)) {
                if (categories.value(i - 1) != categories.value(i + j - 1)) continue;
                MsgBox(GetLanguageString(587), MsgExclamation, GetLanguageString(300));
                SelectPair(i, i + j);
                btnRemoveItem_Click();
                names = Column(ListView2, 3);
                categories = Column(ListView2, 2);
            } else if (i + j + 1 <= names.size()) {
                ++j;
            }
        }
    }
}

void ImportSession::SelectPair(int first, int second) {
    Row(ListView2, first)->setSelected(true);
    Row(ListView2, second)->setSelected(true);
}

// The selected rows of the final list go back to the items found, with the
// fields the design carries back.
void ImportSession::btnRemoveItem_Click() {
    int next = ListView1->topLevelItemCount() + 1;
    for (int i = ListView2->topLevelItemCount() - 1; i >= 0; --i) {
        QTreeWidgetItem* found = ListView2->topLevelItem(i);
        if (!found->isSelected()) continue;
        QTreeWidgetItem* item = NewListView1Item(next++);
        for (const CarriedField& field : design.carried)
            if (field.back) item->setText(field.listView1, found->text(field.listView2));
        ListView1->addTopLevelItem(item);
        delete ListView2->takeTopLevelItem(i);
    }
    sort1.Apply(ListView1);
    if (ListView2->topLevelItemCount() > 0) Renumber(ListView2, 0);
    if (ListView1->topLevelItemCount() > 0) Renumber(ListView1, 1);
    if (ListView2->topLevelItemCount() == 0) cmdOK->setEnabled(false);
}

// The caption is always 101, so a click closes the form: nothing is
// written, and the final list is dropped.
void ImportSession::cmdCancel_Click() {
    if (cmdCancel->text() == GetLanguageString(101)) Unload();
    else bCancelImport = true;
}

void ImportSession::reject() {
    if (cmdCancel->isVisible() && cmdCancel->isEnabled()) cmdCancel->click();
}

// ---- the commit ----

void ImportSession::cmdOK_Click() {
    try {
        if (design.checksDuplicatesInOK) ListView2->clearSelection();
        cmdOK->setEnabled(false);
        cmdCancel->setText(GetLanguageString(101));
        if (design.checksDuplicatesInOK && RemoveDuplicateBeforeWrite()) return;
        if (ListView2->topLevelItemCount() == 0) {
            MsgBox(GetLanguageString(590), MsgExclamation, GetLanguageString(301));
            return;
        }
        cmdOK->setVisible(false);
        if (!design.cancelShownDuringCommit) cmdCancel->setVisible(false);
        if (BeginCommit()) MsgBox(GetLanguageString(556), MsgInformation, GetLanguageString(308));
        else MsgBox(GetLanguageString(557), MsgCritical, GetLanguageString(301));
        Unload();
        CopyAddrFile();
        if (MainWindowLink* main = TheMainWindow()) main->RefreshCategory();
    } catch (const std::exception&) {
        // an unexpected failure leaves the form as it stands
    }
}

// The first pair of one name in one category found sends both rows back.
bool ImportSession::RemoveDuplicateBeforeWrite() {
    const QStringList names = Column(ListView2, 3), categories = Column(ListView2, 2);
    const int count = int(names.size());
    for (int i = 1; i <= count; ++i) {
        int j = 1;
        for (int k = i; k <= count && i + j <= count; ++k) {
            if (names[i - 1] != names[i + j - 1]) {
                ++j;
            } else if (categories[i - 1] == categories[i + j - 1]) {
                MsgBox(ReplaceText(GetLanguageString(588), "%contact", names[i - 1]), MsgExclamation,
                       GetLanguageString(300));
                SelectPair(i, i + j);
                btnRemoveItem_Click();
                return true;
            }
        }
    }
    return false;
}

bool ImportSession::BeginCommit() {
    cmdOK->setVisible(false);
    ProgressBar->setVisible(true);
    SetScreenPointer(11);
    bool done = false;
    try {
        ProgressBar->SetValue(1);
        done = CommitRows();
    } catch (const std::exception&) {
        done = false;
    }
    cmdOK->setVisible(true);
    ProgressBar->setVisible(false);
    SetScreenPointer(0);
    return done;
}

// Each row is a staged write of its own; a failed row asks whether to go
// on, and the rows written before it stay written whatever the answer.
bool ImportSession::CommitRows() {
    const int rows = ListView2->topLevelItemCount();
    ProgressBar->setRange(0, rows);
    ProgressBar->SetValue(0);
    CommitTables tables;
    if (!ReadCommitTables(design, tables)) throw RoutineFailure(RuntimeErrorDescription(ErrFileNotFound).toStdString());
    WriterLists lists{cbCountry->itemTexts(), cbCategory->itemTexts(), cbCountry->currentIndex(),
                      cbCategory->currentIndex()};
    for (int i = 1; i <= rows; ++i) {
        ShowCount(i, rows);
        if (bCancelImport) {
            MsgBox(GetLanguageString(575), MsgExclamation, GetLanguageString(300));
            break;
        }
        ClearContactBuffer();
        const ContactRecord record = ImportRecordOf(Texts(Row(ListView2, i)), design);
        const StoreResult written = WriteImportedContact(record, lists, tables, design);
        cbCountry->setCurrentIndex(lists.country);
        cbCategory->setCurrentIndex(lists.category);
        if (!written) {
            if (written.error() == StoreError::StagedRecordMissing)
                MsgBox(GetLanguageString(531), MsgCritical, GetLanguageString(301));
            else if (written.runtimeError())
                MsgBox(GetEditionString(524) + RuntimeErrorDescription(written.runtimeError()), MsgCritical,
                       GetLanguageString(301));
            const QString question = ReplaceText(GetLanguageString(320), "%contact", record.infoname);
            if (MsgBox(question, MsgQuestion, MsgYesNo, GetLanguageString(319)) == AnswerNo) {
                // frmsync1 tells of its end as of a failure
                if (design.categoryFromFolder) MsgBox(GetEditionString(524), MsgCritical, GetLanguageString(301));
                return false;
            }
        }
        ProgressBar->SetValue(i);
    }
    return true;
}

void ShowImportForm(ImportKind kind, QObject* owner) {
    ImportSession form(kind, qobject_cast<QWidget*>(owner));
    ShowModal(&form, owner);
}
