#include "core/modInfo.h"

#include "core/Vocabulary.h"
#include "platform/Paths.h"

namespace deckforge {

namespace {

constexpr int16 NewFrameHeight = 105;
constexpr int16 NewFrameWidth = 121;

/// What the boxes call an element.
struct Words {
    QLatin1String Deleted;
    QLatin1String Copied;
};

const Words& WordsOf(CardKind kind)
{
    static constexpr Words words[] = {
        {.Deleted = QLatin1String("card"), .Copied = QLatin1String("card")},
        {.Deleted = QLatin1String("card"), .Copied = QLatin1String("large card")},
        {.Deleted = QLatin1String("character"), .Copied = QLatin1String("character card")},
        {.Deleted = QLatin1String("card back"), .Copied = QLatin1String("card back")}};
    return words[static_cast<std::size_t>(kind)];
}

} // namespace

void SetDefaultFont(SetHeader& header)
{
    header.FontType = SmallFont(7);
    header.FontNumber = SmallFont(7);
    header.FontTitle = SmallFont(7, true);
    header.FontBold = SmallFont(7, true);
    header.FontInformation = SmallFont(7);
    header.FontAutonumber = SmallFont(5);
    header.FontTitleLarge = SmallFont(7, true);
    header.FontInformationLarge = SmallFont(7);
    header.FontCharacter = SmallFont(7, true, White);
    header.FontSpecialTitle = SmallFont(7, true);
    header.FontSpecial = SmallFont(7);
    header.FontAlignment = SmallFont(6, true);
    header.FontPlayingPiece = SmallFont(7, true);
}

void NewSet(CardSet& set)
{
    set.Header = {};
    set.File.reset();
    set.Header.SetName = QStringLiteral("New set");
    set.Header.SaveTo = ProgramFolder();
    set.Header.ArtistColor = LightGrey;
    SetDefaultFont(set.Header);
}

void InitSet(CardSet& set)
{
    InitCardTypes(set);
    InitCardBacks(set);
    set.LastBackground.clear();
    NewSet(set);

    MakeFirstElement<Card>(set);
    set.LargeCards.Clear();
    set.LargeCards.Current = 0;
    set.Characters.Clear();
    set.Characters.Current = 0;
}

void InitCard(CardSet& set, int16 n)
{
    Card& card = set.Cards[n];
    const int16 typeIndex = card.TypeIndex; // the one field that a new card leaves as it was
    card = {};
    card.TypeIndex = typeIndex;
    card.Title = QStringLiteral("CARD %1").arg(n);
    card.Copies = 1;
    card.Type = set.LastType;
    card.SubType = set.LastSubType;
    card.TypeReversed = set.LastTypeReversed;
    card.SubTypeReversed = set.LastSubTypeReversed;
    card.Number = QString::number(set.LastNumber);
    card.ShowPicture = true;
    card.FrameHeight = NewFrameHeight;
    card.Frame = true;
    card.Background = set.LastBackground;
    card.CardBack = set.LastCardBack;
    card.Color = White;
}

void InitLargeCard(CardSet& set, int16 n)
{
    LargeCard& card = set.LargeCards[n];
    card = {};
    card.Title = QStringLiteral("LARGE CARD %1").arg(n);
    card.Copies = 1;
    card.ShowPicture = true;
    card.FrameHeight = NewFrameWidth;
    card.Frame = true;
    card.Color = White;
}

void InitCharacter(CardSet& set, int16 n)
{
    Character& character = set.Characters[n];
    character = {};
    character.Name = QStringLiteral("CHARACTER %1").arg(n);
    character.StartArea = QStringLiteral("VILLAGE");
    character.Alignment = QStringLiteral("NEUTRAL");
    character.Strength = QStringLiteral("3");
    character.Craft = QStringLiteral("3");
    character.Gold = QStringLiteral("---");
    character.Lives = QStringLiteral("---");
    character.FrameHeight = NewFrameWidth;
    character.ShowPicture = true;
}

void InitNewCardBack(CardSet& set, int16 n)
{
    NewCardBack& back = set.NewCardBacks[n];
    back = {};
    back.Name = QStringLiteral("Back 1"); // every new back is called so, whatever its index
    back.BackText = set.Header.SetName;
    back.Font = {.Name = QStringLiteral("Arial"), .Size = 18, .Bold = true, .Italic = false, .Color = White};
    back.InnerColor = Black;
    back.FrameColor = White;
    back.BackColor = White;
}

bool MayDelete(UserPort& user, CardKind kind, int16 count, const QString& name)
{
    if (count < 2) {
        if (kind == CardKind::Standard) {
            user.ShowMessage(
                {.Text = QStringLiteral("You have only one card in your set. This can't be deleted."),
                 .Title = {},
                 .Style = BoxStyle::Information});
        }
        return false;
    }
    const Answer answer =
        user.ShowMessage({.Text = QStringLiteral("Are you sure you want to delete the %1 \"%2\"?")
                                      .arg(WordsOf(kind).Deleted, name),
                          .Title = QStringLiteral("Confirm delete"),
                          .Style = BoxStyle::Question,
                          .Buttons = BoxButtons::YesNo});
    return answer == Answer::Yes;
}

void TellCopied(UserPort& user, CardKind kind)
{
    user.ShowMessage({.Text = QStringLiteral("The %1 is copied.").arg(WordsOf(kind).Copied),
                      .Title = QStringLiteral("Copy"),
                      .Style = BoxStyle::Information});
}

QString PositionText(int16 index, int16 count)
{
    return QStringLiteral("%1 (%2)").arg(index).arg(count);
}

} // namespace deckforge
