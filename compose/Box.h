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
/// Positions are in whole pixels from the inner top left corner of the parent; sizes include the border. A
/// box with a Surface shows its pixels, any other box its caption.
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
    QSize Design = {}; ///< size of a box with a surface while it has no picture

    [[nodiscard]] QRect Place() const { return {Left, Top, Width, Height}; }
    [[nodiscard]] int BorderWidth() const { return Border == BorderStyle::Single ? 1 : 0; }

    void SetOutlined(bool isOutlined) { Border = isOutlined ? BorderStyle::Single : BorderStyle::None; }

    // Error 380 for a negative value, with the size unchanged.
    void SetWidth(int width);
    void SetHeight(int height);

    /// Shows the picture and takes its size; without a picture, takes the design size.
    void ShowAtNaturalSize(const Picture& picture);

    void MoveToTwips(double left, double top);
};

/// Twips as whole pixels, rounded half to even and clamped to 16 bits.
[[nodiscard]] int PixelsFromTwipsX(double twips);
[[nodiscard]] int PixelsFromTwipsY(double twips);

} // namespace deckforge
