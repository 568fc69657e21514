#pragma once
// The print page: a head, the group heading, the country and category of the
// main window, a block per contact of the print list, the end.
#include <QString>
#include <functional>

// The five lines of the head, each ended by CR LF; the title stays empty.
QString PageHead();

// The category's name from the selected node's text: its first 200
// characters trimmed of spaces, and, when it holds "(", without its last four
// characters (the contact count).
QString PrintCategoryName(const QString& nodeText);

// The page for the print list: after each contact, `afterContact(position)`.
// A missing record prints the contact before it again; a country that is no
// number fails (RoutineFailure).
QString ComposePrintPage(const QString& countryName, const QString& nodeText,
                         const std::function<void(int)>& afterContact);
