// SPDX-License-Identifier: GPL-3.0-or-later

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

/// Request for an open or save dialog. Filter has "description|pattern" pairs joined by "|"; FilterIndex
/// counts them from 1. Files to open must exist; a save dialog asks before it replaces a file.
struct FileDialogRequest {
    QString Title;
    QString FileName;
    QString Filter;
    int FilterIndex = 1;
    QString DefaultExtension;
    QString Folder = {}; ///< where the dialog starts; empty for its default
    /// The file at FileName as the program last read or wrote it; the save dialog warns if it has changed
    /// since.
    std::optional<FileAttributes> Known = {};
};

/// Everything that the program asks or shows its user, independent of windows.
class UserPort {
public:
    UserPort() = default;
    virtual ~UserPort() = default;
    UserPort(const UserPort&) = delete;
    UserPort& operator=(const UserPort&) = delete;

    /// Cancel if the message box was closed without an answer, even if it has no such button.
    virtual Answer ShowMessage(const MessageBoxRequest& request) = 0;

    /// Shows what a run could not do, one line per problem with card and file, without interrupting the user.
    /// An empty list means no problems.
    virtual void ReportProblems(const QStringList& problems) = 0;

    /// The full path; nothing if cancelled.
    virtual std::optional<QString> AskOpenFile(const FileDialogRequest& request) = 0;
    virtual std::optional<QString> AskSaveFile(const FileDialogRequest& request) = 0;

    /// The folder with a trailing separator; nothing if cancelled.
    virtual std::optional<QString> BrowseForFolder() = 0;

    // The dialogs start with the given colour or font. Nothing if cancelled.
    virtual std::optional<Colour> AskColour(const QString& title, Colour colour) = 0;
    virtual std::optional<FontSpec> AskFont(const QString& title, const FontSpec& font) = 0;

    /// A line of text, initially `text`; nothing if cancelled.
    virtual std::optional<QString> AskText(const QString& prompt, const QString& title,
                                           const QString& text) = 0;

    /// The default printer with a new document, at the printer's resolution and with the origin at the corner
    /// of the printable area; null if there is none. The document is sent when painting ends.
    virtual std::unique_ptr<QPagedPaintDevice> OpenPrinter(const QString& document) = 0;

    virtual void SetPointer(Pointer pointer) = 0;

    /// Progress of a long run. The last call has done equal to total.
    virtual void ShowProgress(int done, int total) = 0;
};

/// Shows the hourglass pointer in its scope.
class HourglassScope {
public:
    explicit HourglassScope(UserPort& user) : m_user(user) { m_user.SetPointer(Pointer::Hourglass); }
    ~HourglassScope() { m_user.SetPointer(Pointer::Default); }
    HourglassScope(const HourglassScope&) = delete;
    HourglassScope& operator=(const HourglassScope&) = delete;

private:
    UserPort& m_user;
};

/// Shows a failure that no other code has handled. The program continues with the set in memory.
void ShowUnhandledError(UserPort& user, const RunTimeError& error);

} // namespace deckforge
