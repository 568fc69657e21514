#include "print/core/printlist.h"

PrintList ThePrintList;

void ClearPrintList() { ThePrintList = PrintList(); }

void AddToPrintList(const QString& id, const QString& name, const QString& mail) {
    ThePrintList.ids << id;
    ThePrintList.names << name;
    ThePrintList.mails << mail;
}
