#include "output/modCapture.h"

#include "compose/Attempt.h"
#include "compose/NewBack.h"
#include "output/CardWalk.h"
#include "output/ImageWriters.h"
#include "output/frmCardSheet.h"
#include "platform/Paths.h"

#include <QScopeGuard>

namespace deckforge {

namespace {

/// What the images of the kinds differ in.
template <class Record>
struct ImageRow {
    const char* NamePrefix;
    const char* SheetPart; ///< of a sheet's name
    CardKind SheetKind;    ///< whose count sheets are numbered by
    void (*Write)(Workshop&, int16, const FilePath&);
    void (*PlaceOnSheet)(Workshop&, int16, const FilePath&);
    const char* DialogTitle;
    const char* BoxTitle;
    const char* Saved;
};

void WriteStandardImage(Workshop& workshop, int16 /*index*/, const FilePath& path)
{
    WriteCard(workshop, path);
}

void WriteLargeImage(Workshop& workshop, int16 /*index*/, const FilePath& path)
{
    WriteLargeCard(workshop, path);
}

void WriteCharacterImages(Workshop& workshop, int16 index, const FilePath& path)
{
    WriteCharacter(workshop, path);
    const CardSet& set = workshop.Set;
    const QString piece = ImageName(set.Header, QStringLiteral("Character Piece "),
                                    set.Characters[index].Filename, index, set.Characters.Count());
    WritePlayingPiece(workshop, {path.Folder, piece});
}

void ComposeNewBack(Workshop& workshop, int16 index)
{
    ShowNewCardBack(workshop, index);
    DrawNewCardBack(workshop, index);
}

void WriteNewBackImage(Workshop& workshop, int16 index, const FilePath& path)
{
    ComposeNewBack(workshop, index);
    WriteNewCardBack(workshop, path);
}

void PlaceStandardCard(Workshop& workshop, int16 /*index*/, const FilePath& path)
{
    SaveCardSheet(workshop, path);
}

void PlaceLargeCard(Workshop& workshop, int16 /*index*/, const FilePath& path)
{
    SaveLargeCardSheet(workshop, path);
}

/// The sheets of characters are named and counted, and no file results.
void PlaceNoCharacter(Workshop& /*workshop*/, int16 /*index*/, const FilePath& /*path*/) {}

void PlaceNewBack(Workshop& workshop, int16 index, const FilePath& path)
{
    ComposeNewBack(workshop, index);
    SaveCardSheet(workshop, path);
}

constexpr ImageRow<Card> StandardImage = {"",
                                          " Sheet ",
                                          CardKind::Standard,
                                          WriteStandardImage,
                                          PlaceStandardCard,
                                          "Save Card",
                                          "Save card",
                                          "The card is saved to the filename:"};
constexpr ImageRow<LargeCard> LargeImage = {
    "Large ",       " Sheet Large ",   CardKind::Large,   WriteLargeImage,
    PlaceLargeCard, "Save Large Card", "Save large card", "The large card is saved to the filename:"};
constexpr ImageRow<Character> CharacterImage = {
    "Character ",          " Sheet Large ",
    CardKind::Character,   WriteCharacterImages,
    PlaceNoCharacter,      "Save Character Card",
    "Save character card", "The character card is saved to the filename:"};
constexpr ImageRow<NewCardBack> NewBackImage = {"",
                                                " Sheet ",
                                                CardKind::Standard,
                                                WriteNewBackImage,
                                                PlaceNewBack,
                                                "Save New Card Back",
                                                "Save card",
                                                "The card is saved to the filename:"};

FileDialogRequest ImageDialog(const char* dialogTitle, const QString& title, const QString& extension)
{
    return {.Title = QString::fromLatin1(dialogTitle),
            .FileName = title + QLatin1Char('.') + extension,
            .Filter = QStringLiteral("All files(*.*)|*.*|Picture (*.%1)|*.%1").arg(extension),
            .FilterIndex = 2,
            .DefaultExtension = extension,
            .Folder = {}};
}

/// The folder that the image goes to; the card's file name is set on the way. Nothing on a cancel.
std::optional<QString> ChooseFolder(Workshop& workshop, const char* dialogTitle, const QString& title,
                                    QString& fileName, Ask ask, Tell tell)
{
    const SetHeader& header = workshop.Set.Header;
    if (ask == Ask::No && (!fileName.isEmpty() || tell == Tell::No)) {
        if (fileName.isEmpty())
            fileName = title;
        return header.SaveTo;
    }
    const auto chosen =
        workshop.User.AskSaveFile(ImageDialog(dialogTitle, title, ImageExtension(header.SaveFormat)));
    if (!chosen)
        return std::nullopt;
    fileName = NamePart(*chosen).section(QLatin1Char('.'), 0, 0);
    return FolderPart(*chosen);
}

void TellSaved(UserPort& user, const char* boxTitle, const char* saved, const FilePath& path)
{
    user.ShowMessage({.Text = QLatin1String(saved) + QStringLiteral("\r\n\r\n") + path.Full(),
                      .Title = QString::fromLatin1(boxTitle),
                      .Style = BoxStyle::Information});
}

template <class Record>
void SaveElement(Workshop& workshop, const ImageRow<Record>& row, int16 index, Ask ask, Tell tell,
                 SheetNumber sheet)
{
    CardSet& set = workshop.Set;
    CardList<Record>& cards = ListOf<Record>(set);
    Record& record = cards[index];
    // A failure leaves the card its name.
    auto restoreName = qScopeGuard([&, before = record.Filename] { record.Filename = before; });
    const auto folder =
        ChooseFolder(workshop, row.DialogTitle, record.*NameField<Record>, record.Filename, ask, tell);
    if (!folder)
        return;
    const FilePath path = {*folder, ImageName(set.Header, QString::fromLatin1(row.NamePrefix),
                                              record.Filename, index, cards.Count())};
    if (sheet) {
        const int cardsPerSheet = workshop.Sheet.SheetRows * workshop.Sheet.SheetCols;
        const QString name = SheetName(set.Header, QString::fromLatin1(row.SheetPart), *sheet,
                                       CountOf(set, row.SheetKind), cardsPerSheet);
        row.PlaceOnSheet(workshop, index, {*folder, name});
    } else {
        row.Write(workshop, index, path);
    }
    restoreName.dismiss();
    if (tell == Tell::Yes)
        TellSaved(workshop.User, row.BoxTitle, row.Saved, path);
}

/// The box at the end of a run over all cards of a kind.
void TellCreated(UserPort& user, const char* title, int count, const char* one, const char* others)
{
    user.ShowMessage({.Text = QString::number(count) + QLatin1String(count == 1 ? one : others),
                      .Title = QString::fromLatin1(title),
                      .Style = BoxStyle::Information});
}

template <class Record>
void CreateImages(Workshop& workshop, const CardWalk<Record>& walk)
{
    ForEachShown(workshop, walk,
                 [&](int16 index) { walk.Save(workshop, index, Ask::No, Tell::No, std::nullopt); });
}

} // namespace

void SaveCard(Workshop& workshop, int16 index, Ask ask, Tell tell, SheetNumber sheet)
{
    Attempt([&] { SaveElement(workshop, StandardImage, index, ask, tell, sheet); });
}

void SaveLargeCard(Workshop& workshop, int16 index, Ask ask, Tell tell, SheetNumber sheet)
{
    Attempt([&] { SaveElement(workshop, LargeImage, index, ask, tell, sheet); });
}

void SaveCharacter(Workshop& workshop, int16 index, Ask ask, Tell tell, SheetNumber sheet)
{
    Attempt([&] { SaveElement(workshop, CharacterImage, index, ask, tell, sheet); });
}

void SaveNewCardBack(Workshop& workshop, int16 index, Ask ask, Tell tell, SheetNumber sheet)
{
    Attempt([&] { SaveElement(workshop, NewBackImage, index, ask, tell, sheet); });
}

void CreateCards(Workshop& workshop)
{
    CreateImages(workshop, StandardWalk);
    TellCreated(workshop.User, "Create cards", workshop.Set.Cards.Count(), " card is created.",
                " cards are created.");
}

void CreateLargeCards(Workshop& workshop)
{
    CreateImages(workshop, LargeWalk);
    TellCreated(workshop.User, "Create large cards", workshop.Set.LargeCards.Count(),
                " large card is created.", " large cards are created.");
}

void CreateCharacters(Workshop& workshop)
{
    CreateImages(workshop, CharacterWalk);
    TellCreated(workshop.User, "Create large cards", workshop.Set.Characters.Count(),
                " character card is created.", " characters cards are created.");
}

void WriteCardBacks(Workshop& workshop, const QString& folder)
{
    constexpr int lastBack = 26; // the blank one behind it is left out
    constexpr int characterBacks = 3;
    const QString start = folder + QLatin1Char('/');
    for (int i = 1; i <= lastBack; ++i) {
        const CardBack& back = workshop.Set.CardBacks[i];
        if (back.BuiltIn)
            SavePicture(workshop.Art.imgCB(i - 1), start + back.Name + QStringLiteral(".bmp"));
    }
    for (int j = 0; j < characterBacks; ++j)
        SavePicture(workshop.Art.imgChB(j), start + QStringLiteral("character back %1.bmp").arg(j));
}

void ExportCardBacks(Workshop& workshop)
{
    const std::optional<QString> folder = workshop.User.BrowseForFolder();
    if (!folder)
        return;
    WriteCardBacks(workshop, *folder);
    workshop.User.ShowMessage({.Text = QStringLiteral("All card backs are exported."),
                               .Title = QStringLiteral("Export"),
                               .Style = BoxStyle::Information});
}

} // namespace deckforge
