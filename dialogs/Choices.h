#pragma once

#include "platform/UserPort.h"

namespace deckforge {

/// The dialog in which a picture file is chosen, wherever the program asks for one. It starts where the last
/// dialog was, unless a folder or a file is put in.
[[nodiscard]] inline FileDialogRequest PictureDialog(const char* title)
{
    return {.Title = QString::fromLatin1(title),
            .FileName = {},
            .Filter = QStringLiteral("All files(*.*)|*.*|Picture files (*.bmp;*.jpg;*.gif;*.wmf)"
                                     "|*.bmp;*.jpg;*.gif;*.wmf"),
            .FilterIndex = 2,
            .DefaultExtension = QStringLiteral("bmp"),
            .Folder = {}};
}

/// Lets the user change a font of the set; a cancel leaves it.
inline void ChooseFont(UserPort& user, FontSpec& font)
{
    if (const auto chosen = user.AskFont(QStringLiteral("Choose font"), font))
        font = *chosen;
}

} // namespace deckforge
