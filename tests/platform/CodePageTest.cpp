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
    EXPECT_EQ(FromCodePage("\x80\x92\x9F"), QStringLiteral("€’Ÿ"));
}

TEST(CodePage, ACharacterThatItLacksIsNamedAndLeavesTheBytesAsTheyWere)
{
    QByteArray bytes = "before";
    try {
        AppendInCodePage(bytes, QStringLiteral("naïve Ł"));
        FAIL() << "the character was written";
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.Number(), ErrorNumber::InvalidCall);
        EXPECT_TRUE(error.Description().contains(QStringLiteral("\"Ł\" (U+0141)")));
    }
    EXPECT_EQ(bytes, "before");

    try {
        AppendInCodePage(bytes, QStringLiteral("a 🐉"));
        FAIL() << "the character was written";
    } catch (const RunTimeError& error) {
        EXPECT_TRUE(error.Description().contains(QStringLiteral("(U+1F409)")));
    }
}

} // namespace deckforge
