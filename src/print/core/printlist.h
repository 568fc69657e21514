#pragma once
// The print list: the selected rows of the main window's list, filled before
// frmprint opens. Three arrays of one length, addressed from 1 in list order.
#include <QString>
#include <QStringList>

struct PrintList {
    QStringList ids, names, mails;
    int count() const { return int(ids.size()); }  // the highest position
    QString id(int position) const { return ids.value(position - 1); }
};
extern PrintList ThePrintList;

void ClearPrintList();
void AddToPrintList(const QString& id, const QString& name, const QString& mail);
