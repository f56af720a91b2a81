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

QPoint CellCorner(const SheetState& sheet)
{
    return {(sheet.SheetCol - 1) * sheet.SheetCardWidth, (sheet.SheetRow - 1) * sheet.SheetCardHeight};
}

/// Whether to write the sheet: its grid is full, or this is the last card.
bool IsDue(SheetState& sheet, const FilePath& path)
{
    const bool isFull = sheet.SheetCol == sheet.SheetCols && sheet.SheetRow == sheet.SheetRows;
    const bool isDue = isFull || sheet.SheetLast;
    sheet.Unwritten = isDue ? QString() : path.Full();
    return isDue;
}

void PlaceCardOnSheet(Workshop& workshop)
{
    const SheetState& sheet = workshop.Sheet;
    const QPoint cell = CellCorner(sheet);
    PictureBox& picDone = workshop.Surfaces.picDone;
    picDone.PaintPicture(workshop.Surfaces.picACard.GetPicture(), cell.x(), cell.y());
    if (!workshop.Set.Header.NoBack) {
        picDone.PaintPicture(workshop.Templates.Standard.picBack.Surface->GetPicture(),
                             cell.x() + sheet.SheetCardWidth / 2, cell.y());
    }
}

void SizeCardSheet(Workshop& workshop)
{
    SheetState& sheet = workshop.Sheet;
    const PictureBox& picACard = workshop.Surfaces.picACard;
    const int cellWidth = workshop.Set.Header.NoBack ? picACard.Width() : 2 * picACard.Width();
    sheet.SheetCardHeight = ToInt16(workshop.Templates.Standard.picCard.Height);
    sheet.SheetCardWidth = ToInt16(cellWidth);
    workshop.Surfaces.picDone.SetSize({sheet.SheetCols * cellWidth, sheet.SheetRows * picACard.Height()});
}

/// Draws the grid over the outer pixels of the cards.
void DrawGrid(Workshop& workshop)
{
    const SheetState& sheet = workshop.Sheet;
    PictureBox& picDone = workshop.Surfaces.picDone;
    picDone.ForeColor = Black;
    for (int row = 0; row < sheet.SheetRows; ++row) {
        for (int col = 0; col < sheet.SheetCols; ++col) {
            const int x = col * sheet.SheetCardWidth - 1;
            const int y = row * sheet.SheetCardHeight - 1;
            const int bottom = y + sheet.SheetCardHeight;
            picDone.LineBox(x, y, x + CardOutline, bottom);
            if (!workshop.Set.Header.NoBack)
                picDone.LineBox(x + CardOutline + 1, y, x + 2 * CardOutline, bottom);
        }
    }
}

void PrepareLargeSheet(Workshop& workshop, const Box& card)
{
    SheetState& sheet = workshop.Sheet;
    sheet.SheetCardWidth = ToInt16(workshop.Set.Header.NoBack ? card.Width : 2 * card.Width);
    sheet.SheetCardHeight = ToInt16(card.Height);
    PictureBox& picLargeSheet = workshop.Surfaces.picLargeSheet;
    picLargeSheet.SetSize({sheet.SheetCols * sheet.SheetCardWidth, sheet.SheetRows * sheet.SheetCardHeight});
    picLargeSheet.SetPicture({});
}

/// Copies the composed card to picDone and to the clipboard.
void CaptureLargeCard(Workshop& workshop, QSize size)
{
    PictureBox& picDone = workshop.Surfaces.picDone;
    picDone.SetPicture({});
    picDone.SetSize(size);
    picDone.PaintPicture(workshop.Surfaces.picACard.Image(), 0, 0);
    picDone.Freeze();
    cDIBSection card;
    card.CreateFromPicture(picDone.Image());
    card.CopyToClipboard();
}

/// Paints the card, and below it its back with a black outline, on picStore.
void StackLargeCard(Workshop& workshop, QSize size)
{
    PictureBox& picStore = workshop.Surfaces.picStore;
    const bool hasBack = !workshop.Set.Header.NoBack;
    const int w = size.width();
    const int h = size.height();
    picStore.SetPicture({});
    picStore.SetSize({w, hasBack ? 2 * h : h});
    if (hasBack) {
        picStore.PaintPicture(workshop.Templates.Large.picBackLarge.Surface->GetPicture(), 0, h);
        picStore.ForeColor = Black;
        picStore.LineBox(0, h, w - 1, 2 * h - 1);
    }
    picStore.PaintPicture(workshop.Surfaces.picDone.GetPicture(), 0, 0);
    picStore.Freeze();
}

/// The box with the size of the cells on a large sheet; null for standard cards.
const Box* LargeSheetCard(const CardTemplates& templates, CardKind kind)
{
    return kind == CardKind::Large       ? &templates.Large.picCardLarge
           : kind == CardKind::Character ? &templates.Character.picCharacter
                                         : nullptr;
}

int CopiesOf(const CardSet& set, CardKind kind, int16 index)
{
    return kind == CardKind::Standard ? set.Cards[index].Copies
           : kind == CardKind::Large  ? set.LargeCards[index].Copies
                                      : 1;
}

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

void ClearSheets(Workshop& workshop)
{
    WorkSurfaces& surfaces = workshop.Surfaces;
    for (PictureBox* surface : {&surfaces.picDone, &surfaces.picLargeSheet, &surfaces.picStore}) {
        surface->SetPicture({});
        surface->SetSize({1, 1});
    }
}

/// Reports an incomplete sheet that was not written, or that no sheet was written.
void ReportUnwritten(const Workshop& workshop, RunReport& report, CardKind kind)
{
    const CardSet& set = workshop.Set;
    if (!workshop.Sheet.Unwritten.isEmpty()) {
        report.Begin(set, kind, CountOf(set, kind));
        report.Add(FixFileName(set.Header, workshop.Sheet.Unwritten),
                   QStringLiteral("Not written, since the last card has no copies"));
    } else if (!report.HasWritten()) {
        report.AddForSet(set.Header, {}, QStringLiteral("No sheet is written"));
    }
}

void BeginSheets(Workshop& workshop, CardKind kind, SheetGrid grid)
{
    SheetState& sheet = workshop.Sheet;
    sheet.SheetCols = grid.Cols;
    sheet.SheetRows = grid.Rows;
    sheet.SheetCol = 0;
    sheet.SheetRow = 1;
    sheet.Unwritten.clear();
    ClearSheets(workshop);
    if (const Box* const card = LargeSheetCard(workshop.Templates, kind))
        PrepareLargeSheet(workshop, *card);
}

} // namespace

int16 SaveSheets(Workshop& workshop, RunReport& report, CardKind kind, SheetGrid grid)
{
    BeginSheets(workshop, kind, grid);
    int16 number = 1;
    const int16 count = CountOf(workshop.Set, kind);
    ForEachShown(workshop, report, kind, [&](int16 index) {
        const int copies = CopiesOf(workshop.Set, kind, index);
        for (int k = 1; k <= copies; ++k) {
            number = NextCell(workshop.Sheet, number);
            if (index == count && k == copies)
                workshop.Sheet.SheetLast = true;
            SaveImage(workshop, report, kind, index, {.Sheet = number});
        }
    });
    ClearSheets(workshop);
    ReportUnwritten(workshop, report, kind);
    return number;
}

void SaveCardSheet(Workshop& workshop, RunReport& report, const FilePath& path)
{
    WriteOrReport(workshop, report, path, FailureTitle, [&] {
        PictureBox& picDone = workshop.Surfaces.picDone;
        SizeCardSheet(workshop);
        workshop.Surfaces.picACard.Refresh();
        PlaceCardOnSheet(workshop);
        if (!IsDue(workshop.Sheet, path))
            return;
        const auto empty = qScopeGuard([&] { picDone.SetPicture({}); });
        DrawGrid(workshop);
        WriteInFormat(workshop, report, picDone.Image(), path, GifFailureTitle);
    });
}

void SaveLargeCardSheet(Workshop& workshop, RunReport& report, const FilePath& path)
{
    WriteOrReport(workshop, report, path, FailureTitle, [&] {
        const Box& picCardLarge = workshop.Templates.Large.picCardLarge;
        const QSize size(picCardLarge.Width, picCardLarge.Height);
        PictureBox& picLargeSheet = workshop.Surfaces.picLargeSheet;
        CaptureLargeCard(workshop, size);
        StackLargeCard(workshop, size);
        const QPoint cell = CellCorner(workshop.Sheet);
        picLargeSheet.PaintPicture(workshop.Surfaces.picStore.GetPicture(), cell.x(), cell.y());
        if (!IsDue(workshop.Sheet, path))
            return;
        const auto empty = qScopeGuard([&] { picLargeSheet.SetPicture({}); });
        WriteInFormat(workshop, report, picLargeSheet.Image(), path, GifFailureTitle);
    });
}

} // namespace deckforge
