#pragma once

#include "platform/Files.h"
#include "platform/FontSpec.h"
#include "platform/RunTimeError.h"

#include <QStringList>
#include <memory>
#include <optional>

class QPagedPaintDevice;

namespace deckforge {

enum class BoxStyle { Plain, Information, Question, Exclamation, Critical };
enum class BoxButtons { Ok, YesNo, YesNoCancel };
enum class Answer { Ok, Yes, No, Cancel };
enum class Pointer { Default, Hourglass };

struct MessageBoxRequest {
    QString Text;
    QString Title;
    BoxStyle Style = BoxStyle::Information;
    BoxButtons Buttons = BoxButtons::Ok;
};

/// An open or a save dialog. A filter is "description|pattern" pairs joined by "|"; FilterIndex counts the
/// pairs from 1. Files to open must exist; before a file is replaced by a save the dialog asks.
struct FileDialogRequest {
    QString Title;
    QString FileName;
    QString Filter;
    int FilterIndex = 1;
    QString DefaultExtension;
    QString Folder; ///< where the dialog starts; empty leaves it where the dialog has it
    /// The file that FileName names, as the program last read or wrote it; a save dialog warns of changes.
    std::optional<FileAttributes> Known = {};
};

/// Everything that the program asks or tells its user, without a word about windows.
class UserPort {
public:
    UserPort() = default;
    virtual ~UserPort() = default;
    UserPort(const UserPort&) = delete;
    UserPort& operator=(const UserPort&) = delete;

    /// A question that is put aside without an answer gives Cancel, also where there is no such button.
    virtual Answer ShowMessage(const MessageBoxRequest& request) = 0;

    /// What a run did not do as the user expects, one line each, naming card and file. It interrupts nobody.
    /// An empty list means that the run has nothing to report.
    virtual void ReportProblems(const QStringList& problems) = 0;

    /// The full path chosen; nothing when the user cancels.
    virtual std::optional<QString> AskOpenFile(const FileDialogRequest& request) = 0;
    virtual std::optional<QString> AskSaveFile(const FileDialogRequest& request) = 0;

    /// The folder chosen, with its separator; nothing when the user cancels.
    virtual std::optional<QString> BrowseForFolder() = 0;

    // The dialogs start from the colour or font given. Nothing when the user cancels.
    virtual std::optional<Colour> AskColour(const QString& title, Colour colour) = 0;
    virtual std::optional<FontSpec> AskFont(const QString& title, const FontSpec& font) = 0;

    /// One line of text, with the text given to begin with; nothing when the user cancels.
    virtual std::optional<QString> AskText(const QString& prompt, const QString& title,
                                           const QString& text) = 0;

    /// The usual printer with a document of that name begun, at the resolution that the printer has and with
    /// the corner of what it can print on as its origin; null where there is none. What was painted is sent
    /// with the end of the painting.
    virtual std::unique_ptr<QPagedPaintDevice> OpenPrinter(const QString& document) = 0;

    virtual void SetPointer(Pointer pointer) = 0;

    /// How far a long run is: done of total. The last call of a run has done equal to total.
    virtual void ShowProgress(int done, int total) = 0;
};

/// The hourglass for the time of a long run, however it ends.
class HourglassScope {
public:
    explicit HourglassScope(UserPort& user) : m_user(user) { m_user.SetPointer(Pointer::Hourglass); }
    ~HourglassScope() { m_user.SetPointer(Pointer::Default); }
    HourglassScope(const HourglassScope&) = delete;
    HourglassScope& operator=(const HourglassScope&) = delete;

private:
    UserPort& m_user;
};

/// Tells a failure that nothing else has told; the program goes on with the set in memory.
void TellUntrapped(UserPort& user, const RunTimeError& error);

} // namespace deckforge
