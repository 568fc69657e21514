// String libraries: "number=text" lines, looked up in the code page and cut
// at 382 bytes without splitting a double-byte character.
#include <gtest/gtest.h>

#include "platform/core/codepage.h"
#include "platform/core/stringlib.h"
#include "support/printers.h"
#include "support/scratch.h"

static LibraryHandle Library(const ScratchStore& store, const QByteArray& utf8) {
    store.put("lib.dll", utf8);
    return LoadLibrary(store.appFile("lib.dll"));
}
static QByteArray Lookup(LibraryHandle lib, int id, int limit = 383) {
    QByteArray buffer;
    const int n = LoadStringA(lib, id, buffer, limit);
    EXPECT_EQ(n, buffer.size()) << id;
    return buffer;
}

TEST(StringLibrary, LinesCommentsAndEscapes) {
    ScratchStore store;
    const LibraryHandle lib = Library(store, "\xEF\xBB\xBF# comment=1\r\n100=OK\r\n\r\n  # 101=hidden\n"
                                             "101=Line one\\nLine two\n 102 =C:\\\\temp\\x \r\n103=\n104=first\n"
                                             "104=second\njunk line\n105=Caf\xC3\xA9");
    ASSERT_NE(lib, 0);
    const std::pair<int, const char*> rows[] = {{100, "OK"},    {101, "Line one\r\nLine two"}, {102, "C:\\temp\\x "},
                                                {103, ""},      {104, "first"},                {105, "Caf\xE9"},
                                                {0, ""},        {999, ""}};
    for (const auto& [id, text] : rows) EXPECT_EQ(Lookup(lib, id), QByteArray(text)) << id;
    FreeLibrary(lib);
    EXPECT_EQ(Lookup(lib, 100), QByteArray());
    EXPECT_EQ(LoadLibrary(store.appFile("absent.dll")), 0);
}

TEST(StringLibrary, CutAt382BytesOfTheCodePage) {
    ScratchStore store;
    const LibraryHandle lib = Library(store, "1=" + QByteArray(400, 'a') + "\n2=" + QString(400, QChar(0xE9)).toUtf8() +
                                                 "\n7=a" + QString(200, QChar(0x65E5)).toUtf8() + "\n");
    EXPECT_EQ(Lookup(lib, 1), QByteArray(382, 'a'));
    EXPECT_EQ(Lookup(lib, 2), QByteArray(382, '\xE9'));  // bytes, not UTF-8
    SetAnsiCodePage(932);
    // 1 + 2 * 190 = 381 bytes fit in 382; the 191st character would not.
    EXPECT_EQ(Lookup(lib, 7), ToCodePage("a" + QString(190, QChar(0x65E5)), 932));
    EXPECT_EQ(Lookup(lib, 7, 4), QByteArray("a\x93\xFA"));
    SetAnsiCodePage(1252);
    EXPECT_EQ(Lookup(lib, 7), "a" + QByteArray(200, '?'));
    FreeLibrary(lib);
}
