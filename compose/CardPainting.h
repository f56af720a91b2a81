#pragma once

#include "compose/Box.h"
#include "compose/ClipRule.h"
#include "platform/UserPort.h"

namespace deckforge {

// What the composers of all kinds of card share.

/// A picture behind its frame, as a record and its template have it.
struct FramedPicture {
    const Box& Frame;
    const Box& Image;
    ClipInput Clip;
    QPoint Origin; ///< where the parent of the frame lies on the surface
    bool IsSet;    ///< the record names a picture
};

/// Blanks the frame in white, and paints the part of the picture that it shows.
void PaintFramedPicture(PictureBox& surface, const Picture& white, const FramedPicture& picture);

/// Outlines the frame in the colour that the composition before left on the surface: nothing sets one here.
void OutlineFrame(PictureBox& surface, const Box& frame, QPoint origin);

/// Prints a line centred in its box.
void PrintCentred(PictureBox& surface, const Box& box, const QString& text);

/// Prints the caption of a version mark in the mark's own font.
void PrintWatermark(PictureBox& surface, const Box& watermark);

/// A Show... routine step by step. A missing file is told on the preview and the next step runs; a value that
/// a box cannot take is passed over. Anything else leaves the routine.
class ShowRun {
public:
    /// Which box tells that the file at the path is missing, from here on.
    void LoadsFor(Box& box, const QString& path);

    template <class Step>
    void operator()(Step&& step)
    {
        try {
            step();
        } catch (const RunTimeError& error) {
            Answer(error);
        }
    }

private:
    void Answer(const RunTimeError& error);

    Box* m_box = nullptr;
    QString m_path;
};

/// Tells a failure that left a Show... routine.
void TellCannotDraw(UserPort& user, const RunTimeError& error);

} // namespace deckforge
