// SPDX-License-Identifier: GPL-3.0-or-later

#include "output/modCapture.h"

#include "compose/NewBack.h"
#include "output/CardWalk.h"
#include "output/ImageWriters.h"
#include "output/frmCardSheet.h"
#include "platform/Paths.h"

#include <QScopeGuard>

namespace deckforge {

namespace {

/// What differs between the images of the kinds.
struct ImageRow {
    FinalImage Image;
    const char* NamePrefix;
    const char* SheetPart; ///< of a sheet's name
    CardKind SheetKind;    ///< the kind whose count sets the digits of sheet numbers
};

const ImageRow& RowOf(CardKind kind)
{
    static constexpr ImageRow rows[] = {
        {FinalImage::Card, "", " Sheet ", CardKind::Standard},
        {FinalImage::LargeCard, "Large ", " Sheet Large ", CardKind::Large},
        {FinalImage::Character, "Character ", " Sheet Large ", CardKind::Character},
        {FinalImage::NewBack, "", " Sheet ", CardKind::Standard}};
    return rows[static_cast<std::size_t>(kind)];
}

void ComposeNewBack(Workshop& workshop, int16 index)
{
    ShowNewCardBack(workshop, index);
    DrawNewCardBack(workshop, index);
}

void WriteImageOf(Workshop& workshop, RunReport& report, CardKind kind, int16 index, const FilePath& path)
{
    if (kind == CardKind::NewBack)
        ComposeNewBack(workshop, index);
    WriteFinalPicture(workshop, report, RowOf(kind).Image, path);
    if (kind == CardKind::Character) {
        const CardSet& set = workshop.Set;
        const QString piece = ImageName(set.Header, QStringLiteral("Character Piece "),
                                        set.Characters[index].Filename, index, set.Characters.Count());
        WriteFinalPicture(workshop, report, FinalImage::PlayingPiece, {path.Folder, piece});
    }
}

void PlaceOnSheet(Workshop& workshop, RunReport& report, CardKind kind, int16 index, const FilePath& path)
{
    switch (kind) {
    case CardKind::Character: // Kept: its sheets are counted but not written
        return;
    case CardKind::Large:
        SaveLargeCardSheet(workshop, report, path);
        return;
    case CardKind::NewBack:
        ComposeNewBack(workshop, index);
        break;
    case CardKind::Standard:
        break;
    }
    SaveCardSheet(workshop, report, path);
}

struct CardNames {
    const QString& Title;
    QString& FileName;
};

CardNames NamesOf(CardSet& set, CardKind kind, int16 index)
{
    return WithListOf(set, kind, [&](auto& list) -> CardNames {
        auto& record = list[index];
        return {record.*NameField<std::decay_t<decltype(record)>>, record.Filename};
    });
}

/// Sets the card's file name and returns the folder that its image is written to.
QString ApplyTarget(const SetHeader& header, const ImageTarget& target, const CardNames& names)
{
    if (target.Chosen) {
        names.FileName = NamePart(*target.Chosen).section(QLatin1Char('.'), 0, 0);
        return FolderPart(*target.Chosen);
    }
    if (names.FileName.isEmpty())
        names.FileName = names.Title;
    return header.SaveTo;
}

FilePath SaveElement(Workshop& workshop, RunReport& report, CardKind kind, int16 index,
                     const ImageTarget& target)
{
    CardSet& set = workshop.Set;
    const ImageRow& row = RowOf(kind);
    const CardNames names = NamesOf(set, kind, index);
    auto restoreName = qScopeGuard([&, before = names.FileName] { names.FileName = before; });
    const QString folder = ApplyTarget(set.Header, target, names);
    FilePath path = {folder, ImageName(set.Header, QString::fromLatin1(row.NamePrefix), names.FileName, index,
                                       CountOf(set, kind))};
    if (target.Sheet) {
        const int cardsPerSheet = workshop.Sheet.SheetRows * workshop.Sheet.SheetCols;
        const QString name = SheetName(set.Header, QString::fromLatin1(row.SheetPart), *target.Sheet,
                                       CountOf(set, row.SheetKind), cardsPerSheet);
        PlaceOnSheet(workshop, report, kind, index, {folder, name});
    } else {
        WriteImageOf(workshop, report, kind, index, path);
    }
    restoreName.dismiss();
    report.AddPictures(workshop);
    return path;
}

} // namespace

std::optional<FilePath> SaveImage(Workshop& workshop, RunReport& report, CardKind kind, int16 index,
                                  const ImageTarget& target)
{
    report.Begin(workshop.Set, kind, index);
    std::optional<FilePath> path;
    try {
        WithMemoryAsFailure([&] { path = SaveElement(workshop, report, kind, index, target); });
    } catch (const RunTimeError& error) {
        report.Add(error.Place(), error.Description());
    }
    return path;
}

void SaveImages(Workshop& workshop, RunReport& report, CardKind kind)
{
    ForEachShown(workshop, report, kind, [&](int16 index) { SaveImage(workshop, report, kind, index); });
}

void WriteCardBacks(Workshop& workshop, const QString& folder)
{
    constexpr int lastBack = 26; // without the blank one behind it
    constexpr int characterBacks = 3;
    const auto save = [&](const Picture& picture, const QString& name) {
        const QString path = folder + QLatin1Char('/') + name + QStringLiteral(".bmp");
        WithPlace(path, [&] { SavePicture(picture, path); });
    };
    for (int i = 1; i <= lastBack; ++i) {
        const CardBack& back = workshop.Set.CardBacks[i];
        if (back.BuiltIn)
            save(workshop.Art.imgCB(i - 1), back.Name);
    }
    for (int j = 0; j < characterBacks; ++j)
        save(workshop.Art.imgChB(j), QStringLiteral("character back %1").arg(j));
}

} // namespace deckforge
