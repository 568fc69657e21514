#pragma once
// Where each file of the store lies.
#include <QString>
#include "store/core/ids.h"

QString CategoryFile();                       // <app>/category.dat
QString LiveIndex(const QString& index);      // <app>/<index>.dat, index: cat, cty, name
QString WorkCopy(const QString& index);       // staging: addr_<index>.tmp
QString StagedIndex(const QString& index);    // staging: addr_<index>.dat
QString DataFolder();                         // <app>/data
QString RecordPath(const ContactId& contactId);        // <app>/data/addr<id>.b64
// The same in a data folder already looked up, for walks over many records.
QString RecordPathIn(const QString& dataFolder, const ContactId& contactId);
QString StagedRecordPath(const ContactId& contactId);  // staging: addr<id>.b64
QString CatSnapshot();                        // staging: addr_cat.dat
QString CategorySnapshot();                   // staging: addr_category.dat
QString CategoryBackupFile();                 // staging: addr_category.tmp, category.dat during a change
QString CategoryStagedFile();                 // staging: addr_addcategory.dat, the new category.dat
