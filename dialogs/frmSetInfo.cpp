// SPDX-License-Identifier: GPL-3.0-or-later

#include "dialogs/frmSetInfo.h"

#include "compose/StandardCard.h"
#include "core/SetTables.h"
#include "dialogs/Choices.h"
#include "dialogs/FitPicture.h"
#include "dialogs/FocusSelection.h"
#include "dialogs/Handlers.h"
#include "dialogs/PictureView.h"
#include "dialogs/RowDelegate.h"
#include "dialogs/WheelGuard.h"
#include "ui_frmSetInfo.h"

#include <QFocusEvent>
#include <QShortcut>
#include <QStringListModel>

namespace deckforge {

namespace {

/// The selected row of a list; -1 for none.
int SelectedRow(const QListView& list)
{
    const QModelIndexList selected = list.selectionModel()->selectedIndexes();
    return selected.isEmpty() ? -1 : selected.front().row();
}

class SetInfoDialog final : public QDialog {
public:
    SetInfoDialog(CardSet& set, BuiltInArt& art, PictureLoader& pictures, UserPort& user,
                  QString& lastBackFile, QWidget* window)
        : QDialog(window), m_set(set), m_art(art), m_pictures(pictures), m_user(user),
          m_lastBackFile(lastBackFile)
    {
        m_form.setupUi(this);
        m_form.backLayout->setAlignment(m_form.picCB, Qt::AlignTop);
        for (QListView* list : {m_form.lstCB, m_form.lstCT}) {
            list->setItemDelegate(new RowDelegate(this));
            list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff); // long names are elided
        }
        m_form.lstCB->setModel(&m_ownBacks);
        m_form.lstCT->setModel(&m_ownTypes);
        m_form.cboCBDefault->setModel(&m_allBacks);
        m_form.cboCTDefault->setModel(&m_allTypes);
        BindBacks();
        BindTypes();
        OnClick(m_user, m_form.cmdBGPic, this, [this] { ChooseBackground(); });
        OnClick(m_user, m_form.cmdBGFit, this, [this] {
            if (const auto path = Fitted(m_set.LastBackground, {}))
                TakeBackground(*path);
        });
        for (QLineEdit* box : {m_form.txtCBName, m_form.txtCTName, m_form.txtCTName2, m_form.txtCTNameRev,
                               m_form.txtCTNameRev2, m_form.txtCTNumber})
            box->installEventFilter(this);
        GuardFromWheel(*this);
        connect(m_form.tabSet, &QTabWidget::currentChanged, this, [this] { EnterCloses(); });
        connect(m_form.cmdClose, &QPushButton::clicked, this, &QDialog::accept);
    }

    /// Fills all lists from the set.
    void Initialize()
    {
        m_ownBacks.setStringList(OwnBackNames(m_set));
        QStringList names;
        for (int row = 1; row <= m_set.CardBacks.Count(); ++row)
            names += m_set.CardBacks[row].Name;
        m_allBacks.setStringList(names);
        m_form.cboCBDefault->setCurrentIndex(m_set.LastCardBack - 1);
        ShowDefaultBack();

        m_ownTypes.setStringList(OwnTypeEntries(m_set));
        QStringList types;
        for (int row = 1; row <= m_set.CardTypes.Count(); ++row)
            types += TypeListEntry(m_set.CardTypes[row]);
        m_allTypes.setStringList(types);
        m_form.cboCTDefault->setCurrentIndex(DefaultTypeRow(m_set) - 1);

        ShowPath(*m_form.txtBackground, m_set.LastBackground);
        ShowFile(*m_form.picBackground, m_set.LastBackground);
        EnterCloses();
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::FocusIn)
            SelectAllOnFocus(*static_cast<QLineEdit*>(watched), static_cast<QFocusEvent*>(event)->reason());
        else if (event->type() == QEvent::FocusOut)
            LeaveBox(watched);
        return QDialog::eventFilter(watched, event);
    }

private:
    // Binding

    void BindBacks()
    {
        QListView* const list = m_form.lstCB;
        OnSignal(m_user, list, &QListView::clicked, this, [this] { ShowOwnBack(); });
        OnSignal(m_user, list->selectionModel(), &QItemSelectionModel::selectionChanged, this,
                 [this] { ShowOwnBack(); });
        OnSignal(m_user, list, &QListView::doubleClicked, this, [this] { RenameBack(); });
        auto* const rename = new QShortcut(Qt::Key_F2, list);
        rename->setContext(Qt::WidgetShortcut);
        OnSignal(m_user, rename, &QShortcut::activated, this, [this] { RenameBack(); });
        OnSignal(m_user, m_form.cboCBDefault, &QComboBox::activated, this, [this] { DefaultBackChosen(); });
        OnClick(m_user, m_form.cmdCBPic, this, [this] { ChooseBackPicture(); });
        OnClick(m_user, m_form.cmdCBFit, this, [this] {
            if (const auto path = Fitted(m_form.txtCBPicture->text(), m_lastBackFile))
                TakeBackPicture(*path);
        });
        OnClick(m_user, m_form.cmdCBAdd, this, [this] { AddBack(); });
        OnClick(m_user, m_form.cmdCBDelete, this, [this] { DeleteSelected(*m_form.lstCB, DeleteOwnBack); });
        connect(m_form.txtCBName, &QLineEdit::textEdited, m_form.cmdCBAdd,
                [this] { m_form.cmdCBAdd->setDefault(true); });
    }

    void BindTypes()
    {
        OnSignal(m_user, m_form.cboCTDefault, &QComboBox::activated, this, [this] { DefaultTypeChosen(); });
        OnClick(m_user, m_form.cmdCTAdd, this, [this] { AddType(); });
        OnClick(m_user, m_form.cmdCTDelete, this, [this] { DeleteSelected(*m_form.lstCT, DeleteOwnType); });
        for (QLineEdit* box : {m_form.txtCTName, m_form.txtCTName2, m_form.txtCTNameRev, m_form.txtCTNameRev2,
                               m_form.txtCTNumber})
            connect(box, &QLineEdit::textEdited, m_form.cmdCTAdd,
                    [this] { m_form.cmdCTAdd->setDefault(true); });
        // Before Enter adds the type.
        for (const auto& [name, reversed] : {std::pair(m_form.txtCTName, m_form.txtCTNameRev),
                                             std::pair(m_form.txtCTName2, m_form.txtCTNameRev2)}) {
            connect(name, &QLineEdit::returnPressed, reversed,
                    [name = name, reversed = reversed] { FillEmpty(*reversed, *name); });
        }
    }

    static void FillEmpty(QLineEdit& box, const QLineEdit& from)
    {
        if (box.text().isEmpty())
            box.setText(from.text());
    }

    /// Most types have the same text on both sides, so the reversed name is filled in.
    void LeaveBox(const QObject* box)
    {
        if (box == m_form.txtCTName)
            FillEmpty(*m_form.txtCTNameRev, *m_form.txtCTName);
        else if (box == m_form.txtCTName2)
            FillEmpty(*m_form.txtCTNameRev2, *m_form.txtCTName2);
    }

    /// Enter adds the typed row; afterwards it closes the dialog again.
    void EnterCloses() { m_form.cmdClose->setDefault(true); }

    void ShowMissing(const char* text)
    {
        ShowBox(m_user, BoxStyle::Exclamation, "Missing information", QString::fromLatin1(text));
    }

    static void ShowPath(QLineEdit& box, const QString& path)
    {
        box.setText(path);
        box.setToolTip(path);
    }

    /// Shows a message in place of a picture that cannot be loaded.
    template <class Load>
    void Show(PictureView& view, Load&& load)
    {
        try {
            view.ShowPicture(load());
        } catch (const RunTimeError&) {
            view.ShowPicture({}, QStringLiteral("Missing picture."));
        }
    }

    void ShowFile(PictureView& view, const QString& path)
    {
        Show(view, [&] { return m_pictures.LoadPicture(path); });
    }

    void DeleteSelected(const QListView& list, void (*deleteRow)(CardSet&, int))
    {
        const int ownRow = SelectedRow(list);
        if (ownRow < 0)
            return;
        deleteRow(m_set, ownRow);
        Initialize();
    }

    [[nodiscard]] std::optional<QString> AskPicture(const QString& startsAt)
    {
        FileDialogRequest request = PictureDialog("Choose picture");
        request.FileName = startsAt;
        return m_user.AskOpenFile(request);
    }

    // Card backs

    /// Nothing is shown if the default back was deleted.
    void ShowDefaultBack()
    {
        const int16 row = m_set.LastCardBack;
        if (row < 1 || row > m_set.CardBacks.Count())
            m_form.picCB->ShowPicture({});
        else
            Show(*m_form.picCB, [&] { return PictureOfBack(m_set, row, m_art, m_pictures); });
    }

    void ShowOwnBack()
    {
        const int ownRow = SelectedRow(*m_form.lstCB);
        if (ownRow < 0)
            return;
        const CardBack& back = m_set.CardBacks[FirstOwnBack + ownRow];
        m_form.txtCBName->setText(back.Name);
        ShowPath(*m_form.txtCBPicture, back.Picture);
        ShowFile(*m_form.picCB, back.Picture);
    }

    void RenameBack()
    {
        const int ownRow = SelectedRow(*m_form.lstCB);
        if (ownRow < 0)
            return;
        CardBack& back = m_set.CardBacks[FirstOwnBack + ownRow];
        const QString name =
            m_user.AskText(QStringLiteral("New name:"), QStringLiteral("Rename cardback"), back.Name)
                .value_or(QString());
        if (name.isEmpty())
            return;
        back.Name = name;
        Initialize();
        m_form.lstCB->setCurrentIndex(m_ownBacks.index(ownRow)); // shows the new name in its text boxes
    }

    void ChooseBackPicture()
    {
        if (const auto path = AskPicture(m_lastBackFile)) {
            m_lastBackFile = *path;
            TakeBackPicture(*path);
        }
    }

    void TakeBackPicture(const QString& path)
    {
        ShowFile(*m_form.picCB, path);
        ShowPath(*m_form.txtCBPicture, path);
        m_form.txtCBName->clear();
        m_form.txtCBName->setFocus();
    }

    /// The picture, or one to be chosen, cropped to what a card shows of it; nothing if cancelled.
    [[nodiscard]] std::optional<QString> Fitted(const QString& path, const QString& lastFile)
    {
        constexpr QSize shown = CardSize - QSize(2, 2); // inside the outline of the card
        const QString photo = path.isEmpty() ? AskPicture(lastFile).value_or(QString()) : path;
        if (photo.isEmpty())
            return std::nullopt;
        return FitToFrame(m_set, m_pictures, photo, shown, this);
    }

    void AddBack()
    {
        const QString name = m_form.txtCBName->text();
        const QString picture = m_form.txtCBPicture->text();
        if (name.isEmpty() || picture.isEmpty()) {
            ShowMissing("You must give both a name and choose a file.");
            return;
        }
        AddOwnBack(m_set, name, picture);
        Initialize();
    }

    void DefaultBackChosen()
    {
        m_set.LastCardBack = static_cast<int16>(m_form.cboCBDefault->currentIndex() + 1);
        ShowDefaultBack();
    }

    // Card types

    void AddType()
    {
        if (m_form.txtCTName->text().isEmpty()) {
            ShowMissing("You must give the type a name.");
            return;
        }
        if (m_form.txtCTNameRev->text().isEmpty()) {
            ShowMissing("You must give the type a reversed name.");
            return;
        }
        AddOwnType(m_set, {.Name = m_form.txtCTName->text(),
                           .SubName = m_form.txtCTName2->text(),
                           .ReversedName = m_form.txtCTNameRev->text(),
                           .ReversedSubName = m_form.txtCTNameRev2->text(),
                           .Number = ParseNumberText(m_form.txtCTNumber->text())});
        Initialize();
    }

    void DefaultTypeChosen()
    {
        ChooseDefaultType(m_set, static_cast<int16>(m_form.cboCTDefault->currentIndex() + 1));
    }

    // Background

    void ChooseBackground()
    {
        if (const auto path = AskPicture({}))
            TakeBackground(*path);
    }

    void TakeBackground(const QString& path)
    {
        m_set.LastBackground = path;
        ShowPath(*m_form.txtBackground, path);
        ShowFile(*m_form.picBackground, path);
    }

    CardSet& m_set;
    BuiltInArt& m_art;
    PictureLoader& m_pictures;
    UserPort& m_user;
    QString& m_lastBackFile; ///< where the next file dialog starts
    Ui::frmSetInfo m_form;
    QStringListModel m_ownBacks;
    QStringListModel m_ownTypes;
    QStringListModel m_allBacks;
    QStringListModel m_allTypes;
};

} // namespace

void EditSetInfo(CardSet& set, BuiltInArt& art, PictureLoader& pictures, UserPort& user,
                 QString& lastBackFile, QWidget* window)
{
    SetInfoDialog dialog(set, art, pictures, user, lastBackFile, window);
    dialog.Initialize();
    dialog.exec();
}

} // namespace deckforge
