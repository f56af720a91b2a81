// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "core/Records.h"
#include "imaging/PictureBox.h"

#include <QRect>
#include <optional>

namespace deckforge {

enum class Alignment { Left, Right, Centre };
enum class BorderStyle { None, Single };

/// One named box of a card template: a label, a picture, a frame or a handle.
///
/// Places are whole pixels from the inner top left corner of the parent; sizes count the border. A box with a
/// Surface shows its pixels, any other its caption.
struct Box {
    QString Name;
    int Left = 0;
    int Top = 0;
    int Width = 0;
    int Height = 0;
    bool Visible = true;
    BorderStyle Border = BorderStyle::None;

    QString Caption = {};
    FontSpec Font = {};
    Alignment Align = Alignment::Left;

    std::optional<PictureBox> Surface = {};
    QSize Design = {}; ///< of a box with a surface, before it shows anything

    [[nodiscard]] QRect Place() const { return {Left, Top, Width, Height}; }
    [[nodiscard]] int BorderWidth() const { return Border == BorderStyle::Single ? 1 : 0; }

    void SetOutlined(bool isOutlined) { Border = isOutlined ? BorderStyle::Single : BorderStyle::None; }

    // Error 380 for a negative extent, which changes nothing.
    void SetWidth(int width);
    void SetHeight(int height);

    /// Shows the picture at its natural size and takes that size; without a picture that of its design.
    void ShowAtNaturalSize(const Picture& picture);

    /// Puts the box at a stored offset. One past what a screen could hold counts as the edge of that.
    void MoveToTwips(double left, double top);
};

/// A length in twips as whole pixels, nearest, halves to even, kept within 16 bits.
[[nodiscard]] int PixelsFromTwipsX(double twips);
[[nodiscard]] int PixelsFromTwipsY(double twips);

} // namespace deckforge
