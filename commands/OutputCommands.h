// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "compose/SetView.h"
#include "output/HtmlSheets.h"
#include "output/Printing.h"
#include "output/RunReport.h"
#include "output/frmCardSheet.h"
#include "platform/UserPort.h"

namespace deckforge {

// The commands that compose cards and write images, sheets, pages and print-outs, with their questions and
// message boxes.

/// Shows why a card could not be composed, if it could not.
void ShowCompositionFailure(UserPort& user, const CompositionFailure& failure);

/// Shows what failed while a set was shown.
void ShowViewFailures(UserPort& user, const ViewFailures& failures);

/// A run as the user sees it: failures are shown when they happen, the problems when it is over, however it
/// ends.
class ShownRun final : public RunReport {
public:
    explicit ShownRun(UserPort& user);
    ~ShownRun() override;

    void ShowProgress(int done, int total) override { User.ShowProgress(done, total); }
    void ShowNotComposed(const RunTimeError& error) override { ShowCompositionFailure(User, error); }
    void ShowNotWritten(const char* title, const QString& reason) override;

    UserPort& User;
};

/// Asks where the image of the composed card is to be written, and writes it there; nothing on a cancel.
void SaveImageAs(Workshop& workshop, ShownRun& run, CardKind kind, int16 index);

// Commands for all cards of a kind; there are none for user-designed backs. Each ends with a box that says
// how many files were due.

void CreateImages(Workshop& workshop, ShownRun& run, CardKind kind);
/// Without a grid, which is a cancel, the box alone.
void CreateSheets(Workshop& workshop, ShownRun& run, CardKind kind, std::optional<SheetGrid> grid);
/// Returns whether all cards have the file names that pages need.
bool CreateHtml(const CardSet& set, ShownRun& run, HtmlPages pages);

/// Writes the built-in backs to a folder that the user chooses; nothing on a cancel.
void ExportCardBacks(Workshop& workshop, UserPort& user);

/// Prints the page of the current card on the default printer. Error 482 without a printer.
void PrintCard(Workshop& workshop, ShownRun& run, PrintedPage page);

void ShowStatistics(const CardSet& set, UserPort& user);

} // namespace deckforge
