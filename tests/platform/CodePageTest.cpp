// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/CodePage.h"
#include "support/Failures.h"

namespace deckforge {

TEST(CodePage, EveryByteSurvivesARoundTrip)
{
    QByteArray all;
    for (int byte = 0; byte < 256; ++byte)
        all.append(static_cast<char>(byte));
    QByteArray back;
    AppendInCodePage(back, FromCodePage(all));
    EXPECT_EQ(back, all);
    EXPECT_EQ(FromCodePage("\x80\x92\x9F"), "€’Ÿ");
}

TEST(CodePage, AnUnencodableCharacterIsNamedAndLeavesTheBytesUnchanged)
{
    QByteArray bytes = "before";
    const auto refusal = [&](const QString& text) {
        try {
            AppendInCodePage(bytes, text);
        } catch (const RunTimeError& error) {
            EXPECT_EQ(error.Number(), ErrorNumber::InvalidCall);
            return error.Description();
        }
        return QString("none: the character was written");
    };
    EXPECT_TRUE(refusal("naïve Ł").contains("\"Ł\" (U+0141)"));
    EXPECT_TRUE(refusal("a 🐉").contains("(U+1F409)"));
    EXPECT_EQ(bytes, "before");
}

} // namespace deckforge
