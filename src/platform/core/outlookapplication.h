#pragma once
// Microsoft Outlook's automation objects, replaced: an Outlook data file
// (.pst, .ost) read with libpff, seen through the few members of the
// folder object that the Outlook import walks.
#include <QString>
#include <memory>

// The eleven values of a contact item the import takes.
struct ContactItem {
    QString FullName, Email1Address, BusinessTelephoneNumber, Body, CompanyName, JobTitle,
        HomeTelephoneNumber, MobileTelephoneNumber, BusinessFaxNumber, HomeAddress;
};

constexpr int olContactItem = 2;

class MAPIFolder {
public:
    virtual ~MAPIFolder() = default;
    virtual QString Name() const = 0;
    virtual int DefaultItemType() const = 0;  // olContactItem for a contact folder
    virtual int ItemsCount() const = 0;
    // Item n, from 1, as a contact; false when it is no contact (a
    // distribution list, an appointment), as the cast fails in Outlook.
    virtual bool Item(int n, ContactItem& contact) const = 0;
    virtual int FoldersCount() const = 0;
    virtual std::shared_ptr<MAPIFolder> Folder(int i) const = 0;  // from 1
};

// The top folder of the file's message store ("Top of Personal
// Folders"), or null when the file can't be read as an Outlook data file.
std::shared_ptr<MAPIFolder> OpenOutlookDataFile(const QString& path);
