// SPDX-License-Identifier: GPL-3.0-or-later

#include "output/Printing.h"

#include "compose/SetView.h"
#include "output/CardWalk.h"
#include "output/ImageWriters.h"
#include "platform/Files.h"
#include "platform/Twips.h"

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>

namespace deckforge {

namespace {

constexpr int Margin = 40;
constexpr int GapAboveCard = 20;
constexpr int GapAbovePiece = 40;
constexpr int PrintScale = 4; ///< of the surfaces on which a printed card is composed

/// A page being painted, in pixels of its device.
class Page {
public:
    explicit Page(QPaintDevice& device)
        : m_perInchX(device.logicalDpiX()), m_perInchY(device.logicalDpiY()),
          m_measures({.Name = QStringLiteral("Arial"), .Size = 12}, m_perInchY)
    {
        if (!m_painter.begin(&device))
            throw RunTimeError(ErrorNumber::PrinterError);
        m_painter.setRenderHints(QPainter::SmoothPixmapTransform | QPainter::LosslessImageRendering);
        m_painter.setFont(m_measures.Font());
    }

    void PrintLine(const QString& text)
    {
        m_painter.drawText(QPointF(Margin, m_currentY + m_measures.Ascent()), Printable(text));
        m_currentY += m_measures.LineHeight();
    }

    /// Paints the picture at its physical size, `gap` below the lines. Returns whether it fits on the page.
    bool PaintPicture(const Picture& picture, int gap)
    {
        const QSizeF size(picture.Size().width() * m_perInchX / CardPixelsPerInch,
                          picture.Size().height() * m_perInchY / CardPixelsPerInch);
        const QRectF place(QPointF(Margin, m_currentY + gap), size);
        m_painter.drawImage(place, picture.Pixels());
        return QRectF(m_painter.viewport()).contains(place);
    }

    void Send()
    {
        if (!m_painter.end())
            throw RunTimeError(ErrorNumber::PrinterError);
    }

private:
    double m_perInchX;
    double m_perInchY;
    FontMeasures m_measures;
    QPainter m_painter;
    int m_currentY = Margin;
};

/// The position of a symbol depends on whether it was chosen or its set was opened.
void CopySymbolPlaces(CardTemplates& fine, const CardTemplates& shown)
{
    const auto take = [](Box& to, const Box& from) {
        to.Left = from.Left;
        to.Top = from.Top;
        to.Visible = from.Visible;
    };
    take(fine.Standard.picSymbol, shown.Standard.picSymbol);
    take(fine.Large.picSymbolLarge, shown.Large.picSymbolLarge);
    take(fine.Character.picSymbolCharacter, shown.Character.picSymbolCharacter);
}

/// Composes the current card in a workshop with finer surfaces; false on failure, which was reported when the
/// card was shown.
bool ComposeAtPrintScale(Workshop& fine, const Workshop& workshop, PrintedPage page)
{
    static_cast<void>(InitForm(fine));
    fine.Set = workshop.Set;
    static_cast<void>(ShowSet(fine));
    CopySymbolPlaces(fine.Templates, workshop.Templates);
    fine.Carried = workshop.Carried;
    return !ShowForPage(fine, page, CurrentOf(fine.Set, KindOnPage(page)));
}

} // namespace

CardKind KindOnPage(PrintedPage page)
{
    return page == PrintedPage::CharacterAlone ? CardKind::Character : static_cast<CardKind>(page);
}

CompositionFailure ShowForPage(Workshop& workshop, PrintedPage page, int16 index)
{
    CurrentOf(workshop.Set, KindOnPage(page)) = index;
    return Compose(workshop, KindOnPage(page), index);
}

void ReportPage(Workshop& workshop, RunReport& report, PrintedPage page)
{
    const CardKind kind = KindOnPage(page);
    report.Begin(workshop.Set, kind, CurrentOf(workshop.Set, kind));
    report.AddPictures(workshop.Problems, workshop.Pictures, workshop.Set.Header);
}

QString PageTitle(const CardSet& set, PrintedPage page)
{
    const CardKind kind = KindOnPage(page);
    return set.Header.SetName + QStringLiteral(" - ") + NameOf(set, kind, CurrentOf(set, kind));
}

void PrintPage(Workshop& workshop, RunReport& report, PrintedPage page, QPaintDevice& device,
               const QString& path)
{
    ReportPage(workshop, report, page);
    Workshop fine(PrintScale);
    if (!PaintPage(ComposeAtPrintScale(fine, workshop, page) ? fine : workshop, page, device))
        report.Add(path, QStringLiteral("The playing piece does not lie on the page"));
}

void WritePdf(Workshop& workshop, RunReport& report, PrintedPage page, const QString& path, int pixelsPerInch)
{
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    QPdfWriter writer(&bytes);
    writer.setTitle(PageTitle(workshop.Set, page));
    writer.setCreator(QStringLiteral("Varnhelm Deck Forge"));
    writer.setResolution(pixelsPerInch);
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setPageMargins({});
    PrintPage(workshop, report, page, writer, path);
    WithPlace(path, [&] {
        OutputFile file(path);
        file.Write(bytes.data());
        file.Close();
    });
}

bool PaintPage(Workshop& workshop, PrintedPage page, QPaintDevice& device)
{
    const bool hasPiece = page == PrintedPage::Character;
    // Built first, so that a failure does not leave half a page.
    const QString title = PageTitle(workshop.Set, page);
    const Picture card = FinalPictureOf(workshop, FinalImageOf(KindOnPage(page)));
    const Picture piece = hasPiece ? FinalPictureOf(workshop, FinalImage::PlayingPiece) : Picture();

    Page paper(device);
    paper.PrintLine(QStringLiteral("Varnhelm Deck Forge"));
    paper.PrintLine(title);
    paper.PaintPicture(card, GapAboveCard);
    // Kept: the piece is moved down by its height in twips, taken for device pixels. At 600 per inch it is
    // well below the card and still on the paper.
    const int pieceGap = GapAbovePiece + piece.Size().height() * TwipsPerPixelY;
    const bool isWhole = !hasPiece || paper.PaintPicture(piece, pieceGap);
    paper.Send();
    return isWhole;
}

} // namespace deckforge
