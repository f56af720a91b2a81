#include "compose/FontScheme.h"
#include "compose/SetView.h"
#include "dialogs/CardPreview.h"
#include "dialogs/Choices.h"
#include "dialogs/ColourSwatch.h"
#include "editor/TextControl.h"
#include "editor/frmQDW_Tables.h"
#include "platform/Paths.h"
#include "ui_fraCard.h"
#include "ui_fraCardBack.h"
#include "ui_fraCharacter.h"
#include "ui_fraLargeCard.h"
#include "ui_fraSet.h"

namespace deckforge {

namespace {

/// A picture behind a frame has its own size; a card, a panel or a back shows it from its corner.
bool IsFramed(const Box& target, const CardTemplates& t)
{
    return &target == &t.Standard.picImage || &target == &t.Large.picImageLarge ||
           &target == &t.Character.picImageCharacter || &target == &t.PlayingPiece.picPlayingPieceImage;
}

} // namespace

template <class Record>
void frmQDW::BindPicturesOf()
{
    const Fields<Record> fields = FieldsOf<Record>();
    for (const auto& row : fields.Pictures) {
        On(row.Choose, &QAbstractButton::clicked, [this, row] {
            if (const auto path = AskPicture(row.Title, row.Choose))
                TakePicture(row, *path);
        });
        On(row.Clear, &QAbstractButton::clicked, [this, row] { ClearPicture(row); });
    }
    for (const auto& row : fields.Colours) {
        for (QAbstractButton* button : {row.Choose, static_cast<QAbstractButton*>(row.Swatch)})
            On(button, &QAbstractButton::clicked, [this, row] { ChooseColour(row); });
    }
}

void frmQDW::BindPictures()
{
    BindPicturesOf<Card>();
    BindPicturesOf<LargeCard>();
    BindPicturesOf<Character>();
    BindPicturesOf<NewCardBack>();
    On(m_back->cmdBackTextFont, &QAbstractButton::clicked, [this] { ChooseBackFont(); });
    On(m_set->cmdSymbol, &QAbstractButton::clicked, [this] {
        if (const auto path = AskPicture("Choose picture", m_set->cmdSymbol))
            TakeSymbol(*path);
    });
    On(m_set->cmdDelSymbol, &QAbstractButton::clicked, [this] { ClearSymbol(); });
    On(m_set->cmdSaveTo, &QAbstractButton::clicked, [this] { ChooseSaveTo(); });
}

/// The dialog begins where the button's last file was; without a button it has no such memory.
std::optional<QString> frmQDW::AskPicture(const char* title, const QAbstractButton* button)
{
    FileDialogRequest request = PictureDialog(title);
    if (button)
        request.Folder = m_pictureFolders.value(button);
    return m_workshop.User.AskOpenFile(request);
}

std::optional<Picture> frmQDW::Loaded(const QString& path)
{
    return Attempted([&] { return m_workshop.Pictures.LoadPicture(path); });
}

void frmQDW::ShowOn(Box& target, const Picture& picture)
{
    if (IsFramed(target, m_workshop.Templates))
        target.ShowAtNaturalSize(picture);
    else
        target.Surface->SetPicture(picture);
}

/// The offsets of the picture before stay in the record, and come back when it is placed again.
void frmQDW::LayAtFrame(Box& target)
{
    const CardTemplates& t = m_workshop.Templates;
    if (!IsFramed(target, t) || &target == &t.PlayingPiece.picPlayingPieceImage)
        return;
    target.Left = 0;
    target.Top = 0;
}

template <class Record>
void frmQDW::TakePicture(const PictureField<Record>& row, const QString& path)
{
    Current<Record>().*row.Field = path;
    m_pictureFolders.insert(row.Choose, FolderPart(path));
    if (row.Target) {
        LayAtFrame(*row.Target);
        const auto picture = Loaded(path);
        m_preview->update();
        if (!picture)
            return;
        ShowOn(*row.Target, *picture);
    }
    ShowPath(*row.PathBox, path);
    Run(row.After);
}

template <class Record>
void frmQDW::ClearPicture(const PictureField<Record>& row)
{
    (Current<Record>().*row.Field).clear();
    if (row.Target) {
        LayAtFrame(*row.Target);
        ShowOn(*row.Target, {});
    }
    row.PathBox->clear(); // the tool tip stays
    Run(row.AfterClear);
    m_preview->update();
}

template <class Record>
void frmQDW::ChooseColour(const ColourField<Record>& row)
{
    Colour& colour = row.Field(Current<Record>());
    const auto chosen = m_workshop.User.AskColour(QString::fromLatin1(row.Title), colour);
    if (chosen) {
        colour = *chosen;
        row.Swatch->SetColour(QColor(ToRgb(colour)));
        if (row.Preview)
            row.Preview->Surface->SetBackColor(colour);
    }
    Run(row.After);
    m_preview->update();
}

/// The keyboard goes to the picture that was just chosen.
template <class Record>
void frmQDW::FocusOnTarget()
{
    m_preview->FocusOn(*FieldsOf<Record>().Pictures.front().Target);
}

template void frmQDW::FocusOnTarget<Card>();
template void frmQDW::FocusOnTarget<LargeCard>();

void frmQDW::TakeSymbol(const QString& path)
{
    m_workshop.Set.Header.Symbol = path;
    m_pictureFolders.insert(m_set->cmdSymbol, FolderPart(path));
    const auto symbol = Loaded(path);
    if (!symbol)
        return;
    ShowChosenSymbol(m_workshop.Templates, *symbol);
    ShowPath(*m_set->txtSymbol, path);
    m_preview->update();
}

void frmQDW::ClearSymbol()
{
    m_workshop.Set.Header.Symbol.clear();
    m_set->txtSymbol->clear();
    HideSymbol(m_workshop.Templates);
    m_preview->update();
}

/// A cancel empties the folder, too.
void frmQDW::ChooseSaveTo()
{
    QString& folder = m_workshop.Set.Header.SaveTo;
    folder = m_workshop.User.BrowseForFolder().value_or(QString());
    ShowText(*m_set->txtSaveTo, folder, folder);
}

void frmQDW::ChooseBackFont()
{
    ChooseFont(m_workshop.User, Current<NewCardBack>().Font);
    HintAtUnsavable(Current<NewCardBack>().Font.Name);
    BackChanged();
}

/// What takes no picture of its own leaves it to what it lies on: a label to its card, for one.
void frmQDW::DropOn(const Box* box, const QString& path)
{
    const CardTemplates& t = m_workshop.Templates;
    for (; box; box = m_preview->ParentOf(*box)) {
        if (box == &t.Standard.picBack)
            return AddUserBack(path);
        if (box == &t.Character.picCharacterBack)
            return SetCharacterBackPicture(path);
        if (box == &t.NewBack.picNewBack)
            return TakePicture(FieldsOf<NewCardBack>().Pictures.front(), path);
        const Box* const target = StandsFor(box);
        if (DropOnTarget<Card>(target, path) || DropOnTarget<LargeCard>(target, path) ||
            DropOnTarget<Character>(target, path))
            return;
    }
}

/// The box that takes the picture: a frame is filled, and the border of a character has its panel.
const Box* frmQDW::StandsFor(const Box* box)
{
    const CardTemplates& t = m_workshop.Templates;
    if (box == &t.Character.picCharacter)
        return &t.Character.picBackgroundChar;
    if (box == &t.PlayingPiece.picPlayingPiece)
        return &t.PlayingPiece.picPlayingPieceImage;
    for (const PlacementRow& row : Placements()) {
        if (box == row.Frame)
            return row.Image;
    }
    return box;
}

template <class Record>
bool frmQDW::DropOnTarget(const Box* box, const QString& path)
{
    for (const auto& row : FieldsOf<Record>().Pictures) {
        if (row.Target == box) {
            TakePicture(row, path);
            return true;
        }
    }
    return false;
}

} // namespace deckforge
