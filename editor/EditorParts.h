// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "compose/Workshop.h"
#include "dialogs/CardPreview.h"
#include "dialogs/Handlers.h"
#include "editor/SetDocument.h"

namespace deckforge {

/// What the parts of the window share. Owned by the window.
struct EditorParts {
    Workshop& Works;
    SetDocument& Document;
    CardPreview& Preview;
    UserPort& User;
};

/// The result of `load`; nothing if it fails.
template <class Load>
[[nodiscard]] std::optional<Picture> PictureIfAny(Load&& load)
{
    try {
        return load();
    } catch (const RunTimeError&) {
        return std::nullopt;
    }
}

[[nodiscard]] inline std::optional<Picture> LoadedPicture(EditorParts& parts, const QString& path)
{
    return PictureIfAny([&] { return parts.Works.Pictures.LoadPicture(path); });
}

} // namespace deckforge
