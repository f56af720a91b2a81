#pragma once

#include "imaging/Picture.h"
#include "imaging/TextFont.h"
#include "platform/Types.h"

#include <QHash>
#include <memory>

class QPainter;

namespace deckforge {

/// A drawing surface in memory, in logical pixels from its top left corner.
///
/// Font, colours and print position stay as set from one drawing to the next: composers rely on it. With
/// Scale() n every logical pixel is n x n pixels of memory; at 1 the result is the reference.
///
/// What reaches past the surface is cut off. Text and pictures need a QGuiApplication.
class PictureBox {
public:
    explicit PictureBox(QSize size = {}, int scale = 1);

    // Size
    [[nodiscard]] int Width() const { return m_size.width(); }
    [[nodiscard]] int Height() const { return m_size.height(); }
    [[nodiscard]] QSize Size() const { return m_size; }
    [[nodiscard]] int Scale() const { return m_scale; }
    void SetSize(QSize size); ///< another size clears what was drawn

    // Content
    [[nodiscard]] const Picture& GetPicture() const { return m_picture; }
    void SetPicture(const Picture& picture); ///< shows it from the top left corner, clears what was drawn
    [[nodiscard]] Picture Image() const;     ///< the surface as it stands, with all drawing
    void Freeze();                           ///< makes the surface as it stands its picture
    void SetBackColor(Colour colour);        ///< clears what was drawn; the picture stays on top
    void Refresh();                          ///< back to the picture; what was drawn is gone

    // Text
    [[nodiscard]] const TextFont& Font() const { return m_font; }
    void SetFontName(const QString& name); ///< error 380 for an empty one
    void SetFontBold(bool bold);
    void SetFontItalic(bool italic);
    void SetFontSize(double points);    ///< error 380 unless above 0 and at most MostPoints
    [[nodiscard]] FontSpec Pen() const; ///< font and ForeColor
    [[nodiscard]] double TextWidth(QStringView text) const;
    [[nodiscard]] double TextHeight(QStringView text) const; ///< of all its lines, parted by CR LF
    /// Draws the text with its top left corner at CurrentX, CurrentY. The position then is the start of the
    /// next line; so are the lines of a text that holds CR LF.
    void Print(const QString& text);
    void PrintNumber(int number); ///< with a blank before and behind it

    // Pictures and lines
    void PaintPicture(const Picture& picture, int x, int y);          ///< at its natural size
    void PaintStretched(const Picture& picture, const QRect& target); ///< the whole picture
    /// A part of the picture, 1:1. Only what exists of the source is copied; the rest of the target stays.
    void PaintPart(const Picture& picture, QPoint target, const QRect& source);
    /// A rectangle of one pixel in ForeColor, not filled, both corners included.
    void LineBox(int x1, int y1, int x2, int y2);

    // Pixels
    [[nodiscard]] Colour GetPixel(int x, int y) const; ///< InvalidColour outside the surface
    void SetPixel(int x, int y, Colour colour);        ///< nothing outside the surface
    /// Repaints the connected area of exactly that colour from x, y in FillColor. Pixels connect by their
    /// sides.
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

    QSize m_size;
    int m_scale;
    Picture m_picture;
    Colour m_backColor = White;
    TextFont m_font;
    mutable bool m_needsClearing = false;
    mutable QImage m_image; ///< opaque; null for a surface without area
    mutable QHash<TextFont, std::shared_ptr<const FontMeasures>> m_measures; ///< of the fonts used so far
};

// A colour as the drawing library has it, and back.
[[nodiscard]] QRgb ToRgb(Colour colour);
[[nodiscard]] Colour FromRgb(QRgb rgb);

} // namespace deckforge
