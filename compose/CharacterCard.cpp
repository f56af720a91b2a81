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

void PlaceFrame(CharacterTemplate& t, const Character& character)
{
    t.picFrameCharacter.SetHeight(character.Frame ? FramedHeight : UnframedHeight);
    t.picFrameCharacter.Outlined = character.Frame;
    IgnoreFailure([&] { t.picFrameCharacter.SetWidth(character.FrameHeight); });
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

class CharacterComposer final : Composer {
public:
    CharacterComposer(Workshop& workshop, int16 index)
        : Composer(workshop, index), m_character(workshop.Set.Characters[index]),
          m_boxes(workshop.Templates.Character), m_piece(workshop.Templates.PlayingPiece)
    {
    }

    void Compose()
    {
        ShowTexts();
        PlaceFrame(m_boxes, m_character);
        ShowPictureFrame(m_boxes, m_character.ShowPicture);
        LoadPictures();
        for (int i = 0; const auto attribute : CharacterAttributes)
            DrawCharAttribute(m_boxes, m_surfaces.picCharAttribute, i++, m_character.*attribute);
        DrawCard();
        DrawPlayingPiece();
    }

private:
    void ShowTexts()
    {
        m_boxes.lblCharacter.Caption = m_character.Name;
        m_boxes.lblAlignment.Caption = m_character.Alignment;
        m_boxes.lblStart.Caption = m_character.StartArea;
        m_boxes.lblSpecial.Caption = m_character.SpecialAbilities;
        m_boxes.lblAutonumberCharacter.Caption = QString::number(m_index);
    }

    void LoadPictures()
    {
        ReportMissingOn(m_standard.picImage, m_character.Picture);
        LoadFramedPicture(m_boxes.picImageCharacter, m_character.Picture);
        m_boxes.picImageCharacter.MoveToTwips(m_character.PictureLeft, m_character.PictureTop);
        // Kept: a missing back or playing piece is reported as a missing background, too.
        ReportMissingOn(m_standard.picCard, m_character.Background, "Missing background.");
        PictureBox& panel = *m_boxes.picBackgroundChar.Surface;
        Load([&] { panel.SetPicture(m_pictures.LoadPicture(m_character.Background)); });
        panel.Refresh();
        Load([&] { m_boxes.picCharacterBack.Surface->SetPicture(Back()); });
        LoadFramedPicture(m_piece.picPlayingPieceImage, m_character.PlayingPiece);
        PlacePlayingPiecePicture(m_piece, m_character);
        m_piece.lblPlayingPieceName.Caption = m_character.Name;
    }

    /// The first back if the index is not in the list.
    [[nodiscard]] Picture Back()
    {
        const int16 back = m_character.CardBack;
        if (back == UserDefinedCharacterBack)
            return m_pictures.LoadPicture(m_character.CardBackPicture);
        return m_art.imgChB(back >= 0 && back < UserDefinedCharacterBack ? back : 0);
    }

    void DrawCard()
    {
        BeginCard(m_picACard, m_boxes.picCharacter, m_pens.Card);
        m_picACard.SetPicture(m_boxes.picCharacter.Surface->GetPicture());
        for (const Box& strip : m_boxes.picCharAttrDisp)
            m_picACard.PaintPicture(strip.Surface->Image(), strip.Left, strip.Top);
        const Box& panel = m_boxes.picBackgroundChar;
        if (!m_character.Background.isEmpty())
            m_picACard.PaintPicture(panel.Surface->Image(), panel.Left, panel.Top);
        const Box& frame = m_boxes.picFrameCharacter;
        const Box& image = m_boxes.picImageCharacter;
        if (m_character.ShowPicture)
            PaintFramed(m_picACard, frame, image,
                        ClipInFrame(frame, image, m_character.PictureLeft, m_character.PictureTop));
        PaintSymbol(m_boxes.picSymbolCharacter);
        PrintTexts(m_picACard, m_boxes, m_header);
        PrintIndex(m_boxes.lblAutonumberCharacter, m_boxes.lblAutonumberCharacter.OnCard().y());
        FinishCard(m_boxes.lblWatermark);
    }

    void DrawPlayingPiece()
    {
        PictureBox& picACardPP = m_surfaces.picACardPP;
        BeginCard(picACardPP, m_piece.picPlayingPiece, m_pens.Piece);
        const Box& frame = m_piece.picPlayingPieceFrame;
        const Box& image = m_piece.picPlayingPieceImage;
        if (!m_character.PlayingPiece.isEmpty())
            PaintFramed(picACardPP, frame, image,
                        ClipInFrame(frame, image, m_character.PlayingPieceLeft, m_character.PlayingPieceTop));
        const QRect cutLine = m_piece.CutLine.Place();
        picACardPP.LineBox(cutLine.left(), cutLine.top(), cutLine.right(), cutLine.bottom());
        // Kept: sets the piece's font on the card surface instead of picACardPP. So the name is printed in
        // the font of the version mark before it, and the outline of the next card has the colour of this
        // font.
        UseFont(m_picACard, m_header.FontPlayingPiece);
        PrintLine(picACardPP, m_piece.lblPlayingPieceName);
        PrintWatermark(picACardPP, m_piece.lblWatermark);
        m_pens = {.Card = m_picACard.Pen(), .Piece = picACardPP.Pen()};
    }

    const Character& m_character;
    CharacterTemplate& m_boxes;
    PlayingPieceTemplate& m_piece;
};

} // namespace

CompositionFailure ShowCharacter(Workshop& workshop, int16 index)
{
    return Compose<CharacterComposer>(workshop, index);
}

void PlaceCharacterPicture(CharacterTemplate& t, const Character& character)
{
    PlaceFrame(t, character);
    t.lblPicSizeCharacter.Left = t.picFrameCharacter.Left + t.picFrameCharacter.Width;
    PlaceTexts(t);
    t.picImageCharacter.Surface->Refresh();
    t.picImageCharacter.MoveToTwips(character.PictureLeft, character.PictureTop);
}

void PlacePlayingPiecePicture(PlayingPieceTemplate& t, const Character& character)
{
    t.picPlayingPieceImage.MoveToTwips(character.PlayingPieceLeft, character.PlayingPieceTop);
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

namespace {

/// A value of two digits is printed smaller if the strip is too short for it.
void FitFont(PictureBox& strip, const QString& text)
{
    constexpr double pixel = 0.75; // in points
    while (strip.TextWidth(text) > strip.Width() && strip.Font().Size > 2 * pixel)
        strip.SetFontSize(strip.Font().Size - pixel);
}

} // namespace

void DrawCharAttribute(CharacterTemplate& t, PictureBox& picCharAttribute, int index, const QString& value)
{
    const auto row = static_cast<std::size_t>(index);
    const AttributeStrip& strip = AttributeStrips[row];
    const QString text = AttributeText(QString::fromLatin1(strip.Word), value);
    picCharAttribute.SetPicture({});
    picCharAttribute.ForeColor = strip.ForeColor;
    const double points = picCharAttribute.Font().Size;
    FitFont(picCharAttribute, text);
    PrintAt(picCharAttribute, picCharAttribute.Width() / 2.0 - picCharAttribute.TextWidth(text) / 2,
            picCharAttribute.Height() / 2.0 - picCharAttribute.TextHeight(text) / 2, text);
    picCharAttribute.SetFontSize(points);
    picCharAttribute.Freeze();
    RotatePicture(picCharAttribute, *t.picCharAttrDisp[row].Surface, strip.Direction);
}

QString CharacterFrameSizeText(const Box& frame)
{
    return QStringLiteral("(%1W*%2H)").arg(frame.Width).arg(frame.Height);
}

} // namespace deckforge
