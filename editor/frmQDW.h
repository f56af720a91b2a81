#pragma once

#include "compose/Workshop.h"

#include <QMainWindow>
#include <memory>
#include <new>
#include <vector>

class QCheckBox;
class QProgressBar;
class QTabBar;

namespace Ui {
class fraCard;
class fraSet;
} // namespace Ui

namespace deckforge {

class CardPreview;

/// The window of the program: it owns the set, its controls show the current card, and what is typed or
/// clicked goes at once into the record and the one box of the preview that it concerns.
///
/// A control has the name of what it stands for, as an object name too. A failure that leaves a handler is
/// told to the user, and the program goes on with the set in memory.
class frmQDW final : public QMainWindow {
public:
    /// With a new set.
    explicit frmQDW(UserPort& user);
    ~frmQDW() override;

    /// What the program does once its window is visible: the command line, unless empty, is the path of a set
    /// to open.
    void Start(const QString& commandLine);

    /// Shows what the tab of the mode edits; 1 is the standard card.
    void CardSizeSwitch(int mode);

    // Each brings the previews up to date, and then the controls.
    void ShowSet();
    void ShowCard(int16 index);

    /// Reads the set at the path and shows its first card. When it cannot be read, which the reader tells,
    /// nothing else happens.
    void DoOpenDKF(const QString& path);

    /// Shows in the status bar how far a long run is, until done is total. What the user presses meanwhile
    /// waits.
    void ShowProgress(int done, int total);

    [[nodiscard]] const Workshop& Works() const { return m_workshop; }

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    enum class Guard { None, NotLoading };

    /// A text box that carries its text to a field.
    template <class Record>
    struct TextField {
        QWidget* Control;
        QString Record::*Field;
        Guard When;
        Box* Preview;            ///< whose caption follows; null for none
        void (frmQDW::*After)(); ///< what else follows; null for nothing
    };

    /// A check box that carries its state to a field.
    template <class Record>
    struct CheckField {
        QCheckBox* Control;
        bool Record::*Field;
        void (frmQDW::*After)();
    };

    /// Keeps guarded handlers quiet while controls are filled.
    class LoadingScope;

    // Building (frmQDW.cpp)
    void BuildToolBar();
    void BuildForms();
    void BuildLayout();
    void BuildStatusBar();
    void InitForm();

    // Commands on files (frmQDW_File.cpp)
    void Exit();
    void NewSet();
    void OpenSet();
    void SaveSet();
    Answer AskToSave(BoxButtons buttons);

    // Cards of the set (frmQDW_Cards.cpp)
    void BindCards();
    void FillPosition(int16 index);
    void CardChanged();
    void CardDragged();
    void CardDropped();
    void PreviousCard();
    void NextCard();
    void AddCard();
    void DeleteCard();
    void CopyCard();
    void PasteCard();
    void ModeClicked();

    // Fields of the records (frmQDW_Fields.cpp)
    [[nodiscard]] std::vector<TextField<Card>> CardTexts();
    [[nodiscard]] std::vector<CheckField<Card>> CardChecks();
    [[nodiscard]] std::vector<TextField<SetHeader>> SetTexts();
    [[nodiscard]] std::vector<CheckField<SetHeader>> SetChecks();
    template <class Record>
    [[nodiscard]] Record& Current(); ///< the record that the fields edit now
    template <class Record>
    void Bind(const TextField<Record>& row);
    template <class Record>
    void Bind(const CheckField<Record>& row);
    template <class Record>
    void TextChanged(const TextField<Record>& row);
    void BindFields();
    void FillCard();
    void FillSet();
    void CompleteBoldText();
    void BoldTextChanged();
    void ArtistChanged();
    void OneLineClicked();
    void ShowPictureClicked();
    void FrameClicked();
    void SetnameChanged();
    void AutonumberClicked();
    void NoBackClicked();
    void SaveFormatChosen();

    // Making images, pages and listings (frmQDW_Output.cpp)
    void ExportBacks();
    void CreateOne();
    void CreateAll();
    void CreateSheets();
    void ShowAfterRun();
    void CreateHtml();
    void ExportListing();
    void ShowStatistics();

    // Help (frmQDW_Help.cpp)
    void ShowHelp();
    void ShowVersion();
    [[nodiscard]] bool IsBackground(QPoint point) const;

    // Handlers
    template <class Sender, class Signal, class Handler>
    void On(Sender* sender, Signal signal, Handler handler);
    template <class Action>
    void Guarded(Action&& action);
    void TellFailure(const RunTimeError& error);

    Workshop m_workshop;
    bool m_loading = false;

    std::unique_ptr<Ui::fraCard> m_card;
    std::unique_ptr<Ui::fraSet> m_set;
    QTabBar* tbCard;
    QWidget* fraCard;
    QWidget* fraSet;
    CardPreview* m_preview;
    QProgressBar* m_progress;
};

class frmQDW::LoadingScope {
public:
    explicit LoadingScope(frmQDW& window) : m_window(window) { m_window.m_loading = true; }
    ~LoadingScope() { m_window.m_loading = false; }
    LoadingScope(const LoadingScope&) = delete;
    LoadingScope& operator=(const LoadingScope&) = delete;

private:
    frmQDW& m_window;
};

/// Connects a signal, whatever it carries. The handler reads the state of the controls.
template <class Sender, class Signal, class Handler>
void frmQDW::On(Sender* sender, Signal signal, Handler handler)
{
    connect(sender, signal, this, [this, handler] { Guarded(handler); });
}

/// The one place where a failure that left a handler ends. Qt's own code, which calls the handlers, cannot be
/// left by an exception.
template <class Action>
void frmQDW::Guarded(Action&& action)
{
    try {
        action();
    } catch (const RunTimeError& error) {
        TellFailure(error);
    } catch (const std::bad_alloc&) {
        TellFailure(RunTimeError(ErrorNumber::OutOfMemory));
    }
}

} // namespace deckforge
