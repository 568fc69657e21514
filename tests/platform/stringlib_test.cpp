#include <gtest/gtest.h>

#include <QString>
#include "platform/core/codepage.h"
#include "platform/core/stringlib.h"
#include "support/scratch.h"

namespace {
QString U(const char* utf8) { return QString::fromUtf8(utf8); }

// Writes `text` (UTF-8) as a library and loads it.
LibraryHandle Library(const ScratchStore& store, const QByteArray& text) {
    const QString path = store.appFile("lib.dll");
    store.write(path, text);
    return LoadLibrary(path);
}
}  // namespace

TEST(StringLibrary, LinesCommentsAndEscapes) {
    ScratchStore store;
    const LibraryHandle lib = Library(store,
        "\xEF\xBB\xBF# comment=1\r\n"
        "100=OK\r\n"
        "\r\n"
        "  # 101=hidden\n"
        "101=Line one\\nLine two\n"
        " 102 =C:\\\\Vellumark\\\\temp\\x \r\n"
        "103=\n"
        "104=first\n"
        "104=second\n"
        "junk line\n"
        "105=Caf\xC3\xA9");
    ASSERT_NE(lib, 0);

    QByteArray buffer;
    EXPECT_EQ(LoadStringA(lib, 100, buffer, 383), 2);
    EXPECT_EQ(buffer, QByteArray("OK"));
    EXPECT_EQ(LoadStringA(lib, 101, buffer, 383), 18);
    EXPECT_EQ(buffer, QByteArray("Line one\r\nLine two"));
    EXPECT_EQ(LoadStringA(lib, 102, buffer, 383), 20);
    EXPECT_EQ(buffer, QByteArray("C:\\Vellumark\\temp\\x "));
    EXPECT_EQ(LoadStringA(lib, 104, buffer, 383), 5);
    EXPECT_EQ(buffer, QByteArray("first"));
    EXPECT_EQ(LoadStringA(lib, 105, buffer, 383), 4);
    EXPECT_EQ(buffer, QByteArray("Caf\xE9"));

    // Empty, absent, commented out: nothing.
    EXPECT_EQ(LoadStringA(lib, 103, buffer, 383), 0);
    EXPECT_EQ(LoadStringA(lib, 0, buffer, 383), 0);
    EXPECT_EQ(LoadStringA(lib, 999, buffer, 383), 0);
    EXPECT_EQ(buffer, QByteArray());

    EXPECT_EQ(LoadStringA(0, 100, buffer, 383), 0);
    FreeLibrary(lib);
    EXPECT_EQ(LoadStringA(lib, 100, buffer, 383), 0);
    EXPECT_EQ(LoadLibrary(store.appFile("absent.dll")), 0);
}

TEST(StringLibrary, CutInCodePageBytes) {
    ScratchStore store;
    const QByteArray e200 = QString(200, QChar(0xE9)).toUtf8();  // 400 bytes of UTF-8
    const QByteArray e400 = QString(400, QChar(0xE9)).toUtf8();  // 800 bytes of UTF-8
    const LibraryHandle lib = Library(store,
        "1=" + QByteArray(400, 'a') + "\n2=" + e200 + "\n3=" + e400 + "\n4=" + QByteArray(382, 'b') + "\n");
    ASSERT_NE(lib, 0);

    QByteArray buffer;
    EXPECT_EQ(LoadStringA(lib, 1, buffer, 383), 382);
    EXPECT_EQ(buffer, QByteArray(382, 'a'));
    EXPECT_EQ(LoadStringA(lib, 2, buffer, 383), 200);
    EXPECT_EQ(buffer, QByteArray(200, '\xE9'));
    EXPECT_EQ(LoadStringA(lib, 3, buffer, 383), 382);
    EXPECT_EQ(buffer, QByteArray(382, '\xE9'));
    EXPECT_EQ(LoadStringA(lib, 4, buffer, 383), 382);
    EXPECT_EQ(LoadStringA(lib, 4, buffer, 10), 9);
    EXPECT_EQ(buffer, QByteArray(9, 'b'));
    EXPECT_EQ(LoadStringA(lib, 4, buffer, 1), 0);
    FreeLibrary(lib);
}

TEST(StringLibrary, DoubleByteTextIsNotCutInsideACharacter) {
    ScratchStore store;
    QString text = "a" + QString(200, QChar(0x65E5));  // 'a' and 200 of 日
    const LibraryHandle lib = Library(store, "7=" + text.toUtf8() + "\n");
    ASSERT_NE(lib, 0);
    SetAnsiCodePage(932);

    QByteArray buffer;
    // 1 + 2 * 190 = 381 bytes fit in 382; the 191st character would not.
    EXPECT_EQ(LoadStringA(lib, 7, buffer, 383), 381);
    EXPECT_EQ(FromCodePage(buffer, 932), text.left(191));
    EXPECT_EQ(LoadStringA(lib, 7, buffer, 4), 3);
    EXPECT_EQ(buffer, QByteArray("a\x93\xFA"));

    SetAnsiCodePage(1252);
    EXPECT_EQ(LoadStringA(lib, 7, buffer, 383), 201);
    EXPECT_EQ(buffer, "a" + QByteArray(200, '?'));
    FreeLibrary(lib);
}

TEST(StringLibrary, ExecutableTable) {
    EXPECT_EQ(LoadResString(997), U("TA"));
    EXPECT_EQ(LoadResString(998), U("Tandry"));
    EXPECT_EQ(LoadResString(1000), U("https://tandry.example.org/support/"));
    EXPECT_EQ(LoadResString(1001), U("https://tandry.example.org/support/checkupdates.php"));
    EXPECT_EQ(LoadResString(999), QString());
    EXPECT_EQ(LoadResString(0), QString());
}
