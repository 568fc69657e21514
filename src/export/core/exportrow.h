#pragma once
// A row of an export file: the shape's template with its placeholders
// filled from the contact in ContactBuffer. No CSV writer is involved: a
// value is quoted only where the template's own quote marks surround it,
// and a double quote inside a value is not doubled.
#include <QString>
#include "export/core/exportshapes.h"
#include "store/core/ids.h"

// Reads the eleven keys an export takes (infoname, mail, category, company,
// designation, notes, tel1, tel2, mobile, fax, addr) into ContactBuffer as
// they stand: "<NextLine>" stays a marker. False when the record is
// missing; the buffer then keeps the contact read before it.
bool FetchExportContact(const ContactId& contactId);

// The template with every placeholder replaced, in the order "<NAME>",
// "<EMAIL>", "<COMMENT>", "<HOMETEL>", "<HOMESTREET>", "<HOMEFAX>",
// "<MOBILE>", "<BUSINESSPHONE>", "<COMPANY>", "<JOBTITLE>", "<DC>" (two
// double quotes), "<SC>" (one), each found without regard to case, each
// value trimmed of spaces. A value that holds a later placeholder has it
// replaced too.
QString FillExportRow(const QString& rowTemplate);

// The row of the shape for the contact in ContactBuffer. The address's
// commas are first treated as the shape says, in the buffer itself.
QString BuildExportRow(const ExportShape& shape);
