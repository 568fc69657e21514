#pragma once
// The four import forms are one design, built four times: frmsync (Outlook
// Express), frmsync1 (Microsoft Outlook), frmImportYahoo and
// frmImportIncredi. Apart from their sources, everything that sets them
// apart stands in this table, one row a form: the columns of the two
// lists, what a row carries between them, and the rules that differ.
#include <span>

enum class ImportKind { OE, MSO, Yahoo, Incredi };  // the order of frmoption's options

// A column of a list: its heading at design, its width in twips (0 hides
// the column, which still carries its field), and the language string that
// replaces the heading at load (0: none).
struct ListColumn {
    const char* header;
    int width;
    int string = 0;
};

// A field that cmdAdd carries from a ListView1 sub-item to a ListView2
// sub-item; btnRemoveItem carries it back, unless it is lost on the way.
struct CarriedField {
    int listView1;
    int listView2;
    bool back = true;
};

// What the record of an imported row holds.
enum class RecordKeys {
    All,            // every field of the row, notes= included
    NameMailPhone,  // name, e-mail, first telephone and mobile; the others empty, no notes= line at all
};

struct ImportDesign {
    const char* name;     // the form's objectName
    const char* caption;  // the design's caption
    std::span<const ListColumn> listView1;      // positions 1 on; position 0 holds the check box
    std::span<const ListColumn> listView2Tail;  // positions 11 on, after the columns all share
    std::span<const CarriedField> carried;      // ListView2's 1, 2, 9 and 10 come from the two lists

    // ---- the rules that differ ----
    // A row's category: its Outlook folder (ListView1 sub-item 8), turned
    // into an id at commit, with no category list in use; else the one
    // chosen in cbCategory for all rows added at once.
    bool categoryFromFolder;
    int emptyListMessage;        // the load fails with it when ListView1 stays empty; 0: it doesn't
    int sourceFailedMessage;     // shown (title 301) when the source gives false; 0: nothing
    bool closesOnSourceFailure;  // the form closes when the source gives false
    bool closesOnFailedLoad;     // bCloseOnActivate: a load that stops closes the form at activation
    bool sortsAtLoad;            // the load ends with a click on ListView1's header 3
    bool renumbersAfterAdd;      // cmdAdd numbers ListView2 anew
    bool checksDuplicatesInOK;   // cmdOK looks for a name twice in a category (588) before writing
    bool cancelShownDuringCommit;
    RecordKeys recordKeys;
};

const ImportDesign& ImportDesignOf(ImportKind kind);

// ListView2's columns 0 to 10, the same in the four forms.
std::span<const ListColumn> ListView2Head();
