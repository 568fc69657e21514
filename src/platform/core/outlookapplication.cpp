#include "platform/core/outlookapplication.h"

#include <libpff.h>
#include <QByteArray>
#include <QFile>

// libpff marks its value-by-type calls as old, yet they are the plain way to
// one value of an item, and the Debian version keeps them.
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"

namespace {
// The open file, shared by every folder taken from it.
struct PffFile {
    libpff_file_t* file = nullptr;
    ~PffFile() {
        if (!file) return;
        libpff_file_close(file, nullptr);
        libpff_file_free(&file, nullptr);
    }
};

struct PffItem {
    libpff_item_t* item = nullptr;
    PffItem() = default;
    PffItem(const PffItem&) = delete;
    ~PffItem() {
        if (item) libpff_item_free(&item, nullptr);
    }
};

// A text value of an item; empty when the item hasn't it.
QString TextValue(libpff_item_t* item, uint32_t entryType) {
    size_t size = 0;
    if (libpff_item_get_entry_value_utf8_string_size(item, 0, entryType, &size, 0, nullptr) != 1 || size == 0)
        return QString();
    QByteArray bytes(qsizetype(size), '\0');
    if (libpff_item_get_entry_value_utf8_string(item, 0, entryType, reinterpret_cast<uint8_t*>(bytes.data()), size, 0,
                                                nullptr) != 1)
        return QString();
    return QString::fromUtf8(bytes.constData());
}

class PffFolder : public MAPIFolder {
public:
    PffFolder(std::shared_ptr<PffFile> file, libpff_item_t* item) : file_(std::move(file)) { folder_.item = item; }

    QString Name() const override { return TextValue(folder_.item, LIBPFF_ENTRY_TYPE_DISPLAY_NAME); }
    int DefaultItemType() const override {
        return TextValue(folder_.item, LIBPFF_ENTRY_TYPE_CONTAINER_CLASS).startsWith("IPF.Contact") ? olContactItem : 0;
    }
    int ItemsCount() const override {
        int count = 0;
        return libpff_folder_get_number_of_sub_messages(folder_.item, &count, nullptr) == 1 ? count : 0;
    }
    bool Item(int n, ContactItem& c) const override {
        PffItem message;
        uint8_t type = 0;
        if (libpff_folder_get_sub_message(folder_.item, n - 1, &message.item, nullptr) != 1 ||
            libpff_item_get_type(message.item, &type, nullptr) != 1 || type != LIBPFF_ITEM_TYPE_CONTACT)
            return false;
        libpff_item_t* m = message.item;
        c.FullName = TextValue(m, LIBPFF_ENTRY_TYPE_DISPLAY_NAME);
        c.Email1Address = TextValue(m, LIBPFF_ENTRY_TYPE_CONTACT_EMAIL_ADDRESS_1);
        c.BusinessTelephoneNumber = TextValue(m, LIBPFF_ENTRY_TYPE_CONTACT_BUSINESS_PHONE_NUMBER_1);
        c.Body = TextValue(m, LIBPFF_ENTRY_TYPE_MESSAGE_BODY_PLAIN_TEXT);
        c.CompanyName = TextValue(m, LIBPFF_ENTRY_TYPE_CONTACT_COMPANY_NAME);
        c.JobTitle = TextValue(m, LIBPFF_ENTRY_TYPE_CONTACT_JOB_TITLE);
        c.HomeTelephoneNumber = TextValue(m, LIBPFF_ENTRY_TYPE_CONTACT_HOME_PHONE_NUMBER);
        c.MobileTelephoneNumber = TextValue(m, LIBPFF_ENTRY_TYPE_CONTACT_MOBILE_PHONE_NUMBER);
        c.BusinessFaxNumber = TextValue(m, LIBPFF_ENTRY_TYPE_CONTACT_BUSINESS_FAX_NUMBER);
        c.HomeAddress = TextValue(m, kHomeAddress);
        return true;
    }
    int FoldersCount() const override {
        int count = 0;
        return libpff_folder_get_number_of_sub_folders(folder_.item, &count, nullptr) == 1 ? count : 0;
    }
    std::shared_ptr<MAPIFolder> Folder(int i) const override {
        libpff_item_t* child = nullptr;
        if (libpff_folder_get_sub_folder(folder_.item, i - 1, &child, nullptr) != 1) return nullptr;
        return std::make_shared<PffFolder>(file_, child);
    }

private:
    static constexpr uint32_t kHomeAddress = 0x801a;  // the contact's home address, a named value
    std::shared_ptr<PffFile> file_;
    PffItem folder_;
};

// The message store names its top folder by an entry id whose last four
// bytes are the folder's identifier.
libpff_item_t* TopFolder(libpff_file_t* file) {
    constexpr uint32_t kIpmSubtreeEntryId = 0x35e0;
    PffItem store;
    uint8_t entryId[24] = {};
    libpff_item_t* top = nullptr;
    if (libpff_file_get_message_store(file, &store.item, nullptr) == 1 &&
        libpff_item_get_entry_value_binary_data(store.item, 0, kIpmSubtreeEntryId, entryId, sizeof entryId, 0,
                                                nullptr) == 1) {
        const uint32_t id = entryId[20] | entryId[21] << 8 | entryId[22] << 16 | uint32_t(entryId[23]) << 24;
        if (libpff_file_get_item_by_identifier(file, id, &top, nullptr) == 1) return top;
    }
    return nullptr;
}
}  // namespace

std::shared_ptr<MAPIFolder> OpenOutlookDataFile(const QString& path) {
    auto file = std::make_shared<PffFile>();
    if (libpff_file_initialize(&file->file, nullptr) != 1) return nullptr;
    if (libpff_file_open(file->file, QFile::encodeName(path).constData(), LIBPFF_OPEN_READ, nullptr) != 1) {
        libpff_file_free(&file->file, nullptr);
        return nullptr;
    }
    libpff_item_t* top = TopFolder(file->file);
    return top ? std::make_shared<PffFolder>(file, top) : nullptr;
}
