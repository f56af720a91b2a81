// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "core/Records.h"
#include "imaging/PictureBox.h"

#include <QRect>
#include <optional>
#include <vector>

namespace deckforge {

enum class Alignment { Left, Right, Centre };

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

/// How PrintTexts prints the caption of a label on the card.
enum class TextForm { None, Line, Wrapped };

/// What a template says about a box, except its place.
struct BoxDesign {
    BoxLook Look = BoxLook::Label;
    DragAxis Drag = DragAxis::None;
    bool Visible = true;
    bool Outlined = false; ///< with a border of one pixel

    // A label
    QString Caption = {};
    Alignment Align = Alignment::Left;
    TextForm Form = TextForm::None;
    FontSpec SetHeader::*FontOfSet = nullptr;
    int FontClicks = 1; ///< that open the dialog for the font of the set; 0 for never
    FontSpec Font = SmallFont(6.75);
};

struct Box;

/// The boxes of a template in painting order: each box is added when it is constructed.
struct BoxList {
    explicit BoxList(int scale) : Scale(scale) {}
    BoxList(const BoxList&) = delete;
    BoxList& operator=(const BoxList&) = delete;

    int Scale; ///< of the surfaces
    std::vector<Box*> Boxes = {};
};

/// One box of a card template: a label, a picture, a frame or a handle.
///
/// Positions are in whole pixels from the inner top left corner of the parent; sizes include the border. The
/// parent clips the box, and hides it when it is hidden itself. Without a parent the box is on the preview
/// itself.
struct Box : BoxDesign {
    Box(BoxList& list, const QRect& place, BoxDesign design);
    Box(Box& parent, const QRect& place, BoxDesign design = {});
    Box(const Box&) = delete;
    Box& operator=(const Box&) = delete;

    BoxList& List;
    const Box* Parent;
    int Left;
    int Top;
    int Width;
    int Height;
    QSize Design; ///< size of a box with a surface while it has no picture
    std::optional<PictureBox> Surface = {};

    [[nodiscard]] QRect Place() const { return {Left, Top, Width, Height}; }
    [[nodiscard]] int BorderWidth() const { return Outlined ? 1 : 0; }

    /// The top left corner on the surface of the whole card.
    [[nodiscard]] QPoint OnCard() const { return Parent ? Parent->OnCard() + QPoint(Left, Top) : QPoint(); }

    // Error 380 for a negative value, with the size unchanged.
    void SetWidth(int width);
    void SetHeight(int height);

    /// Shows the picture and takes its size; without a picture, takes the design size.
    void ShowAtNaturalSize(const Picture& picture);

    void MoveToTwips(double left, double top);

private:
    Box(BoxList& list, const Box* parent, const QRect& place, BoxDesign&& design);
};

/// Twips as whole pixels, rounded half to even and clamped to 16 bits.
[[nodiscard]] int PixelsFromTwipsX(double twips);
[[nodiscard]] int PixelsFromTwipsY(double twips);

} // namespace deckforge
