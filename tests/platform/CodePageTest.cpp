// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/CodePage.h"

#include <gtest/gtest.h>

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

} // namespace deckforge
