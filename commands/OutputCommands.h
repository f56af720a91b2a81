// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "compose/SetView.h"
#include "output/HtmlSheets.h"
#include "output/Printing.h"
#include "output/RunReport.h"
#include "output/frmCardSheet.h"
#include "platform/UserPort.h"

namespace deckforge {

// The commands that create images, sheets, pages and printed pages, with their questions and message boxes.

/// Shows the failure of a composition, if any.
void ShowCompositionFailure(UserPort& user, const CompositionFailure& failure);

void ShowViewFailures(UserPort& user, const ViewFailures& failures);

/// Shows failures when they occur, and the problems at the end of its scope.
class ShownRun final : public RunReport {
public:
    explicit ShownRun(UserPort& user);
    ~ShownRun() override;

    void ShowProgress(int done, int total) override { User.ShowProgress(done, total); }
    void ShowNotComposed(const RunTimeError& error) override { ShowCompositionFailure(User, error); }
    void ShowNotWritten(const char* title, const QString& reason) override;

    UserPort& User;
};

/// Asks where to write the image of the composed card, and writes it; nothing if cancelled.
void SaveImageAs(Workshop& workshop, ShownRun& run, CardKind kind, int16 index);

// Commands for all cards of a kind except user-designed backs. Each shows a message box with the number of
// files.

void CreateImages(Workshop& workshop, ShownRun& run, CardKind kind);
/// Kept: without a grid (cancelled), the message box still appears, with 0 sheets.
void CreateSheets(Workshop& workshop, ShownRun& run, CardKind kind, std::optional<SheetGrid> grid);
/// Returns whether all cards have the file names required.
bool CreateHtml(const CardSet& set, ShownRun& run, HtmlPages pages);

/// Writes the built-in backs to a folder chosen by the user; nothing if cancelled.
void ExportCardBacks(const CardSet& set, BuiltInArt& art, UserPort& user);

/// Prints the page of the current card on the default printer. Error 482 if there is none.
void PrintCard(Workshop& workshop, ShownRun& run, PrintedPage page);

void ShowStatistics(const CardSet& set, UserPort& user);

} // namespace deckforge
