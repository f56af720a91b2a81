// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/CodePage.h"

#include <algorithm>
#include <array>

namespace deckforge {

namespace {

constexpr char16_t FirstSpecial = 0x80;
constexpr char16_t LastSpecial = 0x9F;
constexpr char16_t LastPlain = 0xFF;

/// The characters of the bytes 0x80 to 0x9F. All other bytes have the value of their character.
constexpr std::array<char16_t, LastSpecial - FirstSpecial + 1> Specials = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

bool IsSpecialByte(char16_t c)
{
    return c >= FirstSpecial && c <= LastSpecial;
}

/// Whether the byte has the value of the character.
bool IsPlain(char16_t c)
{
    return c <= LastPlain && !IsSpecialByte(c);
}

} // namespace

QString FromCodePage(QByteArrayView bytes)
{
    QString text = QString::fromLatin1(bytes);
    const bool plain =
        std::none_of(bytes.begin(), bytes.end(), [](char c) { return IsSpecialByte(static_cast<uchar>(c)); });
    if (plain)
        return text;
    for (QChar& c : text) {
        if (IsSpecialByte(c.unicode()))
            c = QChar(Specials[c.unicode() - FirstSpecial]);
    }
    return text;
}

bool IsInCodePage(QStringView text)
{
    // Fast path: nearly all texts have only characters below the special ones.
    char16_t bits = 0;
    for (const QChar c : text)
        bits |= c.unicode();
    if (bits < FirstSpecial)
        return true;
    return std::all_of(text.utf16(), text.utf16() + text.size(), [](char16_t c) {
        return IsPlain(c) || std::find(Specials.begin(), Specials.end(), c) != Specials.end();
    });
}

void AppendInCodePage(QByteArray& bytes, QStringView text)
{
    const qsizetype before = bytes.size();
    bytes.resize(before + text.size());
    char* const out = bytes.data() + before;
    const char16_t* const characters = text.utf16();
    bool isPlain = true; // all bytes so far have the value of their character
    for (qsizetype i = 0; i < text.size(); ++i) {
        const char16_t c = characters[i];
        isPlain = isPlain && IsPlain(c);
        out[i] = static_cast<char>(c);
    }
    for (qsizetype i = 0; !isPlain && i < text.size(); ++i) {
        const char16_t c = characters[i];
        if (IsPlain(c))
            continue;
        const auto special = std::find(Specials.begin(), Specials.end(), c);
        out[i] =
            special == Specials.end() ? '?' : static_cast<char>(FirstSpecial + (special - Specials.begin()));
    }
}

} // namespace deckforge
