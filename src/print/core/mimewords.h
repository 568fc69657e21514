#pragma once
// Encoded words of mail headers (RFC 2047), UTF-8 in B encoding only.
#include <QString>

// The text with its "=?utf-8?B?...?=" words decoded and joined; the text in
// front of the first word is dropped. The mark is found with its case as
// written, so "=?UTF-8?B?" is not a word. A text without a word, or whose
// words decode to nothing, comes back as it was.
QString DecodeMimeWords(const QString& text);
