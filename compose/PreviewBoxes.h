// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "compose/CardTemplates.h"

#include <vector>

namespace deckforge {

enum class BoxLook {
    Surface,    ///< shows its pixels
    Picture,    ///< shows its pixels once it has a picture
    Label,      ///< shows its caption
    Frame,      ///< a window through which its child is seen
    WhiteFrame, ///< the same, white where the child ends
    Outline,    ///< shows its border alone
};

/// How the user can move a box.
enum class DragAxis { None, UpDown, LeftRight, All };

/// A box as a preview paints it. Its place counts from inside the border of its parent, which also cuts it
/// off and hides it; a box without a parent stands on the preview itself.
struct PreviewBox {
    const Box* Shown;
    const Box* Parent;
    BoxLook Look;
    DragAxis Drag = DragAxis::None;
};

// The boxes of a template in the order in which they are painted: parents before children, labels behind
// everything that has pixels, the symbol in front.
[[nodiscard]] std::vector<PreviewBox> PreviewBoxes(const CardTemplate& card);
[[nodiscard]] std::vector<PreviewBox> PreviewBoxes(const LargeCardTemplate& card);
[[nodiscard]] std::vector<PreviewBox> PreviewBoxes(const CharacterTemplate& card);
[[nodiscard]] std::vector<PreviewBox> PreviewBoxes(const PlayingPieceTemplate& piece);
[[nodiscard]] std::vector<PreviewBox> PreviewBoxes(const NewBackTemplate& back);

/// Those of all templates.
[[nodiscard]] std::vector<PreviewBox> PreviewBoxes(const CardTemplates& templates);

} // namespace deckforge
