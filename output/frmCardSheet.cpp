// SPDX-License-Identifier: GPL-3.0-or-later

#include "output/frmCardSheet.h"

#include "imaging/cDIBSection.h"
#include "output/CardWalk.h"
#include "output/ImageWriters.h"
#include "output/modCapture.h"
#include "platform/Numbers.h"

#include <QScopeGuard>

namespace deckforge {

namespace {

constexpr char FailureTitle[] = "Saving the cardsheet";
constexpr char GifFailureTitle[] = "Saving the card";
constexpr int CardOutline =
    CardSize.width(); ///< width of the outlines; a back's begins a pixel further right

/// The sheet being filled.
class CardSheet {
public:
    explicit CardSheet(Workshop& workshop)
        : m_state(workshop.Sheet), m_header(workshop.Set.Header), m_boxes(workshop.Templates),
          m_surfaces(workshop.Surfaces), m_picACard(workshop.Surfaces.picACard),
          m_picDone(workshop.Surfaces.picDone), m_hasBack(!m_header.NoBack)
    {
    }

    void Begin(CardKind kind, SheetGrid grid)
    {
        m_state = {.SheetCols = grid.Cols,
                   .SheetRows = grid.Rows,
                   .SheetRow = 1,
                   .SheetLast = m_state.SheetLast,
                   .Unwritten = {}};
        Clear();
        if (kind == CardKind::Large) {
            SizeCells(m_boxes.Large.picCardLarge.Width, m_boxes.Large.picCardLarge.Height);
            m_surfaces.picLargeSheet.SetSize(GridSize());
        }
    }

    void Clear()
    {
        for (PictureBox* surface : {&m_picDone, &m_surfaces.picLargeSheet, &m_surfaces.picStore}) {
            surface->SetPicture({});
            surface->SetSize({1, 1});
        }
    }

    void WriteCard(RunReport& report, const FilePath& path)
    {
        PlaceCard();
        if (!IsDue(path))
            return;
        const auto empty = qScopeGuard([&] { m_picDone.SetPicture({}); });
        DrawGrid();
        WriteInFormat(m_header, report, m_picDone.Image(), path, GifFailureTitle);
    }

    void WriteLargeCard(RunReport& report, const FilePath& path)
    {
        PictureBox& picLargeSheet = m_surfaces.picLargeSheet;
        CaptureLargeCard();
        StackLargeCard();
        const QPoint cell = CellCorner();
        picLargeSheet.PaintPicture(m_surfaces.picStore.GetPicture(), cell.x(), cell.y());
        if (!IsDue(path))
            return;
        const auto empty = qScopeGuard([&] { picLargeSheet.SetPicture({}); });
        WriteInFormat(m_header, report, picLargeSheet.Image(), path, GifFailureTitle);
    }

private:
    [[nodiscard]] QPoint CellCorner() const
    {
        return {(m_state.SheetCol - 1) * m_state.SheetCardWidth,
                (m_state.SheetRow - 1) * m_state.SheetCardHeight};
    }

    [[nodiscard]] QSize GridSize() const
    {
        return {m_state.SheetCols * m_state.SheetCardWidth, m_state.SheetRows * m_state.SheetCardHeight};
    }

    void SizeCells(int width, int height)
    {
        m_state.SheetCardWidth = ToInt16(m_hasBack ? 2 * width : width);
        m_state.SheetCardHeight = ToInt16(height);
    }

    /// Whether to write the sheet: its grid is full, or this is the last card.
    [[nodiscard]] bool IsDue(const FilePath& path)
    {
        const bool isFull = m_state.SheetCol == m_state.SheetCols && m_state.SheetRow == m_state.SheetRows;
        const bool isDue = isFull || m_state.SheetLast;
        m_state.Unwritten = isDue ? QString() : path.Full();
        return isDue;
    }

    void PlaceCard()
    {
        SizeCells(m_picACard.Width(), m_boxes.Standard.picCard.Height);
        m_picDone.SetSize(GridSize());
        m_picACard.Refresh();
        const QPoint cell = CellCorner();
        m_picDone.PaintPicture(m_picACard.GetPicture(), cell.x(), cell.y());
        if (m_hasBack)
            m_picDone.PaintPicture(m_boxes.Standard.picBack.Surface->GetPicture(),
                                   cell.x() + m_state.SheetCardWidth / 2, cell.y());
    }

    /// Draws the grid over the outer pixels of the cards.
    void DrawGrid()
    {
        m_picDone.ForeColor = Black;
        for (int row = 0; row < m_state.SheetRows; ++row) {
            for (int col = 0; col < m_state.SheetCols; ++col) {
                const int x = col * m_state.SheetCardWidth - 1;
                const int y = row * m_state.SheetCardHeight - 1;
                const int bottom = y + m_state.SheetCardHeight;
                m_picDone.LineBox(x, y, x + CardOutline, bottom);
                if (m_hasBack)
                    m_picDone.LineBox(x + CardOutline + 1, y, x + 2 * CardOutline, bottom);
            }
        }
    }

    /// Copies the composed card to picDone and to the clipboard.
    void CaptureLargeCard()
    {
        const Box& box = m_boxes.Large.picCardLarge;
        m_picDone.SetPicture({});
        m_picDone.SetSize({box.Width, box.Height});
        m_picDone.PaintPicture(m_picACard.Image(), 0, 0);
        m_picDone.Freeze();
        cDIBSection card;
        card.CreateFromPicture(m_picDone.Image());
        card.CopyToClipboard();
    }

    /// Paints the card, and below it its back with a black outline, on picStore.
    void StackLargeCard()
    {
        PictureBox& picStore = m_surfaces.picStore;
        const int w = m_picDone.Width();
        const int h = m_picDone.Height();
        picStore.SetPicture({});
        picStore.SetSize({w, m_hasBack ? 2 * h : h});
        if (m_hasBack) {
            picStore.PaintPicture(m_boxes.Large.picBackLarge.Surface->GetPicture(), 0, h);
            picStore.ForeColor = Black;
            picStore.LineBox(0, h, w - 1, 2 * h - 1);
        }
        picStore.PaintPicture(m_picDone.GetPicture(), 0, 0);
        picStore.Freeze();
    }

    SheetState& m_state;
    const SetHeader& m_header;
    CardTemplates& m_boxes;
    WorkSurfaces& m_surfaces;
    PictureBox& m_picACard;
    PictureBox& m_picDone;
    bool m_hasBack;
};

/// Advances to the next cell. Returns the number of its sheet.
int16 NextCell(SheetState& sheet, int16 number)
{
    ++sheet.SheetCol;
    if (sheet.SheetCol > sheet.SheetCols) {
        sheet.SheetCol = 1;
        ++sheet.SheetRow;
    }
    if (sheet.SheetRow <= sheet.SheetRows)
        return number;
    sheet.SheetRow = 1;
    return CheckedAdd(number, 1);
}

/// Reports an incomplete sheet that was not written, or that no sheet was written.
void ReportUnwritten(const CardSet& set, const QString& unwritten, RunReport& report, CardKind kind)
{
    if (!unwritten.isEmpty()) {
        report.Begin(set, kind, CountOf(set, kind));
        report.Add(FixFileName(set.Header, unwritten),
                   QStringLiteral("Not written, since the last card has no copies"));
    } else if (!report.HasWritten()) {
        report.AddForSet(set.Header, {}, QStringLiteral("No sheet is written"));
    }
}

} // namespace

int16 SaveSheets(Workshop& workshop, RunReport& report, CardKind kind, SheetGrid grid)
{
    CardSheet sheet(workshop);
    sheet.Begin(kind, grid);
    int16 number = 1;
    const int16 count = CountOf(workshop.Set, kind);
    ForEachShown(workshop, report, kind, [&](int16 index) {
        const int copies =
            WithListOf(workshop.Set, kind, [&](const auto& list) { return CopiesOf(list[index]); });
        for (int k = 1; k <= copies; ++k) {
            number = NextCell(workshop.Sheet, number);
            if (index == count && k == copies)
                workshop.Sheet.SheetLast = true;
            SaveImage(workshop, report, kind, index, {.Sheet = number});
        }
    });
    sheet.Clear();
    ReportUnwritten(workshop.Set, workshop.Sheet.Unwritten, report, kind);
    return number;
}

void PlaceOnSheet(Workshop& workshop, RunReport& report, CardKind kind, const FilePath& path)
{
    if (kind == CardKind::Character) // Kept: its sheets are counted but not written
        return;
    WriteOrReport(workshop.Set.Header, report, path, FailureTitle, [&] {
        CardSheet sheet(workshop);
        if (kind == CardKind::Large)
            sheet.WriteLargeCard(report, path);
        else
            sheet.WriteCard(report, path);
    });
}

} // namespace deckforge
