// SPDX-License-Identifier: GPL-3.0-or-later

#include "imaging/PictureBox.h"

#include "imaging/Resampling.h"
#include "platform/RunTimeError.h"

#include <QPainter>
#include <vector>

namespace deckforge {

namespace {

/// Converts a rectangle of logical pixels to physical ones.
QRect InMemory(const QRect& logical, int scale)
{
    return {logical.topLeft() * scale, logical.size() * scale};
}

void PaintOn(QImage& image, int scale, const Picture& picture, QPoint target, const QRect& source)
{
    const QRect existing = source & QRect({0, 0}, picture.Size());
    if (existing.isEmpty())
        return;
    const QPoint shift = target - source.topLeft();
    const QRect visible = existing.translated(shift) & QRect({0, 0}, image.size() / scale);
    if (visible.isEmpty())
        return;
    const Picture drawn = picture.ForScale(scale);
    const QRect part = InMemory(visible.translated(-shift), drawn.Scale());
    const QSize size = visible.size() * scale;
    QPainter painter(&image);
    if (part.size() == size)
        painter.drawImage(visible.topLeft() * scale, drawn.Pixels(), part);
    else
        painter.drawImage(visible.topLeft() * scale, Resampled(drawn.Pixels(), part, size));
}

} // namespace

QRgb ToRgb(Colour colour)
{
    return qRgb(colour & 0xFF, (colour >> 8) & 0xFF, (colour >> 16) & 0xFF);
}

Colour FromRgb(QRgb rgb)
{
    return (qBlue(rgb) << 16) | (qGreen(rgb) << 8) | qRed(rgb);
}

PictureBox::PictureBox(QSize size, int scale) : m_size(size), m_scale(scale), m_font(DefaultFont())
{
    Clear();
}

void PictureBox::SetSize(QSize size)
{
    if (size == m_size)
        return;
    m_size = size;
    Clear();
}

void PictureBox::SetPicture(const Picture& picture)
{
    m_picture = picture;
    Clear();
}

Picture PictureBox::Image() const
{
    return Picture(Pixels(), m_scale);
}

void PictureBox::Freeze()
{
    m_picture = Image();
}

void PictureBox::SetBackColor(Colour colour)
{
    m_backColor = colour;
    Clear();
}

void PictureBox::Refresh()
{
    Clear();
}

void PictureBox::Clear()
{
    m_needsClearing = true;
    m_isDrawnOn = false;
}

QImage& PictureBox::Drawing()
{
    m_isDrawnOn = true;
    return Pixels();
}

void PictureBox::ShowOn(QPainter& painter, QPoint corner, int scale) const
{
    const Picture finest = m_picture.ForScale(scale);
    if (m_isDrawnOn || finest.Scale() <= m_scale) {
        painter.drawImage(QRect(corner, m_size), Pixels());
        return;
    }
    const QRect part({0, 0}, m_size.boundedTo(finest.Size()));
    painter.save();
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.fillRect(QRect(corner, m_size), QColor(ToRgb(m_backColor)));
    painter.drawImage(part.translated(corner), finest.Pixels(), InMemory(part, finest.Scale()));
    painter.restore();
}

/// Clears the image lazily: surfaces are often cleared repeatedly before they are drawn on, and some previews
/// are never painted.
QImage& PictureBox::Pixels() const
{
    if (!m_needsClearing)
        return m_image;
    m_needsClearing = false;
    const QSize memory = m_size * m_scale;
    if (m_image.size() != memory || !m_image.isDetached())
        m_image = QImage(memory, QImage::Format_RGB32);
    m_image.fill(ToRgb(m_backColor));
    PaintOn(m_image, m_scale, m_picture, {0, 0}, QRect({0, 0}, m_picture.Size()));
    return m_image;
}

void PictureBox::SetFontName(const QString& name)
{
    if (name.isEmpty())
        throw RunTimeError(ErrorNumber::InvalidPropertyValue);
    m_font.Name = name;
}

void PictureBox::SetFontBold(bool bold)
{
    m_font.Bold = bold;
}

void PictureBox::SetFontItalic(bool italic)
{
    m_font.Italic = italic;
}

void PictureBox::SetFontSize(double points)
{
    if (!(points > 0 && points <= MaxPoints))
        throw RunTimeError(ErrorNumber::InvalidPropertyValue);
    m_font.Size = points;
}

FontSpec PictureBox::Pen() const
{
    return {.Name = m_font.Name,
            .Size = m_font.Size,
            .Bold = m_font.Bold,
            .Italic = m_font.Italic,
            .Color = ForeColor};
}

const FontMeasures& PictureBox::Measures() const
{
    constexpr qsizetype maxFonts = 100; // a malicious set can have a font on each of its card backs
    if (m_measures.size() > maxFonts)
        m_measures.clear();
    auto& measures = m_measures[m_font];
    if (!measures)
        measures = std::make_shared<const FontMeasures>(m_font);
    return *measures;
}

double PictureBox::TextWidth(QStringView text) const
{
    return Measures().Width(text);
}

double PictureBox::TextHeight(QStringView text) const
{
    return static_cast<double>(Measures().LineHeight()) * static_cast<double>(1 + text.count(u"\r\n"));
}

void PictureBox::PrintLine(QPainter& painter, const QString& line) const
{
    painter.drawText(QPointF(CurrentX, CurrentY + Measures().Ascent()), Printable(line));
}

void PictureBox::Print(const QString& text)
{
    QPainter painter(&Drawing());
    painter.scale(m_scale, m_scale);
    painter.setFont(Measures().Font());
    painter.setPen(QColor::fromRgb(ToRgb(ForeColor)));
    for (const QString& line : text.split(QStringLiteral("\r\n"))) {
        if (!line.isEmpty())
            PrintLine(painter, line);
        CurrentX = 0;
        CurrentY += Measures().LineHeight();
    }
}

void PictureBox::PrintNumber(int number)
{
    Print(QStringLiteral(" %1 ").arg(number));
}

void PictureBox::PaintPicture(const Picture& picture, int x, int y)
{
    PaintPart(picture, {x, y}, QRect({0, 0}, picture.Size()));
}

void PictureBox::PaintStretched(const Picture& picture, const QRect& target)
{
    if (picture.IsEmpty() || target.isEmpty())
        return;
    QPainter painter(&Drawing());
    painter.drawImage(InMemory(target, m_scale), picture.Pixels());
}

void PictureBox::PaintPart(const Picture& picture, QPoint target, const QRect& source)
{
    PaintOn(Drawing(), m_scale, picture, target, source);
}

void PictureBox::LineBox(int x1, int y1, int x2, int y2)
{
    const QRect outer(QPoint(std::min(x1, x2), std::min(y1, y2)), QPoint(std::max(x1, x2), std::max(y1, y2)));
    const QColor colour = QColor::fromRgb(ToRgb(ForeColor));
    QPainter painter(&Drawing());
    for (const QRect& side :
         {QRect(outer.topLeft(), QSize(outer.width(), 1)), QRect(outer.bottomLeft(), QSize(outer.width(), 1)),
          QRect(outer.topLeft(), QSize(1, outer.height())),
          QRect(outer.topRight(), QSize(1, outer.height()))})
        painter.fillRect(InMemory(side, m_scale), colour);
}

Colour PictureBox::GetPixel(int x, int y) const
{
    if (!QRect({0, 0}, m_size).contains(x, y))
        return InvalidColour;
    return FromRgb(Pixels().pixel(x * m_scale, y * m_scale));
}

void PictureBox::SetPixel(int x, int y, Colour colour)
{
    if (!QRect({0, 0}, m_size).contains(x, y) || colour == InvalidColour)
        return;
    QPainter painter(&Drawing());
    painter.fillRect(InMemory({x, y, 1, 1}, m_scale), QColor::fromRgb(ToRgb(colour)));
}

void PictureBox::ExtFloodFill(int x, int y, Colour areaColour)
{
    const QRgb area = ToRgb(areaColour);
    const QRgb fill = ToRgb(FillColor);
    QImage& image = Drawing();
    const auto row = [&](int at) { return reinterpret_cast<QRgb*>(image.scanLine(at)); };
    const QPoint seed = QPoint(x, y) * m_scale;
    if (!image.rect().contains(seed) || area == fill)
        return;
    // Span filling: each span is filled whole, then the rows above and below it are searched.
    std::vector<QPoint> seeds = {seed};
    while (!seeds.empty()) {
        const QPoint at = seeds.back();
        seeds.pop_back();
        QRgb* const pixels = row(at.y());
        if (pixels[at.x()] != area)
            continue; // filled in the meantime
        int left = at.x();
        int right = at.x();
        while (left > 0 && pixels[left - 1] == area)
            --left;
        while (right < image.width() && pixels[right] == area)
            ++right;
        std::fill(pixels + left, pixels + right, fill);
        for (const int beside : {at.y() - 1, at.y() + 1}) {
            if (beside < 0 || beside >= image.height())
                continue;
            const QRgb* const others = row(beside);
            for (int i = left; i < right; ++i) {
                if (others[i] == area && (i == left || others[i - 1] != area))
                    seeds.emplace_back(i, beside);
            }
        }
    }
}

} // namespace deckforge
