// SPDX-License-Identifier: GPL-3.0-or-later

#include "imaging/modRotatePic.h"

#include <QTransform>

namespace deckforge {

namespace {

constexpr int ClockwiseShift = -2;

void RotateTo(const PictureBox& source, PictureBox& target, Turn turn, int left)
{
    constexpr qreal quarter = 90;
    target.SetPicture({});
    target.SetSize(source.Size().transposed());
    const QTransform quarterTurn = QTransform().rotate(turn == Turn::Clockwise ? quarter : -quarter);
    const Picture upright = source.Image();
    target.PaintPicture(Picture(upright.Pixels().transformed(quarterTurn), upright.Scale()), left, 0);
    target.Freeze();
}

} // namespace

void RotatePicture(const PictureBox& source, PictureBox& target, Turn turn)
{
    RotateTo(source, target, turn, 0);
}

void RotatePictureShifted(const PictureBox& source, PictureBox& target, Turn turn)
{
    RotateTo(source, target, turn, turn == Turn::Clockwise ? ClockwiseShift : 0);
}

} // namespace deckforge
