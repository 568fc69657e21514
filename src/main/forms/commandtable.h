#pragma once
// The commands of the main window, in one table: every menu, pop-up menu and
// toolbar entry with its place, its design caption, the library string that
// replaces the caption at load, and what it runs. The window builds its menus
// and its toolbar from the table; a new command is a row there and a handler
// in a file of its own.
#include <QStyle>
#include <span>

class FrmMain;

// What a command runs. It gets the window; a failure it raises ends it and
// is noted on the error stream (RunHandler).
using CommandHandler = void (*)(FrmMain& window);
// What an entry of an array runs: it gets the entry's "Index" as well.
using IndexedCommandHandler = void (*)(FrmMain& window, int index);

enum class CommandKind {
    Menu,         // a menu of the bar, or a menu inside a menu
    Entry,        // an entry of a menu or a pop-up menu
    Separator,    // a named separator line of a menu
    Popup,        // a pop-up menu, never in the bar
    Button,       // a button of Toolbar1, with a drop-down of entries
    ButtonEntry,  // an entry of a button's drop-down
};

enum class Library { None, Language, Edition };

struct Command {
    CommandKind kind;
    const char* name;    // the objectName; for the toolbar, the button's or entry's key
    const char* parent;  // the menu or button it stands in; none for the bar's menus, pop-ups and buttons
    const char* design;  // the caption at design; it stands when the library gives nothing
    Library library = Library::None;
    int string = 0;                    // the caption's string number at load
    CommandHandler handler = nullptr;  // none: the command does nothing
    const char* as = nullptr;          // runs what the command of this name runs
    bool shown = true;                 // false: built, and kept out of sight for good
    int count = 1;                     // more than 1: an array of entries of one name, told apart by "Index"
    IndexedCommandHandler indexed = nullptr;  // an array's handler, in place of `handler`
    const char* toolTip = nullptr;     // buttons only
    QStyle::StandardPixmap picture = QStyle::SP_CustomBase;  // buttons only
};

// The rows, in the order the window builds them.
std::span<const Command> Commands();
// The row of that name, or none.
const Command* FindCommand(const char* name);
// Runs what the named command runs, following its `as`; nothing when it has
// no handler. `index` is the entry's of an array. A failure passes to the caller.
void RunCommand(FrmMain& window, const char* name, int index = 0);
