// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "compose/ClipRule.h"
#include "compose/TextFitting.h"
#include "compose/Workshop.h"

namespace deckforge {

// What the kinds of card share. A parent's origin is where it lies on the surface: (0, 0) but for the panel
// of a character card.

/// A picture behind its frame, as a record and its template have it.
struct FramedPicture {
    const Box& Frame;
    const Box& Image;
    ClipInput Clip;
    bool IsShown; ///< without it there is no white field either
    bool IsSet;   ///< the record names a picture
    QPoint Origin = {};
};

/// That of a record with the fields that all kinds name alike. An outline takes the picture a pixel in.
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

/// Blanks the frame in white, paints the part of the picture that it shows, and outlines it in the colour of
/// the surface, which is that of the carried pen.
void PaintPictureBlock(PictureBox& surface, const Picture& white, const FramedPicture& picture);

/// Gives the surface the size of the preview it mirrors, nothing on it, and the carried pen.
void BeginCard(PictureBox& surface, const Box& preview, const FontSpec& pen);

/// Begins picACard with the background of a card over its colour. A missing file leaves the colour.
void PaintBackground(Workshop& workshop, const Box& preview, const QString& path, Colour colour,
                     const FontSpec& pen);

/// The symbol of the set, where it has one.
void PaintSymbol(Workshop& workshop, const Box& symbol, QPoint origin);

/// Prints a line centred in its box.
void PrintCentred(PictureBox& surface, const Box& box, const QString& text, QPoint origin = {});

/// Breaks a text to the width of its box, from the top of the box.
void PrintWrapped(PictureBox& surface, const Box& box, const QString& text, LineForm form = LineForm::Plain,
                  QPoint origin = {});

/// Prints a card's number in the set.
void PrintIndex(PictureBox& surface, double x, double y, int16 index);

/// Prints the caption of a version mark in the mark's own font.
void PrintWatermark(PictureBox& surface, const Box& watermark, QPoint origin = {});

/// A Show... routine step by step. A missing file is reported on the preview and the next step runs; a value
/// that a box cannot take is ignored. Anything else leaves the routine.
class ShowRun {
public:
    /// From here on a missing file is reported on this box, in these words and with its path.
    void ReportMissingOn(Box& reporter, const QString& path, const char* message = "Missing picture.");

    /// The missing files so far.
    [[nodiscard]] const std::vector<PictureProblem>& Problems() const { return m_problems; }

    template <class Step>
    void operator()(Step&& step)
    {
        try {
            WithMemoryAsFailure(step);
        } catch (const RunTimeError& error) {
            Answer(error);
        }
    }

private:
    void Answer(const RunTimeError& error);

    Box* m_reporter = nullptr;
    QString m_message;
    std::vector<PictureProblem> m_problems;
};

/// Loads the picture of a frame and repaints its box at once, which removes an earlier message about a
/// missing file.
void LoadFramedPicture(ShowRun& run, Workshop& workshop, Box& image, const QString& path);

/// Runs a Show... routine to its end and returns the failure that left it. The workshop has its problems
/// afterwards.
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
