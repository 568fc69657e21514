#include "export/core/exportshapes.h"

namespace {
// In the order of optOperation. Header and row are the text of the file
// (before the code page): a header is a literal, a row a template whose
// placeholders are filled; the quotes of the quoted shapes belong to the
// templates, and nothing else quotes a value.
const ExportShape kShapes[] = {
    {630, " (Outlook Express)", ExportFileMode::Text, u"  ",
     "First Name,Last Name,Middle Name,Name,Nickname,E-mail Address,Home Street,Home City,"
     "Home Postal Code,Home State,Home Country/Region,Home Phone,Home Fax,Mobile Phone,"
     "Personal Web Page,Business Street,Business City,Business Postal Code,Business State,"
     "Business Country/Region,Business Web Page,Business Phone,Business Fax,Pager,Company,"
     "Job Title,Department,Office Location,Notes",
     ",,,<NAME>,,<EMAIL>,<HOMESTREET>,,,,,<HOMETEL>,<HOMEFAX>,<MOBILE>,,,,,,,,"
     "<BUSINESSPHONE>,,,<COMPANY>,<JOBTITLE>,,,<COMMENT>"},
    // The header is printed in four pieces without a break between them;
    // the spelling "Gobernment" belongs to the shape.
    {631, " (MS Outlook)", ExportFileMode::Text, nullptr,
     "\"Title\",\"First Name\",\"Middle Name\",\"Last Name\",\"Suffix\",\"Company\",\"Department\","
     "\"Job Title\",\"Business Street\",\"Business Street 2\",\"Business Street 3\",\"Business City\","
     "\"Business State\",\"Business Postal Code\",\"Business Country\",\"Home Street\","
     "\"Home Street 2\",\"Home Street 3\",\"Home City\",\"Home State\",\"Home Postal Code\","
     "\"Home Country\",\"Other Street\",\"Other Street 2\",\"Other Street 3\",\"Other City\","
     "\"Other State\",\"Other Postal Code\",\"Other Country\",\"Assistant's Phone\",\"Business Fax\","
     "\"Business Phone\",\"Business Phone 2\",\"Call Back\",\"Car Phone\",\"Company Main Phone\","
     "\"Home Fax\",\"Home Phone\",\"Home Phone 2\",\"ISDN\",\"Mobile Phone\",\"Other Fax\","
     "\"Other Phone\",\"Pager\",\"Primary Phone\",\"Radio Phone\",\"TTY/TDD Phone\","
     "\"Telex\",\"Account\",\"Anniversary\",\"Assistant's Name\",\"Billing Information\",\"Birthday\","
     "\"Business Address PO Box\",\"Categories\",\"Children\",\"Directory Server\",\"E-mail Address\","
     "\"E-mail Type\",\"E-mail Display Name\",\"Email 2 Address\",\"E-mail 2 Type\","
     "\"E-mail 2 Display Name\",\"E-mail 3 Address\",\"E-mail 3 Type\",\"E-mail 3 Display Name\","
     "\"Gender\",\"Gobernment ID Number\",\"Hobby\","
     "\"Home Address PO Box\",\"Initials\",\"Internet Free Busy\",\"Keywords\","
     "\"Language\",\"Location\",\"Manager's Name\",\"Mileage\",\"Notes\",\"Office Location\","
     "\"Organizational ID Number\",\"Other Address PO Box\",\"Priority\",\"Private\",\"Profession\","
     "\"Referred By\",\"Sensitivity\",\"Spouse\",\"User 1\",\"User 2\",\"User 3\",\"User 4\",\"Web Page\"",
     "<DC>,<SC><NAME><SC>,<DC>,<DC>,<DC>,<SC><COMPANY><SC>,<DC>,<SC><JOBTITLE><SC>,<DC>,"
     "<DC>,<DC>,<DC>,<DC>,<DC>,<DC>,<SC><HOMESTREET><SC>,<DC>,<DC>,<DC>,<DC>,<DC>,<DC>,<DC>,"
     "<DC>,<DC>,<DC>,<DC>,<DC>,<DC>,<DC>,<DC>,<SC><BUSINESSPHONE><SC>,<DC>,<DC>,<DC>,<DC>,"
     "<SC><HOMEFAX><SC>,<SC><HOMETEL><SC>,<DC>,<DC>,<SC><MOBILE><SC>,<DC>,<DC>,<DC>,<DC>,"
     "<DC>,<DC>,<DC>,<DC>,<DC>,<DC>,<DC>,<DC>,<DC>,<DC>,<DC>,<DC>,<SC><EMAIL><SC>,<DC>,<DC>,"
     "<DC>,<DC>,<DC>,<DC>,<DC>,<DC>,<DC>,<DC>,<DC>,<DC>,<DC>,<DC>,<DC>,<DC>,<DC>,<DC>,<DC>,"
     "<SC><COMMENT><SC>,<DC>,<DC>,<DC>,<DC>,<DC>,<DC>,<DC>,<DC>,<DC>,<DC>,<DC>,<DC>,<DC>,"
     "<DC>"},
    {632, " (Yahoo)", ExportFileMode::BinaryAtEnd, nullptr,
     "\"First\",\"Middle\",\"Last\",\"NickName\",\"Email\",\"Category\",\"Distribution List\","
     "\"Messenger ID\",\"Home\",\"Work\",\"Pager\",\"Fax\",\"Mobile\",\"Other\",\"Yahoo!Phone\",\"Primary\","
     "\"Alternate Email 1\",\"Alternate Email 2\",\"Personal Website\",\"Business Website\",\"Title\","
     "\"Company\",\"Work Address\",\"Work City\",\"Work State\",\"Work Zip\",\"Work Country\","
     "\"Home Address\",\"Home City\",\"Home State\",\"Home Zip\",\"Home Country\",\"Birthday\","
     "\"Anniversary\",\"Custom 1\",\"Custom 2\",\"Custom 3\",\"Custom 4\",\"Comments\",\"Messenger ID1\","
     "\"Messenger ID2\",\"Messenger ID3\",\"Messenger ID4\",\"Messenger ID5\",\"Messenger ID6\","
     "\"Messenger ID7\",\"Messenger ID8\",\"Messenger ID9\",\"Skype ID\",\"IRC ID\",\"ICQ ID\","
     "\"Google ID\",\"MSN ID\",\"AIM ID\",\"QQ ID\"",
     "<SC><NAME><SC>,<DC>,<DC>,<DC>,<SC><EMAIL><SC>,<DC>,<DC>,<DC>,<SC><HOMETEL><SC>,<DC>,"
     "<SC><BUSINESSPHONE><SC>,<SC><HOMEFAX><SC>,<SC><MOBILE><SC>,<DC>,<DC>,<DC>,<DC>,<DC>,"
     "<DC>,<DC>,<SC><JOBTITLE><SC>,<SC><COMPANY><SC>,<DC>,<DC>,<DC>,<DC>,<DC>,"
     "<SC><HOMESTREET><SC>,<DC>,<DC>,<DC>,<DC>,<DC>,<DC>,<DC>,<DC>,<DC>,<DC>,"
     "<SC><COMMENT><SC>,<DC>,<DC>,<DC>,<DC>,<DC>,<DC>,<DC>,<DC>,<DC>,<DC>,<DC>,<DC>,<DC>,"
     "<DC>,<DC>,<DC>"},
    {633, " (Incredible Mail)", ExportFileMode::Text, u" ",
     "First name,Middle name,Second name,Display name,E-mail,Title,Comment,Favorite,"
     "Home phone,Home street address,Home City,Home State province,Home zip code,"
     "Home Country region,Home fax,Mobile phone,Home web page,Business Phone,Company,"
     "Business city address,Business state province,Business Street address,"
     "Business zip code,Business country region,job title,Business fax,pager,"
     "Business web page",
     ",,,<NAME>,<EMAIL>,,<COMMENT>,,<HOMETEL>,<HOMESTREET>,,,,,<HOMEFAX>,<MOBILE>,,"
     "<BUSINESSPHONE>,<COMPANY>,,,,,,<JOBTITLE>,,,"},
};
}  // namespace

const ExportShape& ExportShapeOf(ExportKind kind) { return kShapes[int(kind)]; }
