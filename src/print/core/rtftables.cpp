#include "print/core/rtftables.h"

#include "print/core/rtfstate.h"
#include "print/core/rtftext.h"

QString CutGroup(QString& text, qsizetype at) {
    qsizetype start = 0;
    for (qsizetype i = at, depth = 1; i >= 0; --i) {
        depth += text[i] == u'}' ? 1 : text[i] == u'{' ? -1 : 0;
        if (depth == 0) {
            start = i;
            break;
        }
    }
    qsizetype end = text.size();  // index of the first character left behind the group
    for (qsizetype i = at, depth = 1; i < text.size(); ++i) {
        depth += text[i] == u'{' ? 1 : text[i] == u'}' ? -1 : 0;
        if (depth == 0) {
            // Held to the length: a group that closes on the text's last
            // character leaves that brace behind.
            end = qMin(i + 1, text.size() - 1);
            break;
        }
    }
    if (end == text.size()) end = text.size() - 1;
    const QString group = text.mid(start, end - start);
    text = ReplaceAll(text.left(start) + text.mid(end), QStringLiteral("\r\n\r\n"), QStringLiteral("\r\n"));
    return group;
}

namespace {
// One channel of a colour: the character behind the word, and the next two
// where they are digits, as two hexadecimal digits (or more, above 255).
QString Channel(const QString& group, qsizetype word, qsizetype length) {
    if (word < 0) return QStringLiteral("00");
    const qsizetype at = word + length;
    QString digits = group.mid(at, 1);
    for (qsizetype k = at + 1; k < at + 3 && k < group.size() && group[k].isDigit(); ++k) digits += group[k];
    return QString::number(digits.toInt(), 16).toUpper().rightJustified(2, u'0');
}

qsizetype After(const QString& group, const char* word, qsizetype from) {
    return from < 0 ? -1 : group.indexOf(QLatin1String(word), from);
}
}  // namespace

void ReadColorTable(const QString& group) {
    const qsizetype begin = group.indexOf(QStringLiteral("\\colortbl"));
    const qsizetype end = After(group, ";}", begin);
    if (end < 0) return;
    // The automatic first entry has no "\red": colour 1 is the first named.
    for (qsizetype red = After(group, "\\red", begin); red >= 0 && red < end; red = After(group, "\\red", red + 1)) {
        const qsizetype green = After(group, "\\green", red);
        const qsizetype blue = After(group, "\\blue", green);
        RtfModule.ColorTable << Channel(group, red, 4) + Channel(group, green, 6) + Channel(group, blue, 5);
    }
}

void ReadFontTable(const QString& group) {
    const qsizetype begin = group.indexOf(QStringLiteral("\\fonttbl"));
    const qsizetype end = After(group, ";}}", begin);
    if (end < 0) return;
    qsizetype font = After(group, "\\f0", begin);
    for (int n = 0; font >= 0 && font <= end; ++n) {
        const qsizetype space = group.indexOf(u' ', font);
        const qsizetype semicolon = space < 0 ? -1 : group.indexOf(u';', space);
        if (semicolon < 0) return;
        RtfModule.FontTable << group.mid(space + 1, semicolon - space - 1);
        font = group.indexOf(QStringLiteral("\\f") + QString::number(n + 1), font);
    }
}
