// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "compose/ClipRule.h"
#include "compose/TextFitting.h"
#include "compose/Workshop.h"

namespace deckforge {

// Composition shared by all kinds of card.

/// The picture in its frame. The frame's border insets it by a pixel.
[[nodiscard]] ClipInput ClipInFrame(const Box& frame, const Box& image, double left, double top);

/// Clears the surface and gives it the size of the preview and the carried pen.
void BeginCard(PictureBox& surface, const Box& preview, const FontSpec& pen);

/// Prints the caption of a label on one line, aligned in its box.
void PrintLine(PictureBox& surface, const Box& label);

/// Prints the captions of all labels with a TextForm, in their fonts of the set.
void PrintTexts(PictureBox& surface, const BoxList& boxes, const SetHeader& header);

void PrintWatermark(PictureBox& surface, const Box& watermark);

/// Composes one card, with the steps that all kinds share. A missing file is reported on the preview of the
/// standard card, and the next step runs. Any other failure is thrown.
class Composer {
protected:
    Composer(Workshop& workshop, int16 index);

    // Preview

    /// From now on reports a missing file on this box, with this message and path.
    void ReportMissingOn(Box& reporter, const QString& path, const char* message = "Missing picture.");

    /// Runs a step that loads a picture. Ignores an invalid property value.
    template <class Step>
    void Load(Step&& step)
    {
        try {
            WithMemoryAsFailure(step);
        } catch (const RunTimeError& error) {
            Handle(error);
        }
    }

    /// Loads the picture of a frame and repaints its box, which removes an earlier message about a missing
    /// file.
    void LoadFramedPicture(Box& image, const QString& path);
    void LoadBackground(Box& card, const QString& path, Colour colour);

    // Composition. Steps that fail are skipped.

    /// Clears picACard and paints the background, or the colour if the file is missing.
    void PaintBackground(const Box& preview, const QString& path, Colour colour);

    /// Fills the frame with white, paints the visible part of the picture, and draws the outline.
    /// Kept: the outline has the surface's current colour, left by the card before.
    void PaintFramed(PictureBox& surface, const Box& frame, const Box& image, const ClipInput& clip);

    /// Paints the symbol of the set, if it has one.
    void PaintSymbol(const Box& symbol);

    /// Prints the card's number in the set, if the set shows it.
    void PrintIndex(const Box& number, int top);

    /// Prints the version mark, and carries the pen to the next card.
    void FinishCard(const Box& watermark);

    const int16 m_index;
    const SetHeader& m_header;
    CardTemplate& m_standard;
    WorkSurfaces& m_surfaces;
    PictureBox& m_picACard;
    CarriedPens& m_pens;
    BuiltInArt& m_art;
    PictureLoader& m_pictures;

private:
    void Handle(const RunTimeError& error);

    std::vector<PictureProblem>& m_problems;
    Box* m_reporter = nullptr;
    QString m_message;
};

/// Composes a card and returns the failure that ended it. Sets the problems of the workshop.
template <class KindComposer>
[[nodiscard]] CompositionFailure Compose(Workshop& workshop, int16 index)
{
    workshop.Problems.clear();
    try {
        WithMemoryAsFailure([&] { KindComposer(workshop, index).Compose(); });
    } catch (const RunTimeError& error) {
        workshop.Problems.push_back({error.Place(), error.Description()});
        return error;
    }
    return std::nullopt;
}

} // namespace deckforge
