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
    WhiteFrame, ///< a Frame with a white background
    Outline,    ///< shows its border alone
};

/// How the user can move a box.
enum class DragAxis { None, UpDown, LeftRight, All };

/// A box as the preview paints it. The parent clips it, and hides it when it is hidden itself. Without a
/// parent the box is on the preview itself.
struct PreviewBox {
    const Box* Shown;
    const Box* Parent;
    BoxLook Look;
    DragAxis Drag = DragAxis::None;
};

// The boxes of a template in painting order: parents before children, labels behind pictures, the symbol on
// top.
[[nodiscard]] std::vector<PreviewBox> PreviewBoxes(const CardTemplate& card);
[[nodiscard]] std::vector<PreviewBox> PreviewBoxes(const LargeCardTemplate& card);
[[nodiscard]] std::vector<PreviewBox> PreviewBoxes(const CharacterTemplate& card);
[[nodiscard]] std::vector<PreviewBox> PreviewBoxes(const PlayingPieceTemplate& piece);
[[nodiscard]] std::vector<PreviewBox> PreviewBoxes(const NewBackTemplate& back);

[[nodiscard]] std::vector<PreviewBox> PreviewBoxes(const CardTemplates& templates);

} // namespace deckforge
