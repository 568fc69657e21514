#include "import/core/outlookfolders.h"

#include "platform/core/appfolder.h"
#include "store/core/categories.h"
#include "store/core/text.h"

namespace {
SourceRow RowOf(const ContactItem& c, const QString& folder) {
    const QString mail = TrimSpaces(c.Email1Address);
    QString name = TrimSpaces(c.FullName);
    if (name.isEmpty()) name = mail;
    return {name, mail, TrimSpaces(c.BusinessTelephoneNumber), TrimSpaces(c.Body), TrimSpaces(c.CompanyName),
            TrimSpaces(c.JobTitle), folder, TrimSpaces(c.HomeTelephoneNumber), TrimSpaces(c.MobileTelephoneNumber),
            TrimSpaces(c.BusinessFaxNumber), TrimSpaces(c.HomeAddress)};
}
}  // namespace

void CollectContactFolders(const std::shared_ptr<MAPIFolder>& folder, FolderCollection& collection) {
    if (folder->ItemsCount() >= 1) collection.push_back(folder);
    for (int i = 1; i <= folder->FoldersCount(); ++i)
        if (const auto child = folder->Folder(i)) CollectContactFolders(child, collection);
}

bool LoadOutlookFolders(const std::shared_ptr<MAPIFolder>& first, SourceSink& sink,
                        const std::function<void(const QString& names)>& addCategories) {
    if (!first) return false;
    FolderCollection collection;
    for (int i = 1; i <= first->FoldersCount(); ++i) {
        const auto child = first->Folder(i);
        if (child && child->DefaultItemType() == olContactItem) CollectContactFolders(child, collection);
    }
    QString names;
    for (const auto& folder : collection) names += folder->Name() + "\r\n";
    addCategories(names);
    // The category list is read as the import reads it; the id found isn't
    // used, since the commit looks each name up again.
    QList<CategoryLine> categories;
    if (!ReadCategoryLines(AppFile("category.dat"), categories)) return false;

    int counter = 0;
    for (const auto& folder : collection) {
        const int count = folder->ItemsCount();
        const QString name = folder->Name();
        sink.ShowCount(counter, count);
        for (int n = 1; n <= count; ++n) {
            ContactItem contact;
            if (!folder->Item(n, contact)) return false;
            sink.AddRow(RowOf(contact, name));
            // The progress counter keeps its oddity: it starts at 1 for each
            // item and moves one step at most, so it stays near its start.
            counter = 1;
            if (counter + 1 < count) counter = counter + 1;
        }
    }
    return true;
}
