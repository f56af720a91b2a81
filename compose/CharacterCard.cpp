// SPDX-License-Identifier: GPL-3.0-or-later

#include "compose/CharacterCard.h"

#include "compose/CardPainting.h"
#include "compose/FontScheme.h"
#include "compose/IgnoreFailure.h"
#include "core/Vocabulary.h"
#include "imaging/modRotatePic.h"

namespace deckforge {

namespace {

constexpr int FramedHeight = 218;
constexpr int UnframedHeight = 220;
constexpr int TextRight = 272;

// Preview

void PlaceFrame(ShowRun& run, CharacterTemplate& t, const Character& character)
{
    t.picFrameCharacter.SetHeight(character.Frame ? FramedHeight : UnframedHeight);
    t.picFrameCharacter.Outlined = character.Frame;
    run([&] { t.picFrameCharacter.SetWidth(character.FrameHeight); });
}

/// Places the texts at the right of the handle. A box without room keeps its width.
void PlaceTexts(CharacterTemplate& t)
{
    const int left = t.lblPicSizeCharacter.Left + t.lblPicSizeCharacter.Width + 1;
    for (Box* label : {&t.lblAlignmentTitle, &t.lblStartTitle, &t.lblSpecialTitle, &t.lblSpecial})
        label->Left = left;
    t.lblAlignment.Left = t.lblAlignmentTitle.Left + t.lblAlignmentTitle.Width;
    t.lblStart.Left = t.lblStartTitle.Left + t.lblStartTitle.Width;
    for (Box* label : {&t.lblAlignment, &t.lblStart, &t.lblSpecialTitle, &t.lblSpecial})
        IgnoreFailure([&] { label->SetWidth(TextRight - label->Left); });
}

void ShowTexts(Workshop& workshop, const Character& character, int16 index)
{
    CharacterTemplate& t = workshop.Templates.Character;
    t.lblCharacter.Caption = character.Name;
    t.lblAlignment.Caption = character.Alignment;
    t.lblStart.Caption = character.StartArea;
    t.lblSpecial.Caption = character.SpecialAbilities;
    t.lblAutonumberCharacter.Caption = QString::number(index);
}

/// The first back if the index is not in the list.
Picture BackOf(Workshop& workshop, const Character& character)
{
    if (character.CardBack == UserDefinedCharacterBack)
        return workshop.Pictures.LoadPicture(character.CardBackPicture);
    const bool isListed = character.CardBack >= 0 && character.CardBack < UserDefinedCharacterBack;
    return workshop.Art.imgChB(isListed ? character.CardBack : 0);
}

void LoadPictures(ShowRun& run, Workshop& workshop, const Character& character)
{
    CardTemplate& standard = workshop.Templates.Standard;
    CharacterTemplate& t = workshop.Templates.Character;
    run.ReportMissingOn(standard.picImage, character.Picture);
    LoadFramedPicture(run, workshop, t.picImageCharacter, character.Picture);
    t.picImageCharacter.MoveToTwips(character.PictureLeft, character.PictureTop);

    // Kept: a missing back or playing piece is reported as a missing background, too.
    run.ReportMissingOn(standard.picCard, character.Background, "Missing background.");
    run([&] {
        t.picBackgroundChar.Surface->SetPicture(workshop.Pictures.LoadPicture(character.Background));
    });
    t.picBackgroundChar.Surface->Refresh();
    run([&] { t.picCharacterBack.Surface->SetPicture(BackOf(workshop, character)); });
    PlayingPieceTemplate& piece = workshop.Templates.PlayingPiece;
    LoadFramedPicture(run, workshop, piece.picPlayingPieceImage, character.PlayingPiece);
    piece.picPlayingPieceImage.MoveToTwips(character.PlayingPieceLeft, character.PlayingPieceTop);
    piece.lblPlayingPieceName.Caption = character.Name;
}

struct AttributeStrip {
    const char* Word;
    Colour ForeColor;
    Turn Direction;
};

constexpr std::array<AttributeStrip, 4> AttributeStrips = {{{"STRENGTH", 0x101FFF, Turn::Clockwise},
                                                            {"CRAFT", 0xF0BF00, Turn::Clockwise},
                                                            {"GOLD", 0x0FB0FF, Turn::CounterClockwise},
                                                            {"LIVES", 0x00B700, Turn::CounterClockwise}}};

QString AttributeText(const QString& word, const QString& value)
{
    if (value == QLatin1String("---"))
        return word;
    return value.startsWith(QLatin1Char('+')) ? word + value : word + QLatin1Char(' ') + value;
}

// Composition of the card

void PaintPictures(Workshop& workshop, const Character& character, QPoint panel)
{
    const CharacterTemplate& t = workshop.Templates.Character;
    PictureBox& picACard = workshop.Surfaces.picACard;
    for (const Box& strip : t.picCharAttrDisp)
        picACard.PaintPicture(strip.Surface->Image(), strip.Left, strip.Top);
    if (!character.Background.isEmpty())
        picACard.PaintPicture(t.picBackgroundChar.Surface->Image(), panel.x(), panel.y());
    FramedPicture picture = FramedPictureOf(character, t.picFrameCharacter, t.picImageCharacter);
    picture.Origin = panel;
    PaintPictureBlock(picACard, workshop.Surfaces.picWhite, picture);
    PaintSymbol(workshop, t.picSymbolCharacter, panel);
}

/// Prints a title and its value, each at the left of its box.
void PrintPair(PictureBox& surface, QPoint panel, const Box& title, const Box& box, const QString& text)
{
    PrintAt(surface, title.Left + panel.x(), title.Top + panel.y(), title.Caption);
    PrintAt(surface, box.Left + panel.x(), box.Top + panel.y(), text);
}

void PrintTexts(Workshop& workshop, const Character& character, int16 index, QPoint panel)
{
    const CharacterTemplate& t = workshop.Templates.Character;
    const SetHeader& header = workshop.Set.Header;
    PictureBox& picACard = workshop.Surfaces.picACard;
    UseFont(picACard, header.FontCharacter);
    for (const Box* label : {&t.lblCharacter, &t.lblObjects, &t.lblFollowers})
        PrintCentred(picACard, *label, label->Caption);
    UseFont(picACard, header.FontAlignment);
    PrintPair(picACard, panel, t.lblAlignmentTitle, t.lblAlignment, character.Alignment);
    PrintPair(picACard, panel, t.lblStartTitle, t.lblStart, character.StartArea);
    UseFont(picACard, header.FontSpecialTitle);
    PrintCentred(picACard, t.lblSpecialTitle, t.lblSpecialTitle.Caption, panel);
    UseFont(picACard, header.FontSpecial);
    PrintWrapped(picACard, t.lblSpecial, character.SpecialAbilities, LineForm::Plain, panel);
    if (header.Autonumber) {
        UseFont(picACard, header.FontAutonumber);
        PrintIndex(picACard, t.lblAutonumberCharacter.Left + panel.x(),
                   t.lblAutonumberCharacter.Top + panel.y(), index);
    }
    PrintWatermark(picACard, t.lblWatermark, panel);
}

void DrawCharacterCard(Workshop& workshop, int16 index, FontSpec& pen)
{
    const CharacterTemplate& t = workshop.Templates.Character;
    const Character& character = workshop.Set.Characters[index];
    const QPoint panel = t.picBackgroundChar.Place().topLeft();
    BeginCard(workshop.Surfaces.picACard, t.picCharacter, pen);
    workshop.Surfaces.picACard.SetPicture(t.picCharacter.Surface->GetPicture());
    PaintPictures(workshop, character, panel);
    PrintTexts(workshop, character, index, panel);
    pen = workshop.Surfaces.picACard.Pen();
}

// Composition of the playing piece

FramedPicture PiecePicture(const PlayingPieceTemplate& t, const Character& character)
{
    const Box& frame = t.picPlayingPieceFrame;
    const Box& image = t.picPlayingPieceImage;
    const bool isSet = !character.PlayingPiece.isEmpty();
    return {.Frame = frame,
            .Image = image,
            .Clip = {.Frame = {frame.Width, frame.Height},
                     .Picture = {image.Width, image.Height},
                     .PictureLeft = character.PlayingPieceLeft,
                     .PictureTop = character.PlayingPieceTop},
            .IsShown = isSet,
            .IsSet = isSet};
}

void DrawPlayingPiece(Workshop& workshop, int16 index, CarriedPens& pens)
{
    const PlayingPieceTemplate& t = workshop.Templates.PlayingPiece;
    PictureBox& picACardPP = workshop.Surfaces.picACardPP;
    BeginCard(picACardPP, t.picPlayingPiece, pens.Piece);
    PaintPictureBlock(picACardPP, workshop.Surfaces.picWhite,
                      PiecePicture(t, workshop.Set.Characters[index]));
    const QRect cutLine = t.CutLine.Place();
    picACardPP.LineBox(cutLine.left(), cutLine.top(), cutLine.right(), cutLine.bottom());
    // Kept: sets the piece's font on the card surface instead of picACardPP. So the name is printed in the
    // font of the version mark before it, and the outline of the next card has the colour of this font.
    UseFont(workshop.Surfaces.picACard, workshop.Set.Header.FontPlayingPiece);
    PrintCentred(picACardPP, t.lblPlayingPieceName, t.lblPlayingPieceName.Caption);
    PrintWatermark(picACardPP, t.lblWatermark);
    pens = {.Card = workshop.Surfaces.picACard.Pen(), .Piece = picACardPP.Pen()};
}

} // namespace

CompositionFailure ShowCharacter(Workshop& workshop, int16 index)
{
    return RunShow(workshop, [&](ShowRun& run) {
        CharacterTemplate& t = workshop.Templates.Character;
        const Character& character = workshop.Set.Characters[index];
        ShowTexts(workshop, character, index);
        PlaceFrame(run, t, character);
        ShowPictureFrame(t, character.ShowPicture);
        LoadPictures(run, workshop, character);
        for (int i = 0; const auto attribute : CharacterAttributes)
            DrawCharAttribute(workshop, i++, character.*attribute);
        DrawCharacterCard(workshop, index, workshop.Carried.Card);
        DrawPlayingPiece(workshop, index, workshop.Carried);
    });
}

void PlaceCharacterPicture(Workshop& workshop, int16 index)
{
    CharacterTemplate& t = workshop.Templates.Character;
    const Character& character = workshop.Set.Characters[index];
    ShowRun run;
    PlaceFrame(run, t, character);
    t.lblPicSizeCharacter.Left = t.picFrameCharacter.Left + t.picFrameCharacter.Width;
    PlaceTexts(t);
    t.picImageCharacter.Surface->Refresh();
    t.picImageCharacter.MoveToTwips(character.PictureLeft, character.PictureTop);
}

void PlacePlayingPiecePicture(Workshop& workshop, int16 index)
{
    const Character& character = workshop.Set.Characters[index];
    workshop.Templates.PlayingPiece.picPlayingPieceImage.MoveToTwips(character.PlayingPieceLeft,
                                                                     character.PlayingPieceTop);
}

void PlaceHandle(CharacterTemplate& t, int left)
{
    t.lblPicSizeCharacter.Left = left;
    t.picFrameCharacter.SetWidth(left - t.picFrameCharacter.Left);
    PlaceTexts(t);
}

void ShowPictureFrame(CharacterTemplate& t, bool visible)
{
    t.picFrameCharacter.Visible = visible;
    t.lblPicSizeCharacter.Visible = visible;
    t.lblPicSizeCharacter.Left = visible ? t.picFrameCharacter.Left + t.picFrameCharacter.Width : 0;
    PlaceTexts(t);
}

void DrawCharAttribute(Workshop& workshop, int index, const QString& value)
{
    const auto row = static_cast<std::size_t>(index);
    const AttributeStrip& strip = AttributeStrips[row];
    PictureBox& picCharAttribute = workshop.Surfaces.picCharAttribute;
    const QString text = AttributeText(QString::fromLatin1(strip.Word), value);
    picCharAttribute.SetPicture({});
    picCharAttribute.ForeColor = strip.ForeColor;
    PrintAt(picCharAttribute, picCharAttribute.Width() / 2.0 - picCharAttribute.TextWidth(text) / 2,
            picCharAttribute.Height() / 2.0 - picCharAttribute.TextHeight(text) / 2, text);
    picCharAttribute.Freeze();
    RotatePicture(picCharAttribute, *workshop.Templates.Character.picCharAttrDisp[row].Surface,
                  strip.Direction);
}

QString CharacterFrameSizeText(const Box& frame)
{
    return QStringLiteral("(%1W*%2H)").arg(frame.Width).arg(frame.Height);
}

} // namespace deckforge
