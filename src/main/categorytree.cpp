// The category tree and the country filter.
#include "main/frmmain.h"

void FrmMain::LoadCategory() {}
void FrmMain::RefreshCategory() {}
void FrmMain::onCountryClick() {}
QString FrmMain::CategoryNameFromNode(const QString& text) { return text; }
