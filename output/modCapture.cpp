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
    const char* NamePrefix;
    const char* SheetPart; ///< of a sheet's name
};

const ImageRow& RowOf(CardKind kind)
{
    static constexpr ImageRow rows[] = {
        {"", " Sheet "}, {"Large ", " Sheet Large "}, {"Character ", " Sheet Large "}, {"", " Sheet "}};
    return rows[static_cast<std::size_t>(kind)];
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

/// Saves the image of one card.
class ImageSaver {
public:
    ImageSaver(Workshop& workshop, RunReport& report, CardKind kind, int16 index)
        : m_workshop(workshop), m_set(workshop.Set), m_report(report), m_kind(kind), m_index(index),
          m_count(CountOf(m_set, kind))
    {
    }

    [[nodiscard]] FilePath Save(const ImageTarget& target)
    {
        const ImageRow& row = RowOf(m_kind);
        const CardNames names = NamesOf(m_set, m_kind, m_index);
        auto restoreName = qScopeGuard([&, before = names.FileName] { names.FileName = before; });
        const QString folder = ApplyTarget(m_set.Header, target, names);
        FilePath path = {folder, NameOfImage(row.NamePrefix, names.FileName)};
        if (target.Sheet)
            PlaceOnSheet(m_workshop, m_report, m_kind, {folder, NameOfSheet(row.SheetPart, *target.Sheet)});
        else
            Write(path, names.FileName);
        restoreName.dismiss();
        m_report.AddPictures(m_workshop.Problems, m_workshop.Pictures, m_set.Header);
        return path;
    }

private:
    [[nodiscard]] QString NameOfImage(const char* prefix, const QString& fileName) const
    {
        return ImageName(m_set.Header, QString::fromLatin1(prefix), fileName, m_index, m_count);
    }

    [[nodiscard]] QString NameOfSheet(const char* part, int16 sheet) const
    {
        const int cardsPerSheet = m_workshop.Sheet.SheetRows * m_workshop.Sheet.SheetCols;
        return SheetName(m_set.Header, QString::fromLatin1(part), sheet, m_count, cardsPerSheet);
    }

    void Write(const FilePath& path, const QString& fileName)
    {
        if (m_kind == CardKind::NewBack)
            DrawNewCardBack(m_workshop, m_index);
        WriteFinalPicture(m_workshop, m_report, FinalImageOf(m_kind), path);
        if (m_kind == CardKind::Character)
            WriteFinalPicture(m_workshop, m_report, FinalImage::PlayingPiece,
                              {path.Folder, NameOfImage("Character Piece ", fileName)});
    }

    Workshop& m_workshop;
    CardSet& m_set;
    RunReport& m_report;
    CardKind m_kind;
    int16 m_index;
    int m_count;
};

} // namespace

std::optional<FilePath> SaveImage(Workshop& workshop, RunReport& report, CardKind kind, int16 index,
                                  const ImageTarget& target)
{
    report.Begin(workshop.Set, kind, index);
    std::optional<FilePath> path;
    try {
        WithMemoryAsFailure([&] { path = ImageSaver(workshop, report, kind, index).Save(target); });
    } catch (const RunTimeError& error) {
        report.Add(error.Place(), error.Description());
    }
    return path;
}

void SaveImages(Workshop& workshop, RunReport& report, CardKind kind)
{
    ForEachShown(workshop, report, kind, [&](int16 index) { SaveImage(workshop, report, kind, index); });
}

void WriteCardBacks(const CardSet& set, BuiltInArt& art, const QString& folder)
{
    constexpr int lastBack = 26; // without the blank one behind it
    constexpr int characterBacks = 3;
    const auto save = [&](const Picture& picture, const QString& name) {
        const QString path = folder + QLatin1Char('/') + name + QStringLiteral(".bmp");
        WithPlace(path, [&] { SavePicture(picture, path); });
    };
    for (int i = 1; i <= lastBack; ++i) {
        const CardBack& back = set.CardBacks[i];
        if (back.BuiltIn)
            save(art.imgCB(i - 1), back.Name);
    }
    for (int j = 0; j < characterBacks; ++j)
        save(art.imgChB(j), QStringLiteral("character back %1").arg(j));
}

} // namespace deckforge
