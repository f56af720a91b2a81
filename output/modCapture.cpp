#include "output/modCapture.h"

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
    void (*Write)(Workshop&, RunReport&, int16, const FilePath&);
    void (*PlaceOnSheet)(Workshop&, RunReport&, int16, const FilePath&);
    const char* DialogTitle;
    const char* BoxTitle;
    const char* Saved;
};

void WriteStandardImage(Workshop& workshop, RunReport& report, int16 /*index*/, const FilePath& path)
{
    WriteCard(workshop, report, path);
}

void WriteLargeImage(Workshop& workshop, RunReport& report, int16 /*index*/, const FilePath& path)
{
    WriteLargeCard(workshop, report, path);
}

void WriteCharacterImages(Workshop& workshop, RunReport& report, int16 index, const FilePath& path)
{
    WriteCharacter(workshop, report, path);
    const CardSet& set = workshop.Set;
    const QString piece = ImageName(set.Header, QStringLiteral("Character Piece "),
                                    set.Characters[index].Filename, index, set.Characters.Count());
    WritePlayingPiece(workshop, report, {path.Folder, piece});
}

void ComposeNewBack(Workshop& workshop, int16 index)
{
    ShowNewCardBack(workshop, index);
    DrawNewCardBack(workshop, index);
}

void WriteNewBackImage(Workshop& workshop, RunReport& report, int16 index, const FilePath& path)
{
    ComposeNewBack(workshop, index);
    WriteNewCardBack(workshop, report, path);
}

void PlaceStandardCard(Workshop& workshop, RunReport& report, int16 /*index*/, const FilePath& path)
{
    SaveCardSheet(workshop, report, path);
}

void PlaceLargeCard(Workshop& workshop, RunReport& report, int16 /*index*/, const FilePath& path)
{
    SaveLargeCardSheet(workshop, report, path);
}

/// The sheets of characters are named and counted, and no file results.
void PlaceNoCharacter(Workshop& /*workshop*/, RunReport& /*report*/, int16 /*index*/,
                      const FilePath& /*path*/)
{
}

void PlaceNewBack(Workshop& workshop, RunReport& report, int16 index, const FilePath& path)
{
    ComposeNewBack(workshop, index);
    SaveCardSheet(workshop, report, path);
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
void SaveElement(Workshop& workshop, RunReport& report, const ImageRow<Record>& row, int16 index, Ask ask,
                 Tell tell, SheetNumber sheet)
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
        row.PlaceOnSheet(workshop, report, index, {*folder, name});
    } else {
        row.Write(workshop, report, index, path);
    }
    restoreName.dismiss();
    report.AddPictures(workshop);
    if (tell == Tell::Yes)
        TellSaved(workshop.User, row.BoxTitle, row.Saved, path);
}

/// A failure before the writing is reported, and the caller goes on.
template <class Record>
void SaveOrReport(Workshop& workshop, RunReport& report, const ImageRow<Record>& row, int16 index, Ask ask,
                  Tell tell, SheetNumber sheet)
{
    report.Begin(workshop.Set, KindOf<Record>, index);
    try {
        WithMemoryAsFailure([&] { SaveElement(workshop, report, row, index, ask, tell, sheet); });
    } catch (const RunTimeError& error) {
        report.Add(error.Place(), error.Description());
    }
}

/// The box at the end of a run over all cards of a kind.
void TellCreated(UserPort& user, const char* title, int count, const char* one, const char* others)
{
    user.ShowMessage({.Text = QString::number(count) + QLatin1String(count == 1 ? one : others),
                      .Title = QString::fromLatin1(title),
                      .Style = BoxStyle::Information});
}

template <class Record>
void CreateImages(Workshop& workshop, RunReport& report, const CardWalk<Record>& walk)
{
    ForEachShown(workshop, walk,
                 [&](int16 index) { walk.Save(workshop, report, index, Ask::No, Tell::No, std::nullopt); });
}

} // namespace

void SaveCard(Workshop& workshop, RunReport& report, int16 index, Ask ask, Tell tell, SheetNumber sheet)
{
    SaveOrReport(workshop, report, StandardImage, index, ask, tell, sheet);
}

void SaveLargeCard(Workshop& workshop, RunReport& report, int16 index, Ask ask, Tell tell, SheetNumber sheet)
{
    SaveOrReport(workshop, report, LargeImage, index, ask, tell, sheet);
}

void SaveCharacter(Workshop& workshop, RunReport& report, int16 index, Ask ask, Tell tell, SheetNumber sheet)
{
    SaveOrReport(workshop, report, CharacterImage, index, ask, tell, sheet);
}

void SaveNewCardBack(Workshop& workshop, RunReport& report, int16 index, Ask ask, Tell tell,
                     SheetNumber sheet)
{
    SaveOrReport(workshop, report, NewBackImage, index, ask, tell, sheet);
}

void CreateCards(Workshop& workshop, RunReport& report)
{
    CreateImages(workshop, report, StandardWalk);
    TellCreated(workshop.User, "Create cards", workshop.Set.Cards.Count(), " card is created.",
                " cards are created.");
}

void CreateLargeCards(Workshop& workshop, RunReport& report)
{
    CreateImages(workshop, report, LargeWalk);
    TellCreated(workshop.User, "Create large cards", workshop.Set.LargeCards.Count(),
                " large card is created.", " large cards are created.");
}

void CreateCharacters(Workshop& workshop, RunReport& report)
{
    CreateImages(workshop, report, CharacterWalk);
    TellCreated(workshop.User, "Create large cards", workshop.Set.Characters.Count(),
                " character card is created.", " characters cards are created.");
}

void WriteCardBacks(Workshop& workshop, const QString& folder)
{
    constexpr int lastBack = 26; // the blank one behind it is left out
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
