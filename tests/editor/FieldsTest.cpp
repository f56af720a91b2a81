// SPDX-License-Identifier: GPL-3.0-or-later

#include "editor/WindowTest.h"

namespace deckforge {

class FieldsTest : public WindowTest {
protected:
    QString CardType() const
    {
        const Card& card = FirstCard();
        return QStringList({card.Type, card.SubType, card.TypeReversed, card.SubTypeReversed,
                            QString::number(card.TypeIndex), card.Number})
            .join('|');
    }
};

TEST_F(FieldsTest, AChosenTypeSetsTheNumberAndATypedOneDoesNot)
{
    Choose("cboType", 5);
    EXPECT_EQ(CardType(), "ENEMY-|Spirit|-ENEMY|Spirit|6|3");
    EXPECT_EQ(Preview().lblType[2].Caption + Preview().lblNumber.Caption, "Spirit3");
    Choose("cboType", 12);
    EXPECT_EQ(CardType(), "SPELL||SPELL||13|");
    Type("cboNumber", "2");
    Type("cboType", "HERO");
    EXPECT_EQ(CardType(), "HERO||HERO||-1|2");
    EXPECT_EQ(Preview().lblType[1].Caption, "HERO");
    Type("cboType", "EVENT-Law");
    EXPECT_EQ(CardType(), "EVENT-Law||Law-EVENT||8|1") << "spelled like an entry it is that type";
    EXPECT_EQ(Text("cboNumber") + Preview().lblNumber.Caption, "11");
    QTest::keyClicks(&Line("cboType"), "yer");
    EXPECT_EQ(CardType(), "EVENT-Lawyer||EVENT-Lawyer||-1|2") << "typing on brings the number back";
    Type("cboType", "SPELL");
    QTest::keyClick(&Find<QComboBox>("cboType"), Qt::Key_Tab);
    EXPECT_EQ(CardType(), "SPELL||SPELL||13|");
    Type("cboNumber", "4");
    QTest::keyClick(&Line("cboType"), Qt::Key_Return);
    EXPECT_EQ(CardType(), "SPELL||SPELL||13|") << "Enter chooses the entry again";
}

TEST_F(FieldsTest, AUserDefinedBackIsAddedToTheTable)
{
    auto& list = Find<QComboBox>("cboCardBack");
    user.WillCancelDialog();
    Choose("cboCardBack", list.count() - 1);
    EXPECT_EQ(FirstCard().CardBack, 1);
    const QString path = folder.WritePicture("owl.of.night.bmp");
    for (const QString& choice : {path, folder.Path("nodot")}) {
        user.WillChoose(choice);
        Choose("cboCardBack", list.count() - 1);
        EXPECT_EQ(FirstCard().CardBack, 28) << "one that is missing is not taken";
        EXPECT_EQ(list.currentIndex(), 27) << "the list shows the back that the card has";
    }
    EXPECT_EQ(Set().CardBacks[28].Name + Set().CardBacks[28].Picture, "owl" + path);
    EXPECT_EQ(Set().CardBacks[29].Name, "");
    EXPECT_EQ(list.itemText(27) + list.itemText(list.count() - 1), "owlUser defined");
    EXPECT_EQ(Preview().picBack.Surface->GetPicture().Size(), QSize(40, 30));
}

TEST_F(FieldsTest, PictureButtonsFillFieldPreviewAndPathBox)
{
    const QString path = folder.WritePicture("imp.bmp");
    ChoosePicture("cmdGetPic", path);
    EXPECT_EQ(Preview().picImage.Place(), QRect(0, 0, 40, 30));
    EXPECT_EQ(Find<QLineEdit>("txtPicture").toolTip(), path);
    user.WillCancelDialog();
    Click("cmdGetPic");
    EXPECT_EQ(user.OpenDialogs.back().Folder, folder.WithSeparator());
    EXPECT_EQ(FirstCard().Picture, path);

    // A picture that cannot be loaded is stored in the record but not shown.
    const QString damaged = folder.Write("bad.bmp", "BM and no more");
    ChoosePicture("cmdGetPic", damaged);
    EXPECT_EQ(FirstCard().Picture, damaged);
    EXPECT_EQ(Text("txtPicture"), "imp.bmp");
    EXPECT_EQ(Preview().picImage.Surface->GetPicture().Size(), QSize(40, 30));
    EXPECT_TRUE(user.Boxes.empty());

    Click("cmdDelPic");
    EXPECT_EQ(FirstCard().Picture + Text("txtPicture"), "");
    EXPECT_TRUE(Preview().picImage.Surface->GetPicture().IsEmpty());
    user.WillCancelDialog();
    Click("cmdBackPic"); // each button remembers its own folder
    EXPECT_EQ(user.OpenDialogs.back().Folder, "");
}

TEST_F(FieldsTest, EveryPictureButtonFillsItsOwnField)
{
    for (const int tab : {2, 3, 4})
        SelectTab(tab);
    const LargeCard& large = Set().LargeCards[1];
    const std::tuple<int, const char*, const char*, const char*, const QString&> rows[] = {
        {1, "cmdBackPic", "cmdDelBackPic", "picture", FirstCard().Background},
        {2, "cmdGetPicLarge", "cmdDelPicLarge", "picture", large.Picture},
        {2, "cmdBackPicLarge", "cmdDelBackPicLarge", "picture", large.Background},
        {2, "cmdCardbackLarge", "cmdDelCardbackLarge", "picture", large.CardBack},
        {3, "cmdGetCharPic", "cmdDelCharPic", "characterpicture", Hero().Picture},
        {3, "cmdBackCharPic", "cmdDelBackCharPic", "background picture", Hero().Background},
        {3, "cmdGetPlayingPiecePic", "cmdDelPlayingPiecePic", "playing piece picture", Hero().PlayingPiece},
        {4, "cmdGetNewBackPicture", "cmdDelNewBackPicture", "card back picture", Back().Picture}};
    const QString path = folder.WritePicture("imp.bmp");
    for (const auto& [tab, choose, clear, title, field] : rows) {
        SCOPED_TRACE(choose);
        SelectTab(tab);
        ChoosePicture(choose, path);
        EXPECT_EQ(field, path);
        EXPECT_EQ(user.OpenDialogs.back().Title, QString("Choose ") + title);
        Click(clear);
        EXPECT_EQ(field, "");
    }
}

TEST_F(FieldsTest, TheStartAreaIsStoredWithoutItsRegionAndAttributesAsTyped)
{
    SelectTab(3);
    Choose("cboStartArea", 19);
    EXPECT_EQ(Text("cboStartArea"), "MAIN-WARLOCK'S CAVE");
    EXPECT_EQ(Hero().StartArea, "WARLOCK'S CAVE");
    EXPECT_EQ(Boxes().Character.lblStart.Caption, "WARLOCK'S CAVE");
    Type("txtCharName", "Ogre");
    EXPECT_EQ(Boxes().PlayingPiece.lblPlayingPieceName.Caption, "Ogre");

    user.WillChoose(folder.WritePicture("back.bmp"));
    Choose("cboCharacterCardback", 3);
    EXPECT_EQ(std::tuple(Hero().CardBack, Hero().CardBackPicture), std::tuple(3, folder.Path("back.bmp")));
    Choose("cboCharacterCardback", 1);
    EXPECT_EQ(std::tuple(Hero().CardBack, Hero().CardBackPicture), std::tuple(1, QString()));
}

TEST_F(FieldsTest, ColoursAreAppliedToRecordAndSurface)
{
    constexpr Colour red = 0x0000FF;
    for (const int tab : {4, 1})
        SelectTab(tab);
    Type("txtArtist", "A. Painter");
    const std::tuple<int, const char*, const char*, const Colour&> rows[] = {
        {1, "cmdColour", "Choose card background colour", FirstCard().Color},
        {4, "cmdColor", "Choose Inner Color", Back().InnerColor},
        {4, "cmdFontColor", "Choose Font Color", Back().Font.Color},
        {4, "cmdFrameColor", "Choose Frame Color", Back().FrameColor},
        {4, "cmdNewBackColor", "Choose Outer Color", Back().BackColor}};
    for (const auto& [tab, button, title, field] : rows) {
        SelectTab(tab);
        user.WillPick(red);
        Click(button);
        EXPECT_EQ(field, red) << button;
        EXPECT_EQ(user.ColourTitles.back(), title);
        user.WillCancelDialog();
        Click(button);
        EXPECT_EQ(field, red) << button;
    }
    EXPECT_EQ(Preview().picCard.Surface->GetPixel(3, 250), red);
    EXPECT_EQ(Preview().picArtistDest.Surface->GetPixel(3, 5), red) << "no strip beside the artist's name";
    EXPECT_EQ(Boxes().NewBack.picNewBack.Surface->GetPixel(50, 50), red);
}

TEST_F(FieldsTest, FontsOpenOnADoubleClickOnStandardCardsAndOnAClickElsewhere)
{
    const FontSpec chosen = SmallFont(9, true, 0x00FF00);
    const QPoint title = PointOn(Preview().lblTitle);
    QTest::mouseClick(&View(), Qt::LeftButton, {}, title); // a single click opens no dialog
    user.WillPick(chosen);
    QTest::mouseDClick(&View(), Qt::LeftButton, {}, title);
    EXPECT_EQ(Set().Header.FontTitle, chosen);
    SelectTab(3);
    user.WillPick(chosen);
    QTest::mouseClick(&View(), Qt::LeftButton, {}, PointOn(Boxes().Character.lblStart));
    EXPECT_EQ(Set().Header.FontAlignment, chosen);
}

TEST_F(FieldsTest, ABackIsRedrawnAtEveryChangeOfItsText)
{
    SelectTab(4);
    Type("txtBackText", "OWLS");
    Find<QLineEdit>("txtBackText").setCursorPosition(1);
    QTest::keyClicks(&Find<QLineEdit>("txtBackText"), "xy");
    EXPECT_EQ(Boxes().NewBack.lblBackTitle.Caption, "OxyWLS") << "the cursor stays";

    // A missing picture is reported once, not for each letter.
    Click("chkNewBackPicture");
    ChoosePicture("cmdGetNewBackPicture", folder.WritePicture("owl.bmp"));
    ASSERT_TRUE(QFile::remove(Back().Picture));
    Type("txtBackText", "BATS");
    EXPECT_EQ(user.BoxTexts(), QStringList("Varnhelm Deck Forge|Run-time error '53':\r\n\r\nFile not found"));
    EXPECT_EQ(Back().BackText, "BATS");
}

TEST_F(FieldsTest, NumbersAndSwitchesOfTheSetUpdateRecordAndPreview)
{
    Click("chkAutonumber");
    EXPECT_TRUE(Preview().lblAutonumber.Visible);
    EXPECT_EQ(Preview().lblAutonumber.Caption, "1");
    Choose("cboSaveFormat", 2);
    EXPECT_EQ(Set().Header.SaveFormat, 2);
    Click("chkNoBack");
    EXPECT_FALSE(Preview().picBack.Visible);
    ChoosePicture("cmdSaveTo", folder.WithSeparator());
    EXPECT_EQ(Set().Header.SaveTo, folder.WithSeparator());
    EXPECT_EQ(Text("txtSaveTo"), folder.WithSeparator());
    user.WillCancelDialog();
    Click("cmdSaveTo");
    EXPECT_EQ(Set().Header.SaveTo + Text("txtSaveTo"), "") << "a cancelled folder empties it";
}

} // namespace deckforge
