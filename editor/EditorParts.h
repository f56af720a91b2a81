#pragma once

#include "compose/Workshop.h"
#include "dialogs/CardPreview.h"
#include "dialogs/Handlers.h"
#include "editor/SetDocument.h"

namespace deckforge {

/// What the parts of the window work on together. The window owns it.
struct EditorParts {
    Workshop& Works;
    SetDocument& Document;
    CardPreview& Preview;
    UserPort& User;
};

/// What a picture that cannot be loaded is: nothing, and the preview stays as it was.
template <class Load>
[[nodiscard]] std::optional<Picture> Attempted(Load&& load)
{
    try {
        return load();
    } catch (const RunTimeError&) {
        return std::nullopt;
    }
}

[[nodiscard]] inline std::optional<Picture> LoadedPicture(EditorParts& parts, const QString& path)
{
    return Attempted([&] { return parts.Works.Pictures.LoadPicture(path); });
}

} // namespace deckforge
