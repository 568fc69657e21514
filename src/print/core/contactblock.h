#pragma once
// One contact of the print page: its name as a heading and a table of its
// fields, each label and value escaped on its own.
#include <QString>

// The HTML of ContactBuffer. Empty fields keep their row: a contact without
// a fax prints the label and " : ".
QString BuildContactBlock();
