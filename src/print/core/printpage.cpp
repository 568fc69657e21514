#include "print/core/printpage.h"

#include "print/core/contactblock.h"
#include "print/core/printcontact.h"
#include "print/core/printlist.h"
#include "print/core/printrows.h"
#include "print/core/texttohtml.h"
#include "print/core/widechars.h"
#include "store/core/text.h"

namespace {
const QString kCrLf = QStringLiteral("\r\n");

// "GROUPING" is fixed: it does not come from the string library.
QString GroupHeading() {
    return TextToHtml(kHeadingStart + EncodeWide(QStringLiteral("GROUPING")) + kHeadingEnd + kCrLf);
}
}  // namespace

QString PageHead() {
    return QStringLiteral("<HTML>\r\n<HEAD>\r\n<TITLE></TITLE>\r\n</HEAD>\r\n<BODY bgcolor=white text=black>\r\n");
}

QString PrintCategoryName(const QString& nodeText) {
    QString name = TrimSpaces(nodeText.left(200));
    if (name.contains(u'(')) name.chop(4);
    return name;
}

QString ComposePrintPage(const QString& countryName, const QString& nodeText,
                         const std::function<void(int)>& afterContact) {
    QString page = PageHead() + GroupHeading();
    page += QStringLiteral("<table border=0>") + PrintRow(508, PrintValue(countryName)) +
            PrintRow(501, PrintValue(PrintCategoryName(nodeText))) + QStringLiteral("</table>");
    for (int i = 1; i <= ThePrintList.count(); ++i) {
        LoadPrintContact(ThePrintList.id(i));
        page += BuildContactBlock() + kCrLf;
        afterContact(i);
    }
    return page + QStringLiteral("</BODY>\r\n</HTML>");
}
