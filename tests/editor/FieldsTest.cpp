#include "editor/WindowTest.h"

namespace deckforge {

namespace {

class FieldsTest : public WindowTest {
protected:
    const Card& FirstCard() const { return Set().Cards[1]; }
    const Character& Hero() const { return Set().Characters[1]; }
    const NewCardBack& Back() const { return Set().NewCardBacks[1]; }
    QString CardType() const
    {
        const Card& card = FirstCard();
        return QStringList({card.Type, card.SubType, card.TypeReversed, card.SubTypeReversed,
                            QString::number(card.TypeIndex), card.Number})
            .join(QLatin1Char('|'));
    }
};

TEST_F(FieldsTest, AChosenTypeBringsItsNumber)
{
    Choose("cboType", 5);
    EXPECT_EQ(CardType(), QStringLiteral("ENEMY-|Spirit|-ENEMY|Spirit|6|3"));
    EXPECT_EQ(Preview().lblType[2].Caption, QStringLiteral("Spirit"));
    EXPECT_EQ(Preview().lblNumber.Caption, QStringLiteral("3"));
    for (int again = 0; again < 2; ++again) {
        Choose("cboType", 12);
        EXPECT_EQ(CardType(), QStringLiteral("SPELL||SPELL||13|"));
        EXPECT_EQ(Find<QComboBox>("cboNumber").currentText(), QString());
    }
}

TEST_F(FieldsTest, ATypedTypeIsTheCardsOwn)
{
    auto& cboType = Find<QComboBox>("cboType");
    TypeIn(cboType, QStringLiteral("HERO"));
    EXPECT_EQ(CardType(), QStringLiteral("HERO||HERO||-1|2"));
    EXPECT_EQ(Preview().lblType[1].Caption, QStringLiteral("HERO"));
    EXPECT_EQ(cboType.currentText(), QStringLiteral("HERO"));
    // Spelled like an entry it takes the row above, and leaves the number.
    TypeIn(cboType, QStringLiteral("SPELL"));
    EXPECT_EQ(CardType(), QStringLiteral("PLACE||PLACE||6|2"));
    QTest::keyClick(&cboType, Qt::Key_Tab);
    EXPECT_EQ(CardType(), QStringLiteral("PLACE||PLACE||6|2")) << "leaving the box chooses nothing";
    QTest::keyClick(cboType.lineEdit(), Qt::Key_Return);
    EXPECT_EQ(CardType(), QStringLiteral("SPELL||SPELL||13|")) << "Enter chooses the entry";
    TypeIn(Find<QComboBox>("cboNumber"), QStringLiteral("2"));
    TypeIn(Find<QComboBox>("cboNumber"), QStringLiteral("11"));
    EXPECT_EQ(FirstCard().Number, QStringLiteral("11"));
}

TEST_F(FieldsTest, AUserDefinedBackJoinsTheTable)
{
    auto& list = Find<QComboBox>("cboCardBack");
    const int userDefined = list.count() - 1;
    user.WillCancelDialog();
    Choose("cboCardBack", userDefined);
    EXPECT_EQ(list.currentText(), QStringLiteral("User defined"));
    EXPECT_EQ(FirstCard().CardBack, 1);

    const QString path = PictureFile("owl.of.night.bmp");
    user.WillChoose(path);
    Choose("cboCardBack", userDefined);
    EXPECT_EQ(user.OpenDialogs.back().Title, QStringLiteral("Choose picture"));
    EXPECT_EQ(FirstCard().CardBack, 28);
    EXPECT_EQ(Set().CardBacks[28].Name + Set().CardBacks[28].Picture, QStringLiteral("owl") + path);
    EXPECT_EQ(list.currentText(), QStringLiteral("owl"));
    EXPECT_EQ(list.itemText(list.count() - 1), QStringLiteral("User defined"));
    EXPECT_EQ(Preview().picBack.Surface->GetPicture().Size(), QSize(40, 30));

    user.WillChoose(folder.Path(QStringLiteral("nodot")));
    Choose("cboCardBack", list.count() - 1);
    EXPECT_EQ(Set().CardBackCount, 29);
    EXPECT_EQ(Set().CardBacks[29].Name, QString());
    EXPECT_EQ(FirstCard().CardBack, 28);
    user.WillChoose(path);
    Choose("cboCardBack", list.count() - 1);
    EXPECT_EQ(FirstCard().CardBack, 30) << "entries and rows are in step";
}

TEST_F(FieldsTest, PictureButtonsFillFieldPreviewAndPathBox)
{
    OpenChangedSet([](CardSet& set) { set.Cards[1].PictureLeft = 150; });
    const QString path = PictureFile("imp.bmp");
    user.WillChoose(path);
    Click("cmdGetPic");
    EXPECT_EQ(user.OpenDialogs.back().Folder, QString());
    EXPECT_EQ(user.OpenDialogs.back().FilterIndex, 2);
    EXPECT_EQ(FirstCard().Picture, path);
    EXPECT_EQ(FirstCard().PictureLeft, 150);
    EXPECT_EQ(Preview().picImage.Place(), QRect(0, 0, 40, 30));
    EXPECT_EQ(Text("txtPicture"), QStringLiteral("imp.bmp"));
    EXPECT_EQ(Find<QLineEdit>("txtPicture").toolTip(), path);

    user.WillCancelDialog();
    Click("cmdGetPic");
    EXPECT_EQ(user.OpenDialogs.back().Folder, folder.WithSeparator());
    EXPECT_EQ(FirstCard().Picture, path);

    // One that cannot be loaded is in the record, and nowhere else.
    const QString damaged = folder.Write(QStringLiteral("bad.bmp"), "BM and no more");
    user.WillChoose(damaged);
    Click("cmdGetPic");
    EXPECT_EQ(FirstCard().Picture, damaged);
    EXPECT_EQ(Text("txtPicture"), QStringLiteral("imp.bmp"));
    EXPECT_EQ(Preview().picImage.Surface->GetPicture().Size(), QSize(40, 30));
    EXPECT_EQ(user.BoxTexts().size(), 1U) << "the box of the opened set alone";

    Click("cmdDelPic");
    EXPECT_EQ(FirstCard().Picture + Text("txtPicture"), QString());
    EXPECT_EQ(Find<QLineEdit>("txtPicture").toolTip(), path);
    EXPECT_TRUE(Preview().picImage.Surface->GetPicture().IsEmpty());

    user.WillCancelDialog();
    Click("cmdBackPic"); // each button has a folder of its own
    EXPECT_EQ(user.OpenDialogs.back().Folder, QString());
}

TEST_F(FieldsTest, EveryPictureButtonCarriesToItsOwnField)
{
    SelectTab(2);
    SelectTab(3);
    SelectTab(4);
    struct Row {
        int Tab;
        const char* Choose;
        const char* Clear;
        const char* Title;
        std::function<QString()> Field;
    };
    const LargeCard& large = Set().LargeCards[1];
    const Row rows[] = {
        {1, "cmdBackPic", "cmdDelBackPic", "Choose picture", [&] { return FirstCard().Background; }},
        {2, "cmdGetPicLarge", "cmdDelPicLarge", "Choose picture", [&] { return large.Picture; }},
        {2, "cmdBackPicLarge", "cmdDelBackPicLarge", "Choose picture", [&] { return large.Background; }},
        {2, "cmdCardbackLarge", "cmdDelCardbackLarge", "Choose picture", [&] { return large.CardBack; }},
        {3, "cmdGetCharPic", "cmdDelCharPic", "Choose characterpicture", [&] { return Hero().Picture; }},
        {3, "cmdBackCharPic", "cmdDelBackCharPic", "Choose background picture",
         [&] { return Hero().Background; }},
        {3, "cmdGetPlayingPiecePic", "cmdDelPlayingPiecePic", "Choose playing piece picture",
         [&] { return Hero().PlayingPiece; }},
        {4, "cmdGetNewBackPicture", "cmdDelNewBackPicture", "Choose card back picture",
         [&] { return Back().Picture; }},
    };
    const QString path = PictureFile("imp.bmp");
    for (const Row& row : rows) {
        SelectTab(row.Tab);
        user.WillChoose(path);
        Click(row.Choose);
        EXPECT_EQ(row.Field(), path) << row.Choose;
        EXPECT_EQ(user.OpenDialogs.back().Title, QLatin1String(row.Title));
        Click(row.Clear);
        EXPECT_EQ(row.Field(), QString()) << row.Clear;
    }
}

TEST_F(FieldsTest, TheSymbolLiesElsewhereOnTheCharacterWhenItIsChosen)
{
    SelectTab(3);
    const QString path = PictureFile("sun.bmp", {9, 10});
    user.WillChoose(path);
    Click("cmdSymbol");
    EXPECT_EQ(Set().Header.Symbol, path);
    EXPECT_EQ(Boxes().Standard.picSymbol.Place(), QRect(0, 256 - 10 - 2, 9, 10));
    EXPECT_EQ(Boxes().Large.picSymbolLarge.Place(), QRect(304 - 9 - 2, 256 - 10 - 2, 9, 10));
    EXPECT_EQ(Boxes().Character.picSymbolCharacter.Place(), QRect(304 - 9 - 16, 256 - 10 - 16, 9, 10));
    Click("cmdDelSymbol");
    EXPECT_EQ(Set().Header.Symbol + Text("txtSymbol"), QString());
    EXPECT_FALSE(Boxes().Standard.picSymbol.Visible);
    EXPECT_TRUE(Boxes().Character.picSymbolCharacter.Visible) << "until a character is shown";
    ClickTab(3);
    EXPECT_FALSE(Boxes().Character.picSymbolCharacter.Visible);
}

TEST_F(FieldsTest, ACancelledFolderEmptiesSaveTo)
{
    user.WillChoose(folder.WithSeparator());
    Click("cmdSaveTo");
    EXPECT_EQ(Set().Header.SaveTo, folder.WithSeparator());
    EXPECT_EQ(Text("txtSaveTo"), folder.WithSeparator());
    user.WillCancelDialog();
    Click("cmdSaveTo");
    EXPECT_EQ(Set().Header.SaveTo + Text("txtSaveTo"), QString());
}

TEST_F(FieldsTest, ACharacterTakesThePlaceOfAnAreaAndAttributesAsTyped)
{
    SelectTab(3);
    Choose("cboStartArea", 19);
    EXPECT_EQ(Find<QComboBox>("cboStartArea").currentText(), QStringLiteral("MAIN-WARLOCK'S CAVE"));
    EXPECT_EQ(Hero().StartArea, QStringLiteral("WARLOCK'S CAVE"));
    EXPECT_EQ(Boxes().Character.lblStart.Caption, QStringLiteral("WARLOCK'S CAVE"));
    Choose("cboStartArea", 81);
    EXPECT_EQ(Hero().StartArea, QStringLiteral("PLANET-FALL"));
    TypeIn(Find<QComboBox>("cboStartArea"), QStringLiteral("A-B"));
    EXPECT_EQ(Hero().StartArea, QStringLiteral("A-B"));
    TypeIn(Find<QComboBox>("cboAlignment"), QStringLiteral("CHAOTIC"));
    TypeIn(Find<QComboBox>("cboCharAttr0"), QStringLiteral("+4"));
    TypeIn(Find<QComboBox>("cboCharAttr3"), QStringLiteral("9"));
    Type("txtCharName", QStringLiteral("Ogre"));
    EXPECT_EQ(Hero().Alignment + Hero().Strength + Hero().Lives, QStringLiteral("CHAOTIC+49"));
    EXPECT_EQ(Boxes().PlayingPiece.lblPlayingPieceName.Caption, QStringLiteral("Ogre"));

    user.WillChoose(PictureFile("back.bmp"));
    Choose("cboCharacterCardback", 3);
    EXPECT_EQ(Hero().CardBack, 3);
    EXPECT_EQ(Hero().CardBackPicture, folder.Path(QStringLiteral("back.bmp")));
    Choose("cboCharacterCardback", 1);
    EXPECT_EQ(Hero().CardBack, 1);
    EXPECT_EQ(Hero().CardBackPicture, QString());
}

TEST_F(FieldsTest, ColoursGoToRecordSwatchAndSurface)
{
    constexpr Colour red = 0x0000FF;
    user.WillPick(red);
    Click("picColour");
    EXPECT_EQ(FirstCard().Color, red);
    EXPECT_EQ(Preview().picCard.Surface->GetPixel(3, 250), red);
    user.WillPickNoColour();
    Click("cmdColour");
    EXPECT_EQ(FirstCard().Color, red);

    SelectTab(4);
    const struct {
        const char* Button;
        const char* Title;
        std::function<Colour()> Field;
    } rows[] = {{"cmdColor", "Choose Inner Color", [&] { return Back().InnerColor; }},
                {"cmdFontColor", "Choose Font Color", [&] { return Back().Font.Color; }},
                {"cmdFrameColor", "Choose Frame Color", [&] { return Back().FrameColor; }},
                {"cmdNewBackColor", "Choose Outer Color", [&] { return Back().BackColor; }}};
    for (const auto& row : rows) {
        user.WillPick(red);
        Click(row.Button);
        EXPECT_EQ(row.Field(), red) << row.Button;
        EXPECT_EQ(user.ColourTitles.back(), QLatin1String(row.Title));
    }
    EXPECT_EQ(Boxes().NewBack.picNewBack.Surface->GetPixel(50, 50), red);
}

TEST_F(FieldsTest, FontsOpenAtTwoClicksOnStandardCardsAndAtOneElsewhere)
{
    const FontSpec chosen = SmallFont(9, true, 0x00FF00);
    const QPoint title = PointOn(Preview().lblTitle);
    QTest::mouseClick(&View(), Qt::LeftButton, {}, title);
    EXPECT_TRUE(user.FontDialogs.empty());
    user.WillPick(chosen);
    QTest::mouseDClick(&View(), Qt::LeftButton, {}, title);
    EXPECT_EQ(Set().Header.FontTitle, chosen);
    EXPECT_EQ(Preview().lblTitle.Font, chosen);

    SelectTab(3);
    user.WillPick(chosen);
    QTest::mouseClick(&View(), Qt::LeftButton, {}, PointOn(Boxes().Character.lblStart));
    EXPECT_EQ(Set().Header.FontAlignment, chosen);
    EXPECT_EQ(Boxes().Character.lblAlignmentTitle.Font, chosen);

    SelectTab(4);
    user.WillPickNoFont();
    Click("cmdBackTextFont");
    EXPECT_EQ(user.FontDialogs.back().Name, QStringLiteral("Arial"));
    EXPECT_EQ(Back().Font.Size, 18);
}

TEST_F(FieldsTest, ABackIsShownAnewAtEveryChangeOfItsText)
{
    SelectTab(4);
    Type("txtBackText", QStringLiteral("OWLS"));
    Find<QLineEdit>("txtBackText").setCursorPosition(1);
    QTest::keyClicks(&Find<QLineEdit>("txtBackText"), QStringLiteral("xy"));
    EXPECT_EQ(Back().BackText, QStringLiteral("OxyWLS")) << "the cursor stays";
    EXPECT_EQ(Boxes().NewBack.lblBackTitle.Caption, QStringLiteral("OxyWLS"));
    const Box& title = Boxes().NewBack.lblBackTitle;
    EXPECT_NEAR(title.Top + title.Height / 2.0, 76, 0.5);
}

TEST_F(FieldsTest, NumbersAndSwitchesOfTheSetReachRecordAndPreview)
{
    Find<QSpinBox>("udCopy").setValue(4);
    EXPECT_EQ(FirstCard().Copies, 4);
    Click("chkAutonumber");
    EXPECT_TRUE(Preview().lblAutonumber.Visible);
    EXPECT_EQ(Preview().lblAutonumber.Caption, QStringLiteral("1"));
    Choose("cboSaveFormat", 2);
    EXPECT_EQ(Set().Header.SaveFormat, 2);
    Click("chkNoBack");
    EXPECT_FALSE(Preview().picBack.Visible);
    SelectTab(2);
    Click("chkNoBack");
    EXPECT_FALSE(Preview().picBack.Visible) << "not beside a large card";
}

TEST_F(FieldsTest, ShowingACardKeepsWhatItsControlsCannotHold)
{
    OpenChangedSet([](CardSet& set) {
        AddElement(set, StandardKind);
        set.Cards[1].Copies = -7;
        set.Cards[1].CardBack = 0;
        set.Cards[1].Number = QStringLiteral("many");
        set.Cards[1].TypeIndex = 9;
        set.Cards[1].Info = QStringLiteral("a\nb\rc");
    });
    Find<QScrollBar>("hsbCard").setValue(2);
    Find<QScrollBar>("hsbCard").setValue(1);
    EXPECT_EQ(FirstCard().Copies, -7);
    EXPECT_EQ(FirstCard().CardBack, 0);
    EXPECT_EQ(FirstCard().TypeIndex, 9);
    EXPECT_EQ(FirstCard().Info, QStringLiteral("a\nb\rc"));
    EXPECT_EQ(Find<QComboBox>("cboNumber").currentText(), QStringLiteral("many"));
}

TEST_F(FieldsTest, ALineTakesPastedLineBreaksAsBlanks)
{
    Find<QLineEdit>("txtTitle").setText(QStringLiteral("one\r\ntwo\nthree"));
    EXPECT_EQ(FirstCard().Title, QStringLiteral("one two three"));
}

TEST_F(FieldsTest, AMissingPictureOfABackIsToldOnceForAllLetters)
{
    SelectTab(4);
    Click("chkNewBackPicture");
    const QString path = PictureFile("owl.bmp");
    user.WillChoose(path);
    Click("cmdGetNewBackPicture");
    ASSERT_TRUE(QFile::remove(path));
    Type("txtBackText", QStringLiteral("OWLS"));
    EXPECT_EQ(user.BoxTexts(), std::vector{QStringLiteral("Varnhelm Deck Forge|Run-time error '53':\r\n\r\n"
                                                          "File not found")});
    EXPECT_EQ(Back().BackText, QStringLiteral("OWLS"));
}

} // namespace

} // namespace deckforge
