// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/Files.h"
#include "platform/FontSpec.h"
#include "platform/RunTimeError.h"

#include <QPagedPaintDevice>
#include <QStringList>
#include <memory>
#include <optional>

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
    int FilterIndex = 2;
    QString DefaultExtension;
    QString Folder = {}; ///< where the dialog starts; empty for its default
    /// The file at FileName as the program last read or wrote it; the save dialog warns if it has changed
    /// since.
    std::optional<FileAttributes> Known = {};
};

/// Everything that the program asks or shows its user, independent of windows. By default nothing is shown
/// and every dialog is cancelled.
class UserPort {
public:
    UserPort() = default;
    virtual ~UserPort() = default;
    UserPort(const UserPort&) = delete;
    UserPort& operator=(const UserPort&) = delete;

    /// Cancel if the message box was closed without an answer, even if it has no such button.
    virtual Answer ShowMessage(const MessageBoxRequest& /*request*/) { return Answer::Ok; }

    /// Shows what a run could not do, one line per problem with card and file, without interrupting the user.
    /// An empty list means no problems.
    virtual void ReportProblems(const QStringList& /*problems*/) {}

    // Nothing if the dialog was cancelled.

    /// The full path.
    virtual std::optional<QString> AskOpenFile(const FileDialogRequest& /*request*/) { return {}; }
    virtual std::optional<QString> AskSaveFile(const FileDialogRequest& /*request*/) { return {}; }
    /// The folder with a trailing separator.
    virtual std::optional<QString> BrowseForFolder() { return {}; }
    /// The dialog starts with the given colour.
    virtual std::optional<Colour> AskColour(const QString& /*title*/, Colour /*colour*/) { return {}; }
    virtual std::optional<FontSpec> AskFont(const QString& /*title*/, const FontSpec& /*font*/) { return {}; }
    /// A line of text, initially `text`.
    virtual std::optional<QString> AskText(const QString& /*prompt*/, const QString& /*title*/,
                                           const QString& /*text*/)
    {
        return {};
    }

    /// The default printer with a new document, at the printer's resolution and with the origin at the corner
    /// of the printable area; null if there is none. The document is sent when painting ends.
    virtual std::unique_ptr<QPagedPaintDevice> OpenPrinter(const QString& /*document*/) { return nullptr; }

    virtual void SetPointer(Pointer /*pointer*/) {}

    /// Progress of a long run. The last call has done equal to total.
    virtual void ShowProgress(int /*done*/, int /*total*/) {}
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

/// Shows a message box without a question.
void ShowBox(UserPort& user, BoxStyle style, const QString& title, const QString& text);

/// Shows a failure that no other code has handled. The program continues with the set in memory.
void ShowUnhandledError(UserPort& user, const RunTimeError& error);

} // namespace deckforge
