// SPDX-License-Identifier: GPL-3.0-or-later

#include "dialogs/ColourSwatch.h"
#include "dialogs/frmCardSheet.h"
#include "editor/WindowTest.h"

#include <QApplication>
#include <QHeaderView>
#include <QListView>
#include <QRadioButton>
#include <QTabWidget>
#include <QTimer>
#include <QTreeView>

namespace deckforge {

/// The window and its dialogs.
class DialogsTest : public WindowTest {
protected:
    DialogsTest() { window.show(); }

    /// Runs a command and the steps in the dialog that it opens, then presses Esc.
    template <class Steps>
    void WithDialog(const char* opener, Steps&& steps)
    {
        QTimer::singleShot(0, [&] {
            root = QApplication::activeModalWidget();
            ASSERT_NE(root, nullptr) << opener;
            EXPECT_TRUE(QTest::qWaitForWindowActive(root));
            steps();
            if (root->isVisible())
                QTest::keyClick(root, Qt::Key_Escape);
            EXPECT_FALSE(root->isVisible()) << "Esc closes it";
            root = nullptr;
        });
        if (auto* const command = window.findChild<QAction*>(opener))
            command->trigger();
        else
            Click(opener);
        EXPECT_EQ(root, nullptr) << "it was not open: " << opener;
        root = &window;
    }

    /// Selects the last entry with the keyboard.
    void ChooseLast(const char* list)
    {
        Find<QComboBox>(list).setFocus();
        QTest::keyClick(&Find<QComboBox>(list), Qt::Key_End);
    }
    QAbstractItemView& List(const char* name) { return Find<QAbstractItemView>(name); }
    static QString Cell(QAbstractItemView& list, int row, int column)
    {
        return list.model()->index(row, column).data().toString();
    }
    static void Select(QAbstractItemView& list, int row, int column = 0)
    {
        const QRect place = list.visualRect(list.model()->index(row, column));
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, place.center());
    }
    static void DoubleClick(QAbstractItemView& list, int row)
    {
        Select(list, row);
        QTest::mouseDClick(list.viewport(), Qt::LeftButton, {},
                           list.visualRect(list.model()->index(row, 0)).center());
    }
};

TEST_F(DialogsTest, TheSortedListOpensTheChosenCard)
{
    Type("txtTitle", "Troll");
    Click("cmdCardAdd");
    WithDialog("cmdSort", [&] {
        auto& list = Find<QTreeView>("lvCard");
        EXPECT_EQ(list.currentIndex().row(), 1) << "begins at the current card";
        list.header()->setSortIndicator(0, Qt::AscendingOrder);
        EXPECT_EQ(Cell(list, 0, 0), "CARD 2");
        Select(list, 0, 2);
        QTest::keyClicks(&list, "tr");
        QTest::keyClick(&list, Qt::Key_Return);
        EXPECT_FALSE(root->isVisible());
    });
    EXPECT_EQ(Text({"txtTitle", "hsbCard", "lblCurrentCard"}), "Troll|1 (2)|1 (2)");
}

TEST_F(DialogsTest, CheckedPicturesMoveToTheTypedFolder)
{
    ChoosePicture("cmdGetPic", "/old/one.bmp");
    WithDialog("changepicpath", [&] {
        auto& list = List("lviewPath");
        Click("cmdSelectAll");
        Click("optCard6");
        Click("optCard0"); // selecting another field clears the check marks
        ChoosePicture("cmdBrowse", "/new/");
        QTest::keyClick(&Line("txtNewPath"), Qt::Key_Return);
        EXPECT_EQ(Cell(list, 0, 1), "/old/one.bmp") << "nothing is checked";
        Select(list, 0);
        QTest::keyClick(&list, Qt::Key_Space);
        Click("cmdChange");
        EXPECT_EQ(Cell(list, 0, 1), "/new/one.bmp");
    });
    EXPECT_EQ(Find<QLineEdit>("txtPicture").toolTip(), "/new/one.bmp");
}

TEST_F(DialogsTest, OwnBacksAreAddedRenamedAndDeletedImmediately)
{
    WithDialog("setinfo", [&] {
        auto& list = List("lstCB");
        Click("cmdCBDelete"); // nothing is selected
        Click("cmdCBAdd");
        EXPECT_EQ(user.LastMessageText(), "Missing information|You must give both a name and choose a file.");
        EXPECT_EQ(user.LastBox().Style, BoxStyle::Exclamation);
        ChoosePicture("cmdCBPic", "/pics/caves.v2.bmp");
        EXPECT_EQ(Text({"txtCBPicture", "txtCBName"}), "/pics/caves.v2.bmp|");
        Type("txtCBName", "Caves");
        QTest::keyClick(&Line("txtCBName"), Qt::Key_Return);
        EXPECT_EQ(Set().CardBacks.Count(), 28);
        Click("cmdCBAdd"); // adds a second row with the same values
        user.WillCancelDialog();
        DoubleClick(list, 0);
        user.WillType("Deep Caves");
        DoubleClick(list, 0);
        EXPECT_EQ(user.TextDialogs.back(), "Rename cardback|New name:|Caves");
        EXPECT_EQ(Set().CardBacks[28].Name, "Deep Caves");
        Select(list, 1);
        EXPECT_EQ(Text("txtCBName"), "Caves");
        Click("cmdCBDelete");
        Click("cmdCBDelete"); // no row is selected after the first deletion
        EXPECT_EQ(Set().CardBacks.Count(), 28);
        ChooseLast("cboCBDefault");
        EXPECT_EQ(Set().LastCardBack, 28);
    });
    EXPECT_EQ(Find<QComboBox>("cboCardBack").itemText(27), "Deep Caves");
    EXPECT_EQ(FirstCard().CardBack, 1) << "the card kept its back";
}

TEST_F(DialogsTest, ReversedNamesOfOwnTypesFollowTheirNames)
{
    WithDialog("setinfo", [&] {
        Find<QTabWidget>("tabSet").setCurrentIndex(1);
        Click("cmdCTAdd");
        EXPECT_EQ(user.LastBox().Text, "You must give the type a name.");
        auto& txtCTName = Line("txtCTName");
        auto& txtCTNameRev = Line("txtCTNameRev");
        txtCTName.setFocus();
        QTest::keyClicks(&txtCTName, "OMEN-");
        Click("cmdCTAdd");
        EXPECT_EQ(user.LastMessageText(), "Missing information|You must give the type a reversed name.");
        QTest::keyClick(&txtCTName, Qt::Key_Tab);
        EXPECT_EQ(txtCTNameRev.text(), "OMEN-");
        QTest::keyClicks(&txtCTNameRev, "-OMEN"); // replaces the selected text
        Line("txtCTName2").setText("Dark");
        Line("txtCTNameRev2").setText("kraD");
        Line("txtCTNumber").setText("no number");
        Click("cmdCTAdd");
        EXPECT_EQ(Cell(List("lstCT"), 0, 0), "OMEN-Dark ( )");
        Line("txtCTNumber").setText("40000");
        Click("cmdCTAdd");
        EXPECT_EQ(user.LastBox().Text, "Run-time error '6':\r\n\r\nOverflow");
        EXPECT_EQ(Set().CardTypes.Count(), 16);
        EXPECT_EQ(Text("cboCTDefault"), "ENEMY-Spirit") << "the last of the name";
        ChooseLast("cboCTDefault");

        // The background of new cards is on the last page.
        Find<QTabWidget>("tabSet").setCurrentIndex(2);
        ChoosePicture("cmdBGPic", "/pics/ground.bmp");
        EXPECT_EQ(Text("txtBackground"), "/pics/ground.bmp");
    });
    EXPECT_EQ(Find<QComboBox>("cboType").itemText(15), "OMEN-Dark");
    Click("cmdCardAdd");
    const Card& added = Set().Cards[2];
    EXPECT_EQ(QStringList({added.Type, added.SubType, added.TypeReversed, added.SubTypeReversed, added.Number,
                           added.Background})
                  .join(' '),
              "OMEN- Dark -OMEN kraD -1 /pics/ground.bmp");
}

TEST_F(DialogsTest, FontOptionsFollowTheSampleAndAnUnknownOneChangesTheAutonumber)
{
    const FontSpec tall = {.Name = "Arial", .Size = 11};
    WithDialog("choosefont", [&] {
        Click("optFPlace4");
        Find<QTabBar>("tbCard").setCurrentIndex(1);
        user.WillPick(tall);
        Click("cmdChangeFont");
        EXPECT_EQ(Set().Header.FontAutonumber, tall);
        Find<QTabBar>("tbCard").setCurrentIndex(2);
        user.WillPick(tall);
        Click("optFPlace1");
        QTest::mouseDClick(&Find<QRadioButton>("optFPlace1"), Qt::LeftButton);
        EXPECT_EQ(Set().Header.FontAlignment, tall);
    });
    EXPECT_EQ(Boxes().Character.lblStart.Font, tall);
    WithDialog("choosefont", [&] {
        user.WillPick(0x0000FF);
        Click("picArtistColor");
        Click("cmdReset");
        EXPECT_EQ(Find<ColourSwatch>("picArtistColor").Colour(), QColor(Qt::red));
    });
    EXPECT_EQ(Set().Header.ArtistColor, 0x0000FF);
    EXPECT_EQ(Boxes().Character.lblStart.Font.Size, 6);
}

TEST_F(DialogsTest, TheSheetStartsAtTwoByThreeAndFollowsTheKeys)
{
    OpenChangedSet([&](CardSet& set) { set.Header.SaveTo = folder.WithSeparator(); });
    WithDialog("createsheet", [&] {
        EXPECT_EQ(Text("lblSize"), "768 x 508");
        for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Tab, Qt::Key_Down})
            QTest::keyClick(root->focusWidget(), key);
        EXPECT_EQ(Text("lblSize"), "1024 x 254");
        QTest::keyClick(root, Qt::Key_Return);
    });
    EXPECT_EQ(folder.Image("New set Sheet 1.bmp").size(), QSize(304, 4 * 256));
    EXPECT_EQ(SheetSizeText({.Cols = 1, .Rows = 1}, true), "256 x 152");
    WithDialog("createsheet", [] {}); // Esc
    EXPECT_EQ(user.LastMessageText(), "Create cardsheets|0 cardsheets are created.");
}

} // namespace deckforge
