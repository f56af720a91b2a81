// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "compose/PicturePlacement.h"
#include "editor/EditorParts.h"

#include <array>
#include <functional>

class QButtonGroup;
class QScrollArea;

namespace deckforge {

/// Handles gestures on the preview: moves pictures, sizes frames, changes fonts, zooms.
class PreviewController final : public QObject {
    Q_OBJECT

public:
    PreviewController(EditorParts& parts, QWidget* window);

    /// The scroll area that contains the preview.
    [[nodiscard]] QScrollArea* Area() const { return m_area; }
    /// One button per zoom, for the status bar.
    [[nodiscard]] QList<QAbstractButton*> ZoomButtons() const;

    void SetZoom(int zoom);

Q_SIGNALS:
    /// A gesture may have changed the frame of the current record.
    void FrameSized(deckforge::CardKind kind);
    void Zoomed();

private:
    /// A picture that can be moved.
    struct PlacementRow {
        const Box& Image;
        const Box* Handle; ///< null if there is none
        PlacedPicture Picture;
        CardKind Kind;
    };

    void BuildZoom(QWidget* window);
    [[nodiscard]] std::array<PlacementRow, 4> Placements() const;
    /// Edits the record as an undo step with that name, and updates preview and frame size.
    void Place(const PlacementRow& row, const char* step, const std::function<void()>& work);
    void LabelClicked(const Box* box, int clicks);
    void Dragged(const Box* box, QPoint point, QPoint moved);
    void KeyPressed(const Box* picture, Qt::Key key, Qt::KeyboardModifiers held);
    void ShowTip(const Box* box, QPoint globalPoint);

    EditorParts& m_parts;
    QScrollArea* m_area;
    QButtonGroup* m_zooms;
    QPoint m_dragStart; ///< position inside the pressed box
};

} // namespace deckforge
