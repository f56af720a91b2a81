// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "core/CardSet.h"

#include <QImage>
#include <QObject>
#include <QStringList>

class QMimeData;

namespace deckforge {

/// Pictures that are dropped or pasted: files, or pixels without a file, as browsers give them.
struct IncomingPictures {
    explicit IncomingPictures(const QMimeData& data);

    [[nodiscard]] bool IsEmpty() const { return Files.isEmpty() && Pixels.isNull(); }
    /// The files; pixels are written into the set's pictures folder first.
    [[nodiscard]] QStringList Kept(const CardSet& set) const;

    QStringList Files;
    QImage Pixels;
};

[[nodiscard]] bool HasPictures(const QMimeData& data);

/// The path of a set file; empty unless it is the only file.
[[nodiscard]] QString SetFileIn(const QMimeData& data);

/// Lets the window paste a picture while a text box has the focus, which would take the keys and paste
/// nothing.
class PicturePasteFilter final : public QObject {
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace deckforge
