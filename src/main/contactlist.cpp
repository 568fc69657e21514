// The contact list.
#include "main/frmmain.h"

void FrmMain::RefreshListView1(const QString& country, const QString& key) { ListContacts(country, key); }
void FrmMain::ListContacts(const QString&, const QString&) {}
