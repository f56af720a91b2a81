#pragma once

#include "imaging/Picture.h"

#include <QWidget>

namespace deckforge {

/// Shows a picture as large as a card, or smaller where it would not fit; the shape stays.
class PictureView final : public QWidget {
public:
    explicit PictureView(QWidget* parent = nullptr);

    /// The empty picture shows the words instead.
    void ShowPicture(const Picture& picture, const QString& words = {});

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Picture m_picture;
    QString m_words;
};

} // namespace deckforge
