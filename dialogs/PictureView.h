// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "imaging/Picture.h"

#include <QWidget>

namespace deckforge {

/// Shows a picture at the size of a card, or scaled down to fit, with its aspect ratio.
class PictureView final : public QWidget {
public:
    explicit PictureView(QWidget* parent = nullptr);

    /// For an empty picture the words are shown instead.
    void ShowPicture(const Picture& picture, const QString& words = {});

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Picture m_picture;
    QString m_words;
};

} // namespace deckforge
