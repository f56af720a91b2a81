// SPDX-License-Identifier: GPL-3.0-or-later

#include "exchange/Pack.h"

#include "core/PictureFolders.h"
#include "files/modFile.h"
#include "imaging/PictureFormats.h"
#include "imaging/PictureLoader.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "platform/RunTimeError.h"

#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QSet>

namespace deckforge {

namespace {

/// All paths of pictures in a set.
std::vector<QString*> PicturePathsOf(CardSet& set)
{
    std::vector<QString*> paths = {&set.Header.Symbol, &set.LastBackground};
    for (int i = 1; i <= set.CardBacks.Count(); ++i)
        paths.push_back(&set.CardBacks[i].Picture);
    for (int i = 1; i <= set.NewCardBacks.Count(); ++i)
        paths.push_back(&set.NewCardBacks[i].Picture);
    for (int i = 1; i <= set.Cards.Count(); ++i)
        paths.insert(paths.end(), {&set.Cards[i].Picture, &set.Cards[i].Background});
    for (int i = 1; i <= set.LargeCards.Count(); ++i) {
        LargeCard& card = set.LargeCards[i];
        paths.insert(paths.end(), {&card.Picture, &card.Background, &card.CardBack});
    }
    for (int i = 1; i <= set.Characters.Count(); ++i) {
        Character& character = set.Characters[i];
        paths.insert(paths.end(), {&character.Picture, &character.Background, &character.CardBackPicture,
                                   &character.PlayingPiece});
    }
    std::erase_if(paths, [](const QString* path) { return path->isEmpty(); });
    return paths;
}

void CopyFile(const QString& from, const QString& to)
{
    if (!QFile::copy(from, to))
        throw RunTimeError(ErrorNumber::DiskFull).At(to);
}

/// Copies pictures into a folder, each once, under names that differ.
class PictureCopier {
public:
    PictureCopier(const CardSet& set, QString folder) : m_folder(std::move(folder))
    {
        m_pictures.SearchIn(FoldersOfPictures(set));
    }

    /// The name of the copy; the path itself if it cannot be copied, which is reported once.
    QString Copy(const QString& path)
    {
        auto known = m_names.constFind(path);
        if (known == m_names.constEnd())
            known = m_names.insert(path, CopyNew(path));
        return *known;
    }

    [[nodiscard]] const PackOutcome& Outcome() const { return m_outcome; }

private:
    QString CopyNew(const QString& path)
    {
        const QString found = PathToOpen(m_pictures.Find(path));
        try {
            if (FormatOf(ReadWholeFile(found, MaxDecodedBytes)) == PictureFormat::Unknown)
                throw RunTimeError(ErrorNumber::InvalidPicture);
        } catch (const RunTimeError& error) {
            m_outcome.Problems += error.At(path).PlaceAndDescription();
            return path;
        }
        QString name = FreeName(QFileInfo(found));
        CopyFile(found, m_folder + name);
        for (const PrintTwin& twin : PrintTwinsOf(found)) {
            const QString stem = PrintTwinPath(QFileInfo(name).completeBaseName(), twin.Scale);
            CopyFile(twin.Path, m_folder + stem + QLatin1Char('.') + QFileInfo(twin.Path).suffix());
        }
        ++m_outcome.Copied;
        return name;
    }

    /// Names differ in more than their case and suffix, so that print twins stay with their picture.
    QString FreeName(const QFileInfo& file)
    {
        QString stem = file.completeBaseName();
        for (int number = 2; m_stems.contains(stem.toCaseFolded()); ++number)
            stem = QStringLiteral("%1 %2").arg(file.completeBaseName()).arg(number);
        m_stems.insert(stem.toCaseFolded());
        return file.suffix().isEmpty() ? stem : stem + QLatin1Char('.') + file.suffix();
    }

    QString m_folder;
    PictureLoader m_pictures;
    QHash<QString, QString> m_names;
    QSet<QString> m_stems;
    PackOutcome m_outcome;
};

} // namespace

PackOutcome PackSet(CardSet set, const QString& setFile, const QString& folder)
{
    if (!QDir(folder).isEmpty())
        throw RunTimeError(ErrorNumber::PathFileAccess,
                           QStringLiteral("The folder is not empty. Choose a new folder."))
            .At(folder);
    const CardSet original = set;
    set.Header.FileName = WithSeparator(folder) + NamePart(setFile);
    set.Header.SaveTo.clear();
    set.File = SetFile{set.Header.FileName, {}};
    const QString pictures = PicturesFolder(set);
    if (!QDir().mkpath(pictures))
        throw RunTimeError(ErrorNumber::PathFileAccess).At(pictures);
    PictureCopier copier(original, pictures);
    for (QString* path : PicturePathsOf(set))
        *path = copier.Copy(*path);
    WriteDKF(set, set.Header.FileName);
    return copier.Outcome();
}

} // namespace deckforge
