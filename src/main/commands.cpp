// Menus, pop-up menus and toolbar of the main window, and the commands that
// start from them.
#include <QAction>
#include <QComboBox>
#include <QMenu>
#include <QMenuBar>
#include <QStyle>
#include <QToolBar>
#include <QToolButton>
#include <QTreeWidget>
#include "app/libraries.h"
#include "app/placeholders.h"
#include "dialogs/frmaddtask.h"
#include "main/frmmain.h"
#include "main/guarded.h"
#include "main/treeitems.h"
#include "platform/msgbox.h"
#include "platform/pause.h"
#include "platform/shell.h"
#include "platform/stringlib.h"
#include "store/failure.h"
#include "store/record.h"
#include "store/text.h"

namespace {
enum class Library { None, Language, Edition };

// A named entry: its caption at design, and the string that replaces it at
// load when the library gives one.
struct Caption {
    const char* name;
    const char* design;
    int string;
    Library library;
};

constexpr Library L = Library::Language;
constexpr Library E = Library::Edition;
constexpr Library N = Library::None;

const Caption kMenuCaptions[] = {
    {"mnuFile", "&File", 158, L},
    {"mnuFileExit", "E&xit", 159, L},
    {"mnuContact", "&Contact", 116, L},
    {"mnuAdd_info", "&New Contact", 117, L},
    {"mnuDelete_info", "&Delete Contact", 118, L},
    {"mnuFind_info", "&Find Contact", 119, L},
    {"mnuSelect", "&Select", 151, L},
    {"mnuSelectAll", "&Select All", 120, L},
    {"mnuInvertSelection", "&Invert Selection", 121, L},
    {"mnuSynchronize", "S&ynchronize", 152, L},
    {"mnuImport_add", "&Import Contact", 122, L},
    {"mnuImportOE", "&Outlook Express", 124, L},
    {"mnuImportMSO", "&MS Outlook", 125, L},
    {"mnuYahoo", "&Yahoo!", 126, L},
    {"mnuImportIncredible", "&Incredible", 127, L},
    {"mnuExport_add", "&Export Contact", 123, L},
    {"mnuExportOE", "&Outlook Express", 124, L},
    {"mnuExportMSO", "&MS Outlook", 125, L},
    {"mnuExportYahoo", "&Yahoo!", 126, L},
    {"mnuExportIncredible", "&Incredible", 127, L},
    {"mnuCategory", "&Category", 128, L},
    {"mnuManageCategory", "&Manage Category", 129, L},
    {"mnuSkin", "S&kin", 0, N},
    {"mnuNoSkin", "No Skin", 0, N},
    {"mnuHelp", "&Help", 103, E},
    {"mnuHelpWhat", "&What is Tandry?", 104, E},
    {"mnuHelpOnline", "&Online Support Web Site", 105, E},
    {"mnuHelpUpdates", "&Check for Updates", 106, E},
    {"mnuHelpAbout", "&About", 107, E},
    // the pop-up menus, never in the bar
    {"mnuRightClick", "RightClick", 0, N},
    {"mnuDelete_p", "Delete Contact", 305, L},
    {"mnuDuplicate_c", "Duplicate Contact", 328, L},
    {"mnuEdit_p", "Edit Contact", 306, L},
    {"mnuPrint_p", "Print Contact", 317, L},
    {"mnuTreeViewRightClick", "TreeViewRightClick", 0, N},
    {"mnuDeleteCategory", "&Delete Category", 304, L},
    {"mnuDuplicateCategory", "&Duplicate Category", 329, L},
    {"mnuEmptyCategory", "&Empty Category", 335, L},
    {"mnuRenameCategory", "&Rename Category", 310, L},
    {"mnuTreeViewMouseUp", "TreeViewMouseUp", 0, N},
    {"mnuCopyContact", "Copy Contact", 336, L},
    {"mnuMoveContact", "Move Contact", 332, L},
};

// Entries that are built but stay out of sight: nothing turns them on.
const char* const kHiddenEntries[] = {"mnuYahoo",   "mnuImportIncredible", "mnuExportYahoo",
                                      "mnuExportIncredible", "mnuSkin", "mnuHelpWhat",
                                      "mnuHelpUpdates"};

struct ToolbarButton {
    const char* key;
    const char* design;
    const char* toolTip;
    int string;
    QStyle::StandardPixmap picture;
};

// Button 8 takes the language string 106 of the word "Delete": the
// numbering has no string of its own for it.
const ToolbarButton kToolbarButtons[] = {
    {"new", "New", "New Blank Contact", 150, QStyle::SP_FileIcon},
    {"find", "Find", "Find Contact(s)", 131, QStyle::SP_FileDialogContentsView},
    {"duplicate", "Duplicate", "Duplicate Contact(s)", 135, QStyle::SP_FileDialogDetailedView},
    {"delete", "Delete", "Delete Contact(s)", 106, QStyle::SP_TrashIcon},
    {"export", "Export", "Export Contact(s)", 140, QStyle::SP_ArrowUp},
    {"import", "Import", "Import Contact(s)", 145, QStyle::SP_ArrowDown},
};

struct ToolbarEntry {
    const char* button;
    const char* key;
    const char* design;
    int string;
};

const ToolbarEntry kToolbarEntries[] = {
    {"new", "newcontact", "New Contact", 117},
    {"new", "newcategory", "New Category", 130},
    {"find", "findbyname", "Find by Name", 132},
    {"find", "findbyemail", "Find by Email", 133},
    {"find", "findbycompany", "Find by Company", 134},
    {"duplicate", "duplicateContact", "Duplicate Contact(s)", 136},
    {"duplicate", "duplicateCategory", "Duplicate Category", 137},
    {"delete", "deleteContact", "Delete Contact(s)", 138},
    {"delete", "deleteCategory", "Delete Category", 139},
    {"export", "exportOE", "Export Outlook Express", 141},
    {"export", "exportMSO", "Export MS Outlook", 142},
    {"export", "exportYahoo", "Export Yahoo", 143},
    {"export", "exportIncredible", "Export Incredible", 144},
    {"import", "importOE", "Import Outlook Express", 146},
    {"import", "importMSO", "Import MS Outlook", 147},
    {"import", "importYahoo", "Import Yahoo", 148},
    {"import", "importIncredi", "Import Incredible", 149},
};

QString LibraryString(Library library, int number) {
    switch (library) {
    case Library::Language: return GetLanguageString(number);
    case Library::Edition: return GetEditionString(number);
    case Library::None: break;
    }
    return QString();
}

QMenu* AddMenu(QMenuBar* bar, const char* name, const char* design) {
    QMenu* menu = bar->addMenu(QString::fromLatin1(design));
    menu->setObjectName(QString::fromLatin1(name));
    return menu;
}

QMenu* AddMenu(QMenu* parent, const char* name, const char* design) {
    QMenu* menu = parent->addMenu(QString::fromLatin1(design));
    menu->setObjectName(QString::fromLatin1(name));
    return menu;
}

QAction* AddEntry(QMenu* menu, const char* name, const char* design) {
    QAction* action = menu->addAction(QString::fromLatin1(design));
    action->setObjectName(QString::fromLatin1(name));
    return action;
}

// The design caption of a named entry, from the table.
const char* Design(const char* name) {
    for (const Caption& c : kMenuCaptions)
        if (qstrcmp(c.name, name) == 0) return c.design;
    return "";
}

QMenu* Menu(QMenuBar* bar, const char* name) { return AddMenu(bar, name, Design(name)); }
QMenu* Menu(QMenu* parent, const char* name) { return AddMenu(parent, name, Design(name)); }
QAction* Entry(QMenu* menu, const char* name) { return AddEntry(menu, name, Design(name)); }

// The shell's failure codes as the system words them.
QString ShellFailureDescription(long code) {
    switch (code) {
    case 0: return QStringLiteral("The operating system is out of memory or resources.");
    case 2: return QStringLiteral("The system cannot find the file specified.");
    case 3: return QStringLiteral("The system cannot find the path specified.");
    case 5: return QStringLiteral("Access is denied.");
    case 8: return QStringLiteral("Not enough memory resources are available to process this command.");
    case 11: return QStringLiteral("An attempt was made to load a program with an incorrect format.");
    case 26: return QStringLiteral("A sharing violation occurred.");
    case 27: return QStringLiteral("The file name association is incomplete or invalid.");
    case 28: return QStringLiteral("The request timed out.");
    case 29: return QStringLiteral("The request failed.");
    case 30: return QStringLiteral("The request could not be handled because other requests were being processed.");
    case 31: return QStringLiteral("No application is associated with the specified file for this operation.");
    case 32: return QStringLiteral("The specified library was not found.");
    default: return QStringLiteral("Unknown error.");
    }
}
}  // namespace

void FrmMain::buildMenus() {
    QMenuBar* bar = menuBar();
    bar->setObjectName("MenuBar");

    QMenu* file = Menu(bar, "mnuFile");
    QAction* fileExit = Entry(file, "mnuFileExit");

    QMenu* contact = Menu(bar, "mnuContact");
    QAction* addInfo = Entry(contact, "mnuAdd_info");
    mnuDelete_info = Entry(contact, "mnuDelete_info");
    mnuFind_info = Entry(contact, "mnuFind_info");

    QMenu* select = Menu(bar, "mnuSelect");
    QAction* selectAll = Entry(select, "mnuSelectAll");
    QAction* invert = Entry(select, "mnuInvertSelection");

    QMenu* synchronize = Menu(bar, "mnuSynchronize");
    QMenu* importAdd = Menu(synchronize, "mnuImport_add");
    mnuImportOE = Entry(importAdd, "mnuImportOE");
    mnuImportMSO = Entry(importAdd, "mnuImportMSO");
    Entry(importAdd, "mnuYahoo");
    Entry(importAdd, "mnuImportIncredible");
    QMenu* exportAdd = Menu(synchronize, "mnuExport_add");
    mnuExportOE = Entry(exportAdd, "mnuExportOE");
    mnuExportMSO = Entry(exportAdd, "mnuExportMSO");
    Entry(exportAdd, "mnuExportYahoo");
    Entry(exportAdd, "mnuExportIncredible");

    QMenu* category = Menu(bar, "mnuCategory");
    Entry(category, "mnuManageCategory");

    QMenu* skin = Menu(bar, "mnuSkin");
    Entry(skin, "mnuNoSkin");
    skin->addSeparator()->setObjectName("mnuSeparator1");
    // The array mnuSkinList: ten entries that share the name, told apart by
    // their index.
    for (int i = 0; i < 10; ++i) {
        QAction* entry = AddEntry(skin, "mnuSkinList", "");
        entry->setText(QStringLiteral("Skin%1").arg(i + 1));
        entry->setProperty("Index", i);
    }

    QMenu* help = Menu(bar, "mnuHelp");
    Entry(help, "mnuHelpWhat");
    QAction* helpOnline = Entry(help, "mnuHelpOnline");
    Entry(help, "mnuHelpUpdates");
    Entry(help, "mnuHelpAbout");

    // The pop-up menus belong to the window but never stand in the bar.
    mnuRightClick = new QMenu(QString::fromLatin1(Design("mnuRightClick")), this);
    mnuRightClick->setObjectName("mnuRightClick");
    mnuDelete_p = Entry(mnuRightClick, "mnuDelete_p");
    mnuDuplicate_c = Entry(mnuRightClick, "mnuDuplicate_c");
    mnuEdit_p = Entry(mnuRightClick, "mnuEdit_p");
    mnuPrint_p = Entry(mnuRightClick, "mnuPrint_p");

    mnuTreeViewRightClick = new QMenu(QString::fromLatin1(Design("mnuTreeViewRightClick")), this);
    mnuTreeViewRightClick->setObjectName("mnuTreeViewRightClick");
    mnuDeleteCategory = Entry(mnuTreeViewRightClick, "mnuDeleteCategory");
    Entry(mnuTreeViewRightClick, "mnuDuplicateCategory");
    Entry(mnuTreeViewRightClick, "mnuEmptyCategory");
    Entry(mnuTreeViewRightClick, "mnuRenameCategory");

    // Built and captioned, with no handler: a drop always moves.
    mnuTreeViewMouseUp = new QMenu(QString::fromLatin1(Design("mnuTreeViewMouseUp")), this);
    mnuTreeViewMouseUp->setObjectName("mnuTreeViewMouseUp");
    Entry(mnuTreeViewMouseUp, "mnuCopyContact");
    Entry(mnuTreeViewMouseUp, "mnuMoveContact");

    for (const char* name : kHiddenEntries) {
        QObject* entry = findChild<QObject*>(QString::fromLatin1(name));
        if (auto* menu = qobject_cast<QMenu*>(entry)) menu->menuAction()->setVisible(false);
        else if (auto* action = qobject_cast<QAction*>(entry)) action->setVisible(false);
    }

    connect(fileExit, &QAction::triggered, this, [this] { close(); });
    connect(addInfo, &QAction::triggered, this,
            [this] { RunHandler("mnuAdd_info", [this] { NewContact(); }); });
    connect(selectAll, &QAction::triggered, this, [this] { SelectAll(); });
    connect(invert, &QAction::triggered, this, [this] { InvertSelection(); });
    connect(mnuEdit_p, &QAction::triggered, this,
            [this] { RunHandler("mnuEdit_p", [this] { EditSelectedContact(true); }); });
    connect(mnuPrint_p, &QAction::triggered, this,
            [this] { RunHandler("mnuPrint_p", [this] { PrintContacts(); }); });
    connect(helpOnline, &QAction::triggered, this,
            [this] { RunHandler("mnuHelpOnline", [this] { OnlineSupport(); }); });
}

void FrmMain::buildToolbar() {
    QStyle* style = this->style();
    // Buttons stand at the even places 2 to 12, separators at the odd ones.
    for (const ToolbarButton& b : kToolbarButtons) {
        Toolbar1->addSeparator();
        auto* button = new QToolButton(Toolbar1);
        const QString key = QString::fromLatin1(b.key);
        button->setObjectName(key);
        button->setText(QString::fromLatin1(b.design));
        button->setToolTip(QString::fromLatin1(b.toolTip));
        button->setIcon(style->standardIcon(b.picture));
        button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
        button->setPopupMode(QToolButton::MenuButtonPopup);
        auto* dropDown = new QMenu(button);
        for (const ToolbarEntry& e : kToolbarEntries) {
            if (qstrcmp(e.button, b.key) != 0) continue;
            QAction* entry = AddEntry(dropDown, e.key, e.design);
            const QString entryKey = QString::fromLatin1(e.key);
            connect(entry, &QAction::triggered, this, [this, entryKey] { onToolbarButton(entryKey); });
        }
        button->setMenu(dropDown);
        connect(button, &QToolButton::clicked, this, [this, key] { onToolbarButton(key); });
        Toolbar1->addWidget(button);
    }
    Toolbar1->adjustSize();
}

void FrmMain::LoadMenuCaptions() {
    for (const Caption& c : kMenuCaptions) {
        if (c.library == Library::None) continue;
        QString text = LibraryString(c.library, c.string);
        if (text.isEmpty()) continue;  // the design caption stands
        if (qstrcmp(c.name, "mnuHelpWhat") == 0) text = ReplaceText(text, "%s", LoadResString(998));
        QObject* entry = findChild<QObject*>(QString::fromLatin1(c.name));
        if (auto* menu = qobject_cast<QMenu*>(entry)) menu->setTitle(text);
        else if (auto* action = qobject_cast<QAction*>(entry)) action->setText(text);
    }
    for (const ToolbarButton& b : kToolbarButtons) {
        const QString text = GetLanguageString(b.string);
        if (text.isEmpty()) continue;
        if (auto* button = Toolbar1->findChild<QToolButton*>(QString::fromLatin1(b.key))) button->setText(text);
    }
    for (const ToolbarEntry& e : kToolbarEntries) {
        const QString text = GetLanguageString(e.string);
        if (text.isEmpty()) continue;
        if (auto* entry = Toolbar1->findChild<QAction*>(QString::fromLatin1(e.key))) entry->setText(text);
    }
}

// A button runs its key, an entry of its drop-down the entry's key; a key
// that is "as" a menu entry runs that entry's handler. An unknown key does
// nothing.
void FrmMain::onToolbarButton(const QString& key) {
    RunHandler("Toolbar1", [this, &key] {
        if (key == "new" || key == "newcontact") NewContact();
        else if (key == "newcategory") NewCategory();
        else if (key == "find") mnuFind_info->trigger();
        else if (key == "findbyname" || key == "findbyemail" || key == "findbycompany") {
            FindKey = key == "findbyname" ? 1 : key == "findbyemail" ? 2 : 3;
            mnuFind_info->trigger();
        } else if (key == "duplicate" || key == "duplicateContact") mnuDuplicate_c->trigger();
        else if (key == "delete" || key == "deleteContact") mnuDelete_info->trigger();
        else if (key == "deleteCategory") mnuDeleteCategory->trigger();
        else if (key == "export" || key == "exportOE") mnuExportOE->trigger();
        else if (key == "exportMSO") mnuExportMSO->trigger();
        else if (key == "import" || key == "importOE") mnuImportOE->trigger();
        else if (key == "importMSO") mnuImportMSO->trigger();
    });
}

// New contact: the dialog starts with the category of the selected node (the
// first category in tree order when the root is selected) and the country
// of the filter. A store with no category has no first child, and the
// command fails there.
void FrmMain::NewContact() {
    QTreeWidgetItem* node = SelectedNode(TreeView1);
    if (!node) throw RoutineFailure("no selected node");
    QString key = NodeKey(node);
    if (key == "noderoot") {
        if (node->childCount() == 0) throw RoutineFailure("the root has no child");
        key = NodeKey(node->child(0));
    }
    ContactBuffer.category = key.mid(2);
    ContactBuffer.country = qint16(cmbCountry->currentIndex());
    {
        frmaddtask dialog(this);
        ShowModal(&dialog, this);
    }
    CopyAddrFile();
    ClearContactBuffer();
    RefreshListView1(strCountry, strNodeKey);
    RefreshCategory();
}

// The store holds at most five categories: with the root, six nodes.
void FrmMain::NewCategory() {
    if (NodeCount(TreeView1) >= 6) {
        MsgBox(GetLanguageString(634), MsgCritical, GetLanguageString(300));
        return;
    }
    CategoryTask = 1;
}

void FrmMain::PrintContacts() {
    if (ListView1->selectedItems().isEmpty()) {
        MsgBox(WithOwnerName(GetLanguageString(628)), MsgExclamation, GetLanguageString(300));
        return;
    }
}

// The support web site, opened by the desktop's browser.
void FrmMain::OnlineSupport() {
    setCursor(Qt::WaitCursor);
    const QString address = LoadResString(1000);
    if (TrimSpaces(address).isEmpty()) {
        MsgBox(GetEditionString(515), MsgExclamation, GetLanguageString(300));
    } else {
        const long result = ShellExecute(this, QStringLiteral("open"), address, 1);
        Sleep(1000);
        if (result < 33)
            MsgBox(GetEditionString(524) + ShellFailureDescription(result), MsgCritical,
                   GetLanguageString(301));
    }
    unsetCursor();
}
