// An edit and a removal rewrite the three indexes; the lines of the other
// contacts (here one whose id differs in its first digit only) leave them
// byte for byte, also bytes the code page leaves undefined, which a
// decoding would turn into '?'.
#include <gtest/gtest.h>

#include <QDir>
#include "platform/core/codepage.h"
#include "platform/core/tempfolder.h"
#include "store/core/store.h"
#include "support/printers.h"
#include "support/scratch.h"

namespace {
struct Bytes {
    int codePage;
    QByteArray other;  // the other contact's country and name, as bytes
};
class UntouchedLines : public ::testing::TestWithParam<Bytes> {};
}  // namespace

TEST_P(UntouchedLines, StayByteForByteThroughAnEditAndARemoval) {
    ScratchStore store;
    store.readyForWrites();
    SetAnsiCodePage(GetParam().codePage);
    const QByteArray o = GetParam().other;
    const QByteArray cat = "\"" + o + "\",\"00002\",\"10010\"\r\n", cty = "\"" + o + "\",\"10010\"\r\n",
                     name = "\"10010\",\"" + o + "\"\r\n";
    store.put("cat.dat", "\"Norway\",\"00001\",\"00010\"\r\n" + cat);
    store.put("cty.dat", "\"Norway\",\"00010\"\r\n" + cty);
    store.put("name.dat", "\"00010\",\"Ola\"\r\n" + name);
    store.putRecord({"00010", "Ola", "3", "00001"});
    ContactForm form;
    form.name = "Ola N", form.countryText = "Norway", form.categoryId = "00001";
    ASSERT_TRUE(SaveEditedContact(form, "00010", true));
    const auto indexes = [&] { return QList<QByteArray>{store.file("cat.dat"), store.file("cty.dat"), store.file("name.dat")}; };
    // cty.dat takes the category id in place of the contact's
    EXPECT_EQ(indexes(), QList<QByteArray>({"\"Norway\",\"00001\",\"00010\"\r\n" + cat, "\"Norway\",\"00001\"\r\n" + cty,
                                            "\"00010\",\"Ola N\"\r\n" + name}));
    ReadContactWithId("00010");
    ASSERT_TRUE(RemoveContactFiles("00010"));
    EXPECT_EQ(indexes(), QList<QByteArray>({cat, "\"Norway\",\"00001\"\r\n" + cty, name}));
    SetAnsiCodePage(1252);
}

INSTANTIATE_TEST_SUITE_P(CodePages, UntouchedLines,
                         ::testing::Values(Bytes{932, "Bad\x81\x20lead\xA0\xFD\xFE\xFF"},
                                           Bytes{1253, "Gr\xAA\xD2\xFF"}));
