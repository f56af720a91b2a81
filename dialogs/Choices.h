// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "imaging/PictureFormats.h"
#include "platform/UserPort.h"

namespace deckforge {

/// The file dialog for pictures. It starts in the folder of the last file dialog unless Folder or FileName is
/// set.
[[nodiscard]] inline FileDialogRequest PictureDialog(const char* title)
{
    return {.Title = QString::fromLatin1(title),
            .FileName = {},
            .Filter =
                QStringLiteral("All pictures|%1|All files(*.*)|*.*|Picture files (*.bmp;*.jpg;*.gif;*.wmf)"
                               "|*.bmp;*.jpg;*.gif;*.wmf")
                    .arg(QStringLiteral("*.") + PictureSuffixes().join(QLatin1String(";*."))),
            .FilterIndex = 1,
            .DefaultExtension = QStringLiteral("bmp")};
}

/// Lets the user change a font; cancelling leaves it unchanged.
inline void ChooseFont(UserPort& user, FontSpec& font)
{
    if (const auto chosen = user.AskFont(QStringLiteral("Choose font"), font))
        font = *chosen;
}

} // namespace deckforge
