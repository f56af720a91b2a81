// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "compose/ClipRule.h"
#include "compose/TextFitting.h"
#include "compose/Workshop.h"

namespace deckforge {

// Composition shared by all kinds of card. An origin is the position of the boxes' parent on the surface: (0,
// 0), or the corner of the panel of a character card.

/// A picture behind its frame.
struct FramedPicture {
    const Box& Frame;
    const Box& Image;
    ClipInput Clip;
    bool IsShown; ///< if false, the white background is not painted either
    bool IsSet;   ///< the record names a picture
    QPoint Origin = {};
};

/// For records with the common picture fields. An outline insets the picture by a pixel.
template <class Record>
FramedPicture FramedPictureOf(const Record& record, const Box& frame, const Box& image)
{
    return {.Frame = frame,
            .Image = image,
            .Clip = {.Frame = {frame.Width, frame.Height},
                     .Picture = {image.Width, image.Height},
                     .PictureLeft = record.PictureLeft,
                     .PictureTop = record.PictureTop,
                     .FrameInset = record.Frame ? 1 : 0},
            .IsShown = record.ShowPicture,
            .IsSet = !record.Picture.isEmpty()};
}

/// Fills the frame with white, paints the visible part of the picture, and draws the outline.
/// Kept: the outline has the surface's current colour, left by the card before.
void PaintPictureBlock(PictureBox& surface, const Picture& white, const FramedPicture& picture);

/// Clears the surface and gives it the size of the preview and the carried pen.
void BeginCard(PictureBox& surface, const Box& preview, const FontSpec& pen);

/// Clears picACard and paints the background, or the colour if the file is missing.
void PaintBackground(Workshop& workshop, const Box& preview, const QString& path, Colour colour,
                     const FontSpec& pen);

/// Paints the symbol of the set, if it has one.
void PaintSymbol(Workshop& workshop, const Box& symbol, QPoint origin);

/// Prints a line centred in its box.
void PrintCentred(PictureBox& surface, const Box& box, const QString& text, QPoint origin = {});

/// Prints a text wrapped to the width of its box, from the top of the box.
void PrintWrapped(PictureBox& surface, const Box& box, const QString& text, LineForm form = LineForm::Plain,
                  QPoint origin = {});

/// Prints a card's number in the set.
void PrintIndex(PictureBox& surface, double x, double y, int16 index);

void PrintWatermark(PictureBox& surface, const Box& watermark, QPoint origin = {});

/// Runs the steps of a Show function. A missing file is reported on the preview and an invalid property value
/// is ignored; the next step runs. Any other failure is thrown.
class ShowRun {
public:
    /// From now on reports a missing file on this box, with this message and path.
    void ReportMissingOn(Box& reporter, const QString& path, const char* message = "Missing picture.");

    [[nodiscard]] const std::vector<PictureProblem>& Problems() const { return m_problems; }

    template <class Step>
    void operator()(Step&& step)
    {
        try {
            WithMemoryAsFailure(step);
        } catch (const RunTimeError& error) {
            Handle(error);
        }
    }

private:
    void Handle(const RunTimeError& error);

    Box* m_reporter = nullptr;
    QString m_message;
    std::vector<PictureProblem> m_problems;
};

/// Loads the picture of a frame and repaints its box, which removes an earlier message about a missing file.
void LoadFramedPicture(ShowRun& run, Workshop& workshop, Box& image, const QString& path);

/// Runs a Show function and returns the failure that ended it. Sets the problems of the workshop.
template <class Routine>
[[nodiscard]] CompositionFailure RunShow(Workshop& workshop, Routine&& routine)
{
    ShowRun run;
    CompositionFailure failure;
    workshop.Problems.clear();
    try {
        WithMemoryAsFailure([&] { routine(run); });
    } catch (const RunTimeError& error) {
        workshop.Problems.push_back({error.Place(), error.Description()});
        failure = error;
    }
    workshop.Problems.insert(workshop.Problems.begin(), run.Problems().begin(), run.Problems().end());
    return failure;
}

} // namespace deckforge
