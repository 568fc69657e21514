#pragma once
// The category tree's nodes, worked out without a window: one node per line
// of category.dat, with the number of its cat.dat rows in the country of the
// filter. The number is never stored; it is counted again at every rebuild
// from the live files.
#include <QList>
#include <QString>

struct CategoryNode {
    QString key;   // "id" followed by the category id
    QString text;  // the bare name, or name " (" count ")"
    int count = 0;
};

// The node text: the bare name at a count of zero (no " (0)"), otherwise
// name, " (", count, ")". Other commands tell a category with contacts by
// the "(" and the final ")" of this text.
QString CategoryNodeText(const QString& name, int count);

// The nodes, in the order of category.dat, from the texts of category.dat
// and cat.dat as read whole. Both lists are walked by the whole-file rule.
// An empty cat.dat gives bare names and no count at all. A comparison is
// exact, case included; a country text that holds a comma shifts its row's
// fields, and the row counts for nothing.
// False on a failure of the routine (a line with too few fields, a
// one-character field, two categories with one id, a count above the 16-bit
// counter): `nodes` then holds the nodes made before it.
bool CategoryNodesFromText(const QString& categoryText, const QString& catText,
                           const QString& filterCountry, QList<CategoryNode>& nodes);

// The same on the live category.dat and cat.dat of the application folder
// (never the snapshots). A file that can't be read is a failure.
bool LiveCategoryNodes(const QString& filterCountry, QList<CategoryNode>& nodes);

// The order of the tree's sorted children: on the whole text, count
// included, without regard to case, as the tree control sorts.
bool TreeTextLess(const QString& a, const QString& b);

// The category's name from a node text: trimmed, cut before the first "("
// and trimmed again. The cut is at the first "(", so a name that holds "("
// loses the rest. A text that begins with "(" is a failure (RoutineFailure).
QString CategoryNameFromNodeText(const QString& text);
