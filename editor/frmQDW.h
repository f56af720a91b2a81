#pragma once

#include "compose/PicturePlacement.h"
#include "core/CardListRows.h"
#include "core/modInfo.h"
#include "files/Rescue.h"
#include "files/modFile.h"
#include "output/frmCardSheet.h"
#include "output/modCapture.h"

#include <QMainWindow>
#include <QMap>
#include <array>
#include <chrono>
#include <functional>
#include <memory>
#include <new>

class QAbstractButton;
class QButtonGroup;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QProgressBar;
class QScrollArea;
class QScrollBar;
class QSpinBox;
class QStackedWidget;
class QTabBar;

namespace Ui {
class fraCard;
class fraLargeCard;
class fraCharacter;
class fraCardBack;
class fraSet;
} // namespace Ui

namespace deckforge {

enum class FontClicks;

class CardPreview;
class ColourSwatch;

/// The window of the program: it owns the set, its controls show the current card of the selected tab, and
/// what is typed or clicked goes at once into the record and the one box of the preview that it concerns.
///
/// A control has the name of what it stands for, as an object name too. A failure that leaves a handler is
/// told to the user, and the program goes on with the set in memory.
class frmQDW final : public QMainWindow {
public:
    /// With a new set, whose rescue file is at most as old as given.
    explicit frmQDW(UserPort& user, std::chrono::milliseconds renewRescueAfter = std::chrono::minutes(1));
    ~frmQDW() override;

    /// What the program does once its window is visible: the command line, unless empty, is the path of a set
    /// to open.
    void Start(const QString& commandLine);

    /// Shows what the tab of a kind edits, the front of the card first. The tab itself stays as it is.
    void CardSizeSwitch(CardKind kind);

    // Each brings the previews up to date, and the controls.
    void ShowCard(int16 index);
    void ShowLargeCard(int16 index);
    void ShowCharacter(int16 index);
    void ShowNewCardBack(int16 index);

    /// Reads the set at the path and shows its first card. When it cannot be read, which the reader tells,
    /// nothing else happens.
    void DoOpenDKF(const QString& path);

    /// Shows in the status bar how far a long run is, until done is total. What the user presses meanwhile
    /// waits; drops are refused, and the window does not close.
    void ShowProgress(int done, int total);

    /// For an end of the program that asks nobody.
    void RescueAtTheEnd() noexcept { m_work.RescueAtTheEnd(m_workshop.Set); }

    [[nodiscard]] const Workshop& Works() const { return m_workshop; }

    // Where the card stands in a picture of the whole window, in pixels.
    int16 OffsetLeft = 0;
    int16 OffsetTop = 0;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    using Action = void (frmQDW::*)();
    enum class Guard { None, NotLoading };

    // Rows of the tables by which the window knows its controls, kinds and commands (frmQDW_Tables.h).
    template <class Record>
    struct TextField;
    template <class Record>
    struct CheckField;
    template <class Record>
    struct CountField;
    template <class Record>
    struct PictureField;
    template <class Record>
    struct ColourField;
    template <class Record>
    struct Fields;
    template <class Record>
    struct Page;
    struct Mode;
    struct PlacementRow;

    /// Keeps guarded handlers quiet while controls are filled.
    class LoadingScope;

    // Building (frmQDW.cpp)
    void BuildToolBar();
    void BuildForms();
    void BuildLayout();
    void BuildStatusBar();
    void BindFocus();
    void SelectAll(QObject* box, Qt::FocusReason reason);
    [[nodiscard]] QSize LargestSize() const;
    void SizeToFit();
    void InitForm();

    // Tabs (frmQDW_Modes.cpp)
    void BindModes();
    [[nodiscard]] CardKind SelectedKind() const;
    [[nodiscard]] const Mode& Selected() const;
    void Run(Action action);
    void Copy();
    void Paste();
    void ModeClicked();
    void ShowLargeMode();
    void ShowCharacterMode();
    void ShowBackMode();
    void SwitchLargeView();
    void SwitchCharacterView();
    void SwitchPieceView();

    // Commands on files (frmQDW_File.cpp)
    void Exit();
    void NewSet();
    void OpenSet();
    void SaveSet();
    void OpenDropped(const QString& path);
    [[nodiscard]] bool LeaveSet(std::optional<QString>& rescued, const QString& toOpen = {});
    void AddNote(const QString& note);
    void NoteRescued(const std::optional<QString>& rescued);
    void NoteEarlierRescue();
    [[nodiscard]] bool TakesDrop(const QDropEvent& event) const;
    Answer AskToSave(BoxButtons buttons);
    SaveResult AskWhereAndSave();

    // Cards of the set (frmQDW_Cards.cpp)
    template <class Record>
    [[nodiscard]] Page<Record> PageOf();
    template <class Record>
    void BindPage();
    void BindCards();
    template <class Record>
    void FillPosition();
    template <class Record>
    void CardChanged();
    template <class Record>
    void CardDragged();
    template <class Record>
    void CardDropped();
    template <class Record>
    void PreviousCard();
    template <class Record>
    void NextCard();
    template <class Record>
    void AddCard();
    template <class Record>
    void DeleteCard();
    template <class Record>
    void CopyCard();
    template <class Record>
    void PasteCard();

    // Fields of the records (frmQDW_Fields.cpp)
    template <class Record>
    [[nodiscard]] Fields<Record> FieldsOf();
    template <class Record>
    [[nodiscard]] Record& Current(); ///< the record that the fields edit now
    template <class Record>
    void Bind();
    template <class Record>
    void Bind(const TextField<Record>& row);
    template <class Record>
    void Bind(const CheckField<Record>& row);
    template <class Record>
    void Bind(const CountField<Record>& row);
    template <class Record>
    void TextChanged(const TextField<Record>& row);
    void HintAtUnsavable(const QString& text);
    void RenewHint();
    template <class Record>
    void Fill();
    void BindFields();
    void FillCard();
    void FillLargeCard();
    void FillCharacter();
    void FillNewCardBack();
    void FillSet();

    // What follows a change of a field (frmQDW_Changes.cpp)
    void CompleteBoldText();
    void BoldTextChanged();
    void ArtistChanged();
    void OneLineClicked();
    template <class Record>
    void ShowPictureClicked();
    template <class Record>
    void FrameClicked();
    void ResizeClicked();
    void LargeResizeClicked();
    void NameChanged();
    template <int Index>
    void AttributeChanged();
    void BackChanged();
    void SetnameChanged();
    void AutonumberClicked();
    void NoBackClicked();

    // Lists (frmQDW_Lists.cpp)
    void BindLists();
    void FillLists();
    void FillCardTypeList();
    void FillCardBackList();
    void TypeChosen();
    void TypeTyped();
    void ShowType();
    void CardBackChosen();
    void AddUserBack(const QString& path);
    void CharacterBackChosen();
    void SetCharacterBackPicture(const QString& path);
    void StartAreaChosen();
    void StartAreaTyped();
    void SetStartArea(const QString& area);
    void SaveFormatChosen();

    // Pictures, colours and the symbol (frmQDW_Pictures.cpp)
    template <class Record>
    void BindPicturesOf();
    template <class Record>
    void TakePicture(const PictureField<Record>& row, const QString& path);
    template <class Record>
    void ClearPicture(const PictureField<Record>& row);
    template <class Record>
    void ChooseColour(const ColourField<Record>& row);
    template <class Record>
    [[nodiscard]] bool DropOnTarget(const Box* box, const QString& path);
    void BindPictures();
    void ShowOn(Box& target, const Picture& picture);
    void LayAtFrame(Box& target);
    [[nodiscard]] std::optional<QString> AskPicture(const char* title, const QAbstractButton* button);
    [[nodiscard]] std::optional<Picture> Loaded(const QString& path);
    template <class Load>
    [[nodiscard]] static std::optional<Picture> Attempted(Load&& load);
    template <class Record>
    void FocusOnTarget();
    void TakeSymbol(const QString& path);
    void ClearSymbol();
    void ChooseSaveTo();
    void ChooseBackFont();
    void DropOn(const Box* box, const QString& path);
    [[nodiscard]] const Box* StandsFor(const Box* box);

    // The preview (frmQDW_Preview.cpp)
    void BindPreview();
    [[nodiscard]] std::array<PlacementRow, 4> Placements();
    void LabelClicked(const Box* box, FontClicks clicks);
    void PreviewDragged(const Box* box, QPoint point, QPoint moved);
    void PreviewKey(const Box* picture, Qt::Key key, Qt::KeyboardModifiers held);
    void ShowTip(const Box* box, QPoint globalPoint);
    void TellFrameSize();
    void TellLargeFrameSize();
    void TellCharacterFrameSize();
    void SetZoom(int zoom);

    // Making images, pages and listings (frmQDW_Output.cpp)
    void ExportBacks();
    void CreateOne();
    [[nodiscard]] int16 Existing(CardKind kind) const;
    void CreateAll();
    void CreateSheets();
    void CreateHtml();
    void CreateCardHtml();
    void CreateLargeCardHtml();
    void CreateCharacterHtml();
    void ShowAfterRun();
    void ExportListing();
    void ShowStatistics();

    // Dialogs and printing (frmQDW_Dialogs.cpp)
    void BindDialogs();
    void ChangePicPath();
    void SetInfo();
    void ChangeFonts();
    void PrintCurrent();
    void About();
    template <class Record>
    void ChooseFromList();

    // Help (frmQDW_Help.cpp)
    void ShowHelp();
    void ShowVersion();
    void ShowOffsets();
    [[nodiscard]] bool IsBackground(QPoint point) const;

    // Handlers
    template <class Sender, class Signal, class Handler>
    void On(Sender* sender, Signal signal, Handler handler);
    template <class Work>
    void Guarded(Work&& work);
    void AfterHandler();
    void TellFailure(const RunTimeError& error);

    Workshop m_workshop;
    UnsavedWork m_work;
    int m_handlers = 0; ///< that run now, one within another
    bool m_loading = false;
    bool m_isBusy = false;  ///< with a long run, from its first step to its last
    bool m_mayLose = false; ///< the user has said so
    QSize m_fittedSize;     ///< which the window gave itself
    QSize m_chosenSize;     ///< which the user gave it
    QMap<const QAbstractButton*, QString> m_pictureFolders; ///< where each button's file was chosen last
    QString m_lastBackFile;                                 ///< the file chosen last in Customize Set
    QPoint m_dragStart;                                     ///< on the handle that is dragged
    std::optional<QString> m_numberBeforeType;              ///< of the card whose type is being typed
    QString m_missingBack; ///< the picture of a card back that was told to be missing

    std::unique_ptr<Ui::fraCard> m_card;
    std::unique_ptr<Ui::fraLargeCard> m_large;
    std::unique_ptr<Ui::fraCharacter> m_character;
    std::unique_ptr<Ui::fraCardBack> m_back;
    std::unique_ptr<Ui::fraSet> m_set;
    QTabBar* tbCard;
    QWidget* fraCard;
    QWidget* fraLargeCard;
    QWidget* fraCharacter;
    QWidget* fraCardBack;
    QWidget* fraSet;
    QStackedWidget* m_forms; ///< of the four kinds
    CardPreview* m_preview;
    QScrollArea* m_previewArea;
    QButtonGroup* m_zooms;
    QProgressBar* m_progress;
    QLabel* m_hint; ///< why the set cannot be saved as it is
};

// The four kinds and the set itself, each told in frmQDW_Fields.cpp, and their pages in frmQDW_Cards.cpp.
template <>
Card& frmQDW::Current();
template <>
LargeCard& frmQDW::Current();
template <>
Character& frmQDW::Current();
template <>
NewCardBack& frmQDW::Current();
template <>
SetHeader& frmQDW::Current();
template <>
frmQDW::Page<Card> frmQDW::PageOf();
template <>
frmQDW::Page<LargeCard> frmQDW::PageOf();
template <>
frmQDW::Page<Character> frmQDW::PageOf();
template <>
frmQDW::Page<NewCardBack> frmQDW::PageOf();
template <>
frmQDW::Fields<Card> frmQDW::FieldsOf();
template <>
frmQDW::Fields<LargeCard> frmQDW::FieldsOf();
template <>
frmQDW::Fields<Character> frmQDW::FieldsOf();
template <>
frmQDW::Fields<NewCardBack> frmQDW::FieldsOf();
template <>
frmQDW::Fields<SetHeader> frmQDW::FieldsOf();

class frmQDW::LoadingScope {
public:
    explicit LoadingScope(frmQDW& window) : m_window(window) { m_window.m_loading = true; }
    ~LoadingScope() { m_window.m_loading = false; }
    LoadingScope(const LoadingScope&) = delete;
    LoadingScope& operator=(const LoadingScope&) = delete;

private:
    frmQDW& m_window;
};

/// Connects a signal to a handler, which gets what the signal carries if it takes it.
template <class Sender, class Signal, class Handler>
void frmQDW::On(Sender* sender, Signal signal, Handler handler)
{
    connect(sender, signal, this, [this, handler]([[maybe_unused]] auto&&... carried) {
        Guarded([&] {
            if constexpr (std::is_invocable_v<Handler>)
                handler();
            else
                handler(carried...);
        });
    });
}

/// A picture that cannot be loaded leaves the preview as it was.
template <class Load>
std::optional<Picture> frmQDW::Attempted(Load&& load)
{
    try {
        return load();
    } catch (const RunTimeError&) {
        return std::nullopt;
    }
}

/// The one place where a failure that left a handler ends, and what follows any change. Qt's own code, which
/// calls the handlers, cannot be left by an exception.
template <class Work>
void frmQDW::Guarded(Work&& work)
{
    ++m_handlers;
    try {
        work();
    } catch (const RunTimeError& error) {
        TellFailure(error);
    } catch (const std::bad_alloc&) {
        TellFailure(RunTimeError(ErrorNumber::OutOfMemory));
    }
    if (--m_handlers == 0)
        AfterHandler();
}

} // namespace deckforge
