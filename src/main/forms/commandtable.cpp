#include "main/forms/commandtable.h"

#include <QtGlobal>

// The handlers, each in a file of its own.
void UnloadMainWindow(FrmMain& window);  // frmmain.cpp
void NewContact(FrmMain& window);        // newcontact.cpp
void EditFromMenu(FrmMain& window);      // editcontact.cpp
void SelectAll(FrmMain& window);         // selection.cpp
void InvertSelection(FrmMain& window);   // selection.cpp
void PrintContacts(FrmMain& window);     // printcontacts.cpp
void OnlineSupport(FrmMain& window);     // helpcommands.cpp
void NewCategory(FrmMain& window);       // newcategory.cpp
void ManageCategories(FrmMain& window);  // managecategory.cpp
void DeleteCategory(FrmMain& window);    // managecategory.cpp
void RenameCategory(FrmMain& window);    // renamecategory.cpp
void EmptyCategory(FrmMain& window);     // emptycategory.cpp
void DuplicateCategory(FrmMain& window);             // duplicatecategory.cpp
void DuplicateCategoryFromToolbar(FrmMain& window);  // duplicatecategory.cpp
void FindByName(FrmMain& window);        // findkeys.cpp
void FindByEmail(FrmMain& window);       // findkeys.cpp
void FindByCompany(FrmMain& window);     // findkeys.cpp
void DeleteContacts(FrmMain& window);         // deletecontacts.cpp
void DeleteCheckedContacts(FrmMain& window);  // deletecontacts.cpp
void ShowDuplicateDialog(FrmMain& window);    // duplicatecontacts.cpp
void CheckForUpdates(FrmMain& window);   // checkupdates.cpp
void ShowAbout(FrmMain& window);         // helpabout.cpp
void ChooseNoSkin(FrmMain& window);      // skinmenu.cpp
void ChooseSkin(FrmMain& window, int index);  // skinmenu.cpp
void FindContact(FrmMain& window);       // findcontact.cpp
void ExportContactsOE(FrmMain& window);          // exportcontacts.cpp
void ExportContactsMSO(FrmMain& window);         // exportcontacts.cpp
void ExportContactsYahoo(FrmMain& window);       // exportcontacts.cpp
void ExportContactsIncredible(FrmMain& window);  // exportcontacts.cpp
void ImportOE(FrmMain& window);            // importcontacts.cpp
void ImportMSO(FrmMain& window);           // importcontacts.cpp
void ImportYahoo(FrmMain& window);         // importcontacts.cpp
void ImportIncredi(FrmMain& window);       // importcontacts.cpp
void ChooseImportSource(FrmMain& window);  // importcontacts.cpp

namespace {
using K = CommandKind;

// A caption string: language (L) or edition (E) library and number.
struct Caption {
    Library library = Library::None;
    int string = 0;
};
constexpr Caption L(int string) { return {Library::Language, string}; }
constexpr Caption E(int string) { return {Library::Edition, string}; }
constexpr Caption kNoString{};

constexpr Command Row(K kind, const char* name, const char* parent, const char* design, Caption caption,
                      CommandHandler handler = nullptr) {
    Command c{kind, name, parent, design};
    c.library = caption.library;
    c.string = caption.string;
    c.handler = handler;
    return c;
}
constexpr Command Menu(const char* name, const char* parent, const char* design, Caption caption) {
    return Row(K::Menu, name, parent, design, caption);
}
constexpr Command Entry(const char* name, const char* menu, const char* design, Caption caption,
                        CommandHandler handler = nullptr) {
    return Row(K::Entry, name, menu, design, caption, handler);
}
constexpr Command Popup(const char* name, const char* design) {
    return Row(K::Popup, name, nullptr, design, kNoString);
}
constexpr Command Button(const char* key, const char* design, const char* toolTip, int string,
                         QStyle::StandardPixmap picture, CommandHandler handler = nullptr) {
    Command c = Row(K::Button, key, nullptr, design, L(string), handler);
    c.toolTip = toolTip;
    c.picture = picture;
    return c;
}
constexpr Command ButtonEntry(const char* key, const char* button, const char* design, int string,
                              CommandHandler handler = nullptr) {
    return Row(K::ButtonEntry, key, button, design, L(string), handler);
}
// Runs what another command runs: "as mnuAdd_info".
constexpr Command As(Command c, const char* other) {
    c.as = other;
    return c;
}
// Built and captioned, and kept out of sight: nothing turns it on.
constexpr Command Hidden(Command c) {
    c.shown = false;
    return c;
}
constexpr Command Array(Command c, int count, IndexedCommandHandler handler = nullptr) {
    c.count = count;
    c.indexed = handler;
    return c;
}

constexpr const char* kBar = nullptr;

const Command kCommands[] = {
    // ---- the menu bar ----
    Menu("mnuFile", kBar, "&File", L(158)),
    Entry("mnuFileExit", "mnuFile", "E&xit", L(159), UnloadMainWindow),
    Menu("mnuContact", kBar, "&Contact", L(116)),
    Entry("mnuAdd_info", "mnuContact", "&New Contact", L(117), NewContact),
    Entry("mnuDelete_info", "mnuContact", "&Delete Contact", L(118), DeleteContacts),
    Entry("mnuFind_info", "mnuContact", "&Find Contact", L(119), FindContact),
    Menu("mnuSelect", kBar, "&Select", L(151)),
    Entry("mnuSelectAll", "mnuSelect", "&Select All", L(120), SelectAll),
    Entry("mnuInvertSelection", "mnuSelect", "&Invert Selection", L(121), InvertSelection),
    Menu("mnuSynchronize", kBar, "S&ynchronize", L(152)),
    Menu("mnuImport_add", "mnuSynchronize", "&Import Contact", L(122)),
    Entry("mnuImportOE", "mnuImport_add", "&Outlook Express", L(124), ImportOE),
    Entry("mnuImportMSO", "mnuImport_add", "&MS Outlook", L(125), ImportMSO),
    Hidden(Entry("mnuYahoo", "mnuImport_add", "&Yahoo!", L(126), ImportYahoo)),
    Hidden(Entry("mnuImportIncredible", "mnuImport_add", "&Incredible", L(127), ImportIncredi)),
    Menu("mnuExport_add", "mnuSynchronize", "&Export Contact", L(123)),
    Entry("mnuExportOE", "mnuExport_add", "&Outlook Express", L(124), ExportContactsOE),
    Entry("mnuExportMSO", "mnuExport_add", "&MS Outlook", L(125), ExportContactsMSO),
    Hidden(Entry("mnuExportYahoo", "mnuExport_add", "&Yahoo!", L(126), ExportContactsYahoo)),
    Hidden(Entry("mnuExportIncredible", "mnuExport_add", "&Incredible", L(127), ExportContactsIncredible)),
    Menu("mnuCategory", kBar, "&Category", L(128)),
    Entry("mnuManageCategory", "mnuCategory", "&Manage Category", L(129), ManageCategories),
    Hidden(Menu("mnuSkin", kBar, "S&kin", kNoString)),
    Entry("mnuNoSkin", "mnuSkin", "No Skin", kNoString, ChooseNoSkin),
    Row(K::Separator, "mnuSeparator1", "mnuSkin", "", kNoString),
    Array(Entry("mnuSkinList", "mnuSkin", "Skin", kNoString), 10, ChooseSkin),  // "Skin1" to "Skin10"
    Menu("mnuHelp", kBar, "&Help", E(103)),
    Hidden(Entry("mnuHelpWhat", "mnuHelp", "&What is Tandry?", E(104))),  // no action, by design
    Entry("mnuHelpOnline", "mnuHelp", "&Online Support Web Site", E(105), OnlineSupport),
    Hidden(Entry("mnuHelpUpdates", "mnuHelp", "&Check for Updates", E(106), CheckForUpdates)),
    Entry("mnuHelpAbout", "mnuHelp", "&About", E(107), ShowAbout),

    // ---- the pop-up menus ----
    Popup("mnuRightClick", "RightClick"),  // over the list
    Entry("mnuDelete_p", "mnuRightClick", "Delete Contact", L(305), DeleteCheckedContacts),
    Entry("mnuDuplicate_c", "mnuRightClick", "Duplicate Contact", L(328), ShowDuplicateDialog),
    Entry("mnuEdit_p", "mnuRightClick", "Edit Contact", L(306), EditFromMenu),
    Entry("mnuPrint_p", "mnuRightClick", "Print Contact", L(317), PrintContacts),
    Popup("mnuTreeViewRightClick", "TreeViewRightClick"),  // over the tree
    Entry("mnuDeleteCategory", "mnuTreeViewRightClick", "&Delete Category", L(304), DeleteCategory),
    Entry("mnuDuplicateCategory", "mnuTreeViewRightClick", "&Duplicate Category", L(329), DuplicateCategory),
    Entry("mnuEmptyCategory", "mnuTreeViewRightClick", "&Empty Category", L(335), EmptyCategory),
    Entry("mnuRenameCategory", "mnuTreeViewRightClick", "&Rename Category", L(310), RenameCategory),
    // Built and captioned, never popped up and without handlers: a drop always moves.
    Popup("mnuTreeViewMouseUp", "TreeViewMouseUp"),
    Entry("mnuCopyContact", "mnuTreeViewMouseUp", "Copy Contact", L(336)),
    Entry("mnuMoveContact", "mnuTreeViewMouseUp", "Move Contact", L(332)),

    // ---- Toolbar1: each button runs its key, each entry of its drop-down its own ----
    As(Button("new", "New", "New Blank Contact", 150, QStyle::SP_FileIcon), "mnuAdd_info"),
    As(ButtonEntry("newcontact", "new", "New Contact", 117), "mnuAdd_info"),
    ButtonEntry("newcategory", "new", "New Category", 130, NewCategory),
    As(Button("find", "Find", "Find Contact(s)", 131, QStyle::SP_FileDialogContentsView), "mnuFind_info"),
    ButtonEntry("findbyname", "find", "Find by Name", 132, FindByName),
    ButtonEntry("findbyemail", "find", "Find by Email", 133, FindByEmail),
    ButtonEntry("findbycompany", "find", "Find by Company", 134, FindByCompany),
    As(Button("duplicate", "Duplicate", "Duplicate Contact(s)", 135, QStyle::SP_FileDialogDetailedView),
       "mnuDuplicate_c"),
    As(ButtonEntry("duplicateContact", "duplicate", "Duplicate Contact(s)", 136), "mnuDuplicate_c"),
    // Without the pop-up entry's test of the node text.
    ButtonEntry("duplicateCategory", "duplicate", "Duplicate Category", 137, DuplicateCategoryFromToolbar),
    // String 106 of the language library: the numbering has no string of its
    // own for the word.
    As(Button("delete", "Delete", "Delete Contact(s)", 106, QStyle::SP_TrashIcon), "mnuDelete_info"),
    As(ButtonEntry("deleteContact", "delete", "Delete Contact(s)", 138), "mnuDelete_info"),
    As(ButtonEntry("deleteCategory", "delete", "Delete Category", 139), "mnuDeleteCategory"),
    As(Button("export", "Export", "Export Contact(s)", 140, QStyle::SP_ArrowUp), "mnuExportOE"),
    As(ButtonEntry("exportOE", "export", "Export Outlook Express", 141), "mnuExportOE"),
    As(ButtonEntry("exportMSO", "export", "Export MS Outlook", 142), "mnuExportMSO"),
    As(ButtonEntry("exportYahoo", "export", "Export Yahoo", 143), "mnuExportYahoo"),
    As(ButtonEntry("exportIncredible", "export", "Export Incredible", 144), "mnuExportIncredible"),
    // The button asks which address book first; its entries open their forms.
    Button("import", "Import", "Import Contact(s)", 145, QStyle::SP_ArrowDown, ChooseImportSource),
    As(ButtonEntry("importOE", "import", "Import Outlook Express", 146), "mnuImportOE"),
    As(ButtonEntry("importMSO", "import", "Import MS Outlook", 147), "mnuImportMSO"),
    As(ButtonEntry("importYahoo", "import", "Import Yahoo", 148), "mnuYahoo"),
    As(ButtonEntry("importIncredi", "import", "Import Incredible", 149), "mnuImportIncredible"),
};
}  // namespace

std::span<const Command> Commands() { return kCommands; }

const Command* FindCommand(const char* name) {
    for (const Command& c : kCommands)
        if (qstrcmp(c.name, name) == 0) return &c;
    return nullptr;
}

void RunCommand(FrmMain& window, const char* name, int index) {
    const Command* command = FindCommand(name);
    while (command && command->as) command = FindCommand(command->as);
    if (command && command->indexed) command->indexed(window, index);
    else if (command && command->handler) command->handler(window);
}
