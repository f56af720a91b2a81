// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "imaging/Picture.h"
#include "imaging/TextFont.h"
#include "platform/Types.h"

#include <QHash>
#include <memory>

class QPainter;

namespace deckforge {

/// A drawing surface in memory. Coordinates are logical pixels from the top left corner.
///
/// Font, colours and print position persist between drawings; composers rely on it. With Scale() n every
/// logical pixel is n x n physical pixels; scale 1 is the reference.
///
/// Drawing is clipped to the surface. Text and pictures need a QGuiApplication.
class PictureBox {
public:
    explicit PictureBox(QSize size = {}, int scale = 1);

    // Size
    [[nodiscard]] int Width() const { return m_size.width(); }
    [[nodiscard]] int Height() const { return m_size.height(); }
    [[nodiscard]] QSize Size() const { return m_size; }
    [[nodiscard]] int Scale() const { return m_scale; }
    void SetSize(QSize size); ///< a different size clears the drawing

    // Content
    [[nodiscard]] const Picture& GetPicture() const { return m_picture; }
    void SetPicture(const Picture& picture); ///< shows it at the top left corner, clears the drawing
    [[nodiscard]] Picture Image() const;     ///< the surface with all drawing
    /// Paints the surface at a place of a painter whose pixels are `scale` times as fine; as finely as the
    /// picture is, unless something was drawn on it.
    void ShowOn(QPainter& painter, QPoint corner, int scale) const;
    void Freeze();                    ///< makes the current image the picture
    void SetBackColor(Colour colour); ///< clears the drawing; the picture stays on top
    void Refresh();                   ///< clears the drawing

    // Text
    [[nodiscard]] const TextFont& Font() const { return m_font; }
    void SetFontName(const QString& name); ///< error 380 if empty
    void SetFontBold(bool bold);
    void SetFontItalic(bool italic);
    void SetFontSize(double points);    ///< error 380 unless above 0 and at most MaxPoints
    [[nodiscard]] FontSpec Pen() const; ///< font and ForeColor
    [[nodiscard]] double TextWidth(QStringView text) const;
    [[nodiscard]] double TextHeight(QStringView text) const; ///< of all lines, separated by CR LF
    /// Draws the text with its top left corner at CurrentX, CurrentY. Further lines, and the position
    /// afterwards, are at the left edge.
    void Print(const QString& text);
    void PrintNumber(int number); ///< surrounded by blanks

    // Pictures and lines
    void PaintPicture(const Picture& picture, int x, int y);          ///< at its natural size
    void PaintStretched(const Picture& picture, const QRect& target); ///< the whole picture
    /// Paints a part of the picture at its natural size. Where the source has no pixels the target is
    /// unchanged.
    void PaintPart(const Picture& picture, QPoint target, const QRect& source);
    /// An unfilled rectangle, one pixel wide, in ForeColor, including both corners.
    void LineBox(int x1, int y1, int x2, int y2);

    // Pixels
    [[nodiscard]] Colour GetPixel(int x, int y) const; ///< InvalidColour outside the surface
    void SetPixel(int x, int y, Colour colour);        ///< does nothing outside the surface
    /// Fills the 4-connected area of exactly areaColour around x, y with FillColor.
    void ExtFloodFill(int x, int y, Colour areaColour);

    double CurrentX = 0;
    double CurrentY = 0;
    Colour ForeColor = Black;
    Colour FillColor = Black;

private:
    [[nodiscard]] const FontMeasures& Measures() const;
    void PrintLine(QPainter& painter, const QString& line) const;
    void Clear();
    [[nodiscard]] QImage& Pixels() const;
    [[nodiscard]] QImage& Drawing(); ///< the pixels, to draw on them

    QSize m_size;
    int m_scale;
    Picture m_picture;
    Colour m_backColor = White;
    TextFont m_font;
    bool m_isDrawnOn = false;
    mutable bool m_needsClearing = false;
    mutable QImage m_image; ///< opaque; null if the surface has no area
    mutable QHash<TextFont, std::shared_ptr<const FontMeasures>> m_measures; ///< cache
};

// Conversion of colours to and from Qt.
[[nodiscard]] QRgb ToRgb(Colour colour);
[[nodiscard]] Colour FromRgb(QRgb rgb);

} // namespace deckforge
