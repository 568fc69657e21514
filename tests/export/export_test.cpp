// The four export shapes on a store written by hand in Windows-1252: each
// file byte for byte against the header and the columns of its address
// book, a cancel at once and a Yahoo! file over a longer old one.
#include <gtest/gtest.h>

#include <QDir>
#include "export/core/exportrun.h"
#include "platform/core/codepage.h"
#include "platform/core/tempfolder.h"
#include "store/core/record.h"
#include "support/printers.h"
#include "support/scratch.h"

namespace {
struct Shape {
    ExportKind kind;
    const char* eol;
    bool quoted;
    int fields;
    const char* header;
    // The columns of name, mail, notes, tel1, addr, fax, mobile, tel2, company, designation.
    std::vector<QString> columns;
    const char* addr;  // "Rue 1,Paris" as the shape writes it
};

const Shape kShapes[] = {
    {ExportKind::OE, "\r\n", false, 29,
     "First Name,Last Name,Middle Name,Name,Nickname,E-mail Address,Home Street,Home City,Home Postal Code,Home State,"
     "Home Country/Region,Home Phone,Home Fax,Mobile Phone,Personal Web Page,Business Street,Business City,"
     "Business Postal Code,Business State,Business Country/Region,Business Web Page,Business Phone,Business Fax,Pager,"
     "Company,Job Title,Department,Office Location,Notes",
     {"Name", "E-mail Address", "Notes", "Home Phone", "Home Street", "Home Fax", "Mobile Phone", "Business Phone",
      "Company", "Job Title"},
     "Rue 1  Paris"},
    {ExportKind::MSO, "\r\n", true, 92,
     R"("Title","First Name","Middle Name","Last Name","Suffix","Company","Department","Job Title","Business Street",)"
     R"("Business Street 2","Business Street 3","Business City","Business State","Business Postal Code",)"
     R"("Business Country","Home Street","Home Street 2","Home Street 3","Home City","Home State","Home Postal Code",)"
     R"("Home Country","Other Street","Other Street 2","Other Street 3","Other City","Other State","Other Postal Code",)"
     R"("Other Country","Assistant's Phone","Business Fax","Business Phone","Business Phone 2","Call Back","Car Phone",)"
     R"("Company Main Phone","Home Fax","Home Phone","Home Phone 2","ISDN","Mobile Phone","Other Fax","Other Phone",)"
     R"("Pager","Primary Phone","Radio Phone","TTY/TDD Phone","Telex","Account","Anniversary","Assistant's Name",)"
     R"("Billing Information","Birthday","Business Address PO Box","Categories","Children","Directory Server",)"
     R"("E-mail Address","E-mail Type","E-mail Display Name","Email 2 Address","E-mail 2 Type","E-mail 2 Display Name",)"
     R"("E-mail 3 Address","E-mail 3 Type","E-mail 3 Display Name","Gender","Gobernment ID Number","Hobby",)"
     R"("Home Address PO Box","Initials","Internet Free Busy","Keywords","Language","Location","Manager's Name",)"
     R"("Mileage","Notes","Office Location","Organizational ID Number","Other Address PO Box","Priority","Private",)"
     R"("Profession","Referred By","Sensitivity","Spouse","User 1","User 2","User 3","User 4","Web Page")",
     {"First Name", "E-mail Address", "Notes", "Home Phone", "Home Street", "Home Fax", "Mobile Phone",
      "Business Phone", "Company", "Job Title"},
     "Rue 1,Paris"},
    {ExportKind::Yahoo, "\n", true, 55,
     R"("First","Middle","Last","NickName","Email","Category","Distribution List","Messenger ID","Home","Work","Pager",)"
     R"("Fax","Mobile","Other","Yahoo!Phone","Primary","Alternate Email 1","Alternate Email 2","Personal Website",)"
     R"("Business Website","Title","Company","Work Address","Work City","Work State","Work Zip","Work Country",)"
     R"("Home Address","Home City","Home State","Home Zip","Home Country","Birthday","Anniversary","Custom 1",)"
     R"("Custom 2","Custom 3","Custom 4","Comments","Messenger ID1","Messenger ID2","Messenger ID3","Messenger ID4",)"
     R"("Messenger ID5","Messenger ID6","Messenger ID7","Messenger ID8","Messenger ID9","Skype ID","IRC ID","ICQ ID",)"
     R"("Google ID","MSN ID","AIM ID","QQ ID")",
     // The row puts tel2 under "Pager", one column right of "Work", and that stands.
     {"First", "Email", "Comments", "Home", "Home Address", "Fax", "Mobile", "Pager", "Company", "Title"},
     "Rue 1,Paris"},
    {ExportKind::Incredible, "\r\n", false, 28,
     "First name,Middle name,Second name,Display name,E-mail,Title,Comment,Favorite,Home phone,Home street address,"
     "Home City,Home State province,Home zip code,Home Country region,Home fax,Mobile phone,Home web page,"
     "Business Phone,Company,Business city address,Business state province,Business Street address,Business zip code,"
     "Business country region,job title,Business fax,pager,Business web page",
     {"Display name", "E-mail", "Comment", "Home phone", "Home street address", "Home fax", "Mobile phone",
      "Business Phone", "Company", "job title"},
     "Rue 1 Paris"},
};

QStringList HeaderColumns(const Shape& s) {
    const QString header = QString::fromLatin1(s.header);
    return s.quoted ? header.mid(1, header.size() - 2).split("\",\"") : header.split(',');
}

// The row as the address book reads it: each value under its column, one
// field for each of the header's, the others empty; the quoted shapes quote
// every field.
QString Row(const Shape& s, const std::vector<QString>& values) {
    QStringList fields;
    for (const QString& column : HeaderColumns(s)) {
        const auto at = std::find(s.columns.begin(), s.columns.end(), column);
        const QString value = at == s.columns.end() ? QString() : values[at - s.columns.begin()];
        fields << (s.quoted ? "\"" + value + "\"" : value);
    }
    return fields.join(',') + s.eol;
}

class Export : public ::testing::Test {
protected:
    ScratchStore store;
    void SetUp() override {
        EnsureTempArea();
        QDir().mkpath(store.appFile("data"));
        ClearContactBuffer();
        bCancelExport = false;
        store.put("category.dat", Cp1252("\"00001\",\"Main\"\r\n\"00002\",\"Work\"\r\n"));
        // In "Work" of Norway: a contact, one without a name, one more, one
        // whose record is gone; then one of another category and one of another country.
        store.write(store.tempFile("addr_cat.dat"), "\"Norway\",\"00002\",\"00011\"\r\n\"Norway\",\"00002\",\"00012\"\r\n"
                                                    "\"Norway\",\"00002\",\"00013\"\r\n\"Norway\",\"00002\",\"00014\"\r\n"
                                                    "\"Norway\",\"00001\",\"00015\"\r\n\"Sweden\",\"00002\",\"00016\"\r\n");
        store.putRecord({"00011", "Émile Dupré", "113", "00002", "22 33", "7", "", "", "900 11", "22 34", "Dupré, Fils",
                         "Chef", "Rue 1,Paris", "Line1<NextLine>call <Mobile>", "emile@example.fr"});
        store.putRecord({"00012", "   ", "113", "00002", "", "", "", "", "", "", "Nobody"});
        store.putRecord({"00013", " Bob ", "113", "00002", "", "", "55 66", "", "", "", "Say \"\"Hi\"\"", "Size 6\" guy"});
        store.putRecord({"00015", "Main Man", "113", "00001"});
        store.putRecord({"00016", "Swede", "114", "00002"});
        ExportCountry = "Norway";
        ExportCategoryName = "Work";
        ExportCategoryId = ExportCategoryIdOf("Work");
    }
    ExportEnd write(ExportKind kind, const QString& file, bool cancel = false) {
        return WriteExportFile(ExportShapeOf(kind), store.appFile(file), [cancel] { bCancelExport = cancel; });
    }
};
}  // namespace

// Bob comes twice: the record of the line after him is gone. Every header
// has its address book's count of fields, and every row as many (a comma in
// a value of the unquoted shapes adds one, as it must).
TEST_F(Export, EachShapeByteForByte) {
    ASSERT_EQ(ExportCategoryId, "00002");
    for (const Shape& s : kShapes) {
        SCOPED_TRACE(s.header);
        EXPECT_EQ(HeaderColumns(s).size(), s.fields);
        // "<NextLine>" stays as it stands; a placeholder inside a value is filled too.
        const std::vector<QString> emile = {U("Émile Dupré"), "emile@example.fr", "Line1<NextLine>call 900 11", "22 33",
                                            s.addr, "22 34", "900 11", "", U("Dupré, Fils"), "Chef"};
        const std::vector<QString> bob = {"Bob", "", "", "", "", "", "", "55 66", "Say \"\"Hi\"\"", "Size 6\" guy"};
        const QString file = QString("out%1.csv").arg(int(s.kind));
        ASSERT_EQ(write(s.kind, file), ExportEnd::Done);
        EXPECT_EQ(store.file(file), ToCodePage(s.header + QString(s.eol) + Row(s, emile) + Row(s, bob) + Row(s, bob), 1252));
    }
}

TEST_F(Export, CancelAtOnceAndTheYahooFileOverALongerOldOne) {
    const QByteArray old(3000, 'x');
    ASSERT_EQ(write(ExportKind::Yahoo, "fresh.csv"), ExportEnd::Done);
    const QByteArray fresh = store.file("fresh.csv");
    const struct {
        ExportKind kind;
        bool cancel;
        QByteArray expected;
    } cases[] = {
        {ExportKind::OE, true, QByteArray(ExportShapeOf(ExportKind::OE).header) + "\r\n"},  // the header alone
        {ExportKind::Yahoo, true, old},                             // nothing written yet
        {ExportKind::Yahoo, false, fresh + old.mid(fresh.size())},  // over the old file's start
    };
    for (const auto& c : cases) {
        store.put("old.csv", old);
        EXPECT_EQ(write(c.kind, "old.csv", c.cancel), c.cancel ? ExportEnd::Cancelled : ExportEnd::Done);
        EXPECT_EQ(store.file("old.csv"), c.expected);
    }
}
