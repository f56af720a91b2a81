#pragma once

#include "core/CardKind.h"

class QString;
class QWidget;

namespace deckforge {

struct Box;

/// One tab, as the window and its commands know it.
class Page {
public:
    Page() = default;
    virtual ~Page() = default;
    Page(const Page&) = delete;
    Page& operator=(const Page&) = delete;

    [[nodiscard]] virtual CardKind Kind() const = 0;
    [[nodiscard]] virtual QWidget* Form() const = 0;

    /// Makes the first record of the kind if there is none. Its tab was clicked.
    virtual void Enter() = 0;
    /// Shows or hides the boxes of the kind on the preview, from the front side.
    virtual void SetShown(bool isShown) = 0;
    /// A set was opened, made anew or restored: what depends on its tables and counts is renewed.
    virtual void TakeSet() = 0;

    /// A step was undone or redone: the slider goes to the current record.
    virtual void SyncSlider() = 0;

    /// Brings preview and controls up to date with a record.
    virtual void Show(int16 index) = 0;
    /// Brings the controls alone up to date with the current record.
    virtual void Fill() = 0;
    /// The frame on the preview has another size.
    virtual void ShowFrameSize() {}

    // Commands on the current record.
    virtual void Add() = 0;
    virtual void Delete() = 0;
    virtual void Previous() = 0;
    virtual void Next() = 0;
    virtual void Copy() = 0;
    virtual void Paste() = 0;

    /// Takes a picture that was dropped on a box of the preview; false if the box is none of the page's.
    virtual bool TakeDrop(const Box& box, const QString& path) = 0;
};

} // namespace deckforge
