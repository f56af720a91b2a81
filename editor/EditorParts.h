// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "compose/Workshop.h"
#include "dialogs/CardPreview.h"
#include "dialogs/Handlers.h"
#include "editor/FitOffer.h"
#include "editor/SetDocument.h"

namespace deckforge {

/// What the parts of the window share. Owned by the window.
struct EditorParts {
    Workshop& Works;
    SetDocument& Document;
    CardPreview& Preview;
    UserPort& User;
    FitOffer& Offer;
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

/// The picture of a file that the user has chosen. The status bar says why there is none, and what to do.
[[nodiscard]] inline std::optional<Picture> LoadedPicture(EditorParts& parts, const QString& path)
{
    try {
        return parts.Works.Pictures.LoadPicture(path);
    } catch (const RunTimeError& error) {
        const bool isRejected = error.Number() == ErrorNumber::InvalidPicture;
        const QString advice =
            isRejected ? QStringLiteral(". Open it in an image editor and save it as PNG or JPEG.")
                       : QString();
        parts.User.ReportProblems({error.PlaceAndDescription() + advice});
        return std::nullopt;
    }
}

} // namespace deckforge
