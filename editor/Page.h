// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "core/CardKind.h"

#include <memory>
#include <vector>

class QString;
class QWidget;

namespace deckforge {

struct Box;
struct EditorParts;

/// Interface of one tab to the window and its commands.
class Page {
public:
    Page() = default;
    virtual ~Page() = default;
    Page(const Page&) = delete;
    Page& operator=(const Page&) = delete;

    [[nodiscard]] virtual CardKind Kind() const = 0;
    [[nodiscard]] virtual QWidget* Form() const = 0;
    /// The controls that select their text when they get the focus.
    [[nodiscard]] virtual std::vector<QWidget*> BoxesToReplace() const = 0;

    /// The tab was clicked: makes the first record if there is none, and shows the current one.
    virtual void Enter() = 0;
    /// Shows the front side on the preview, or hides the page's boxes.
    virtual void SetShown(bool isShown) = 0;
    /// A set was opened, created or restored: updates what depends on its tables and counts.
    virtual void TakeSet() = 0;
    /// A step was undone or redone: moves the slider to the current record.
    virtual void SyncSlider() = 0;

    /// Updates preview and controls with a record.
    virtual void Show(int16 index) = 0;
    /// Updates only the controls, with the current record.
    virtual void Fill() = 0;
    /// The size of the frame on the preview has changed.
    virtual void ShowFrameSize() {}

    /// Moves the focus to the name of the record and selects it.
    virtual void StartTyping() = 0;

    // Commands on the current record.
    virtual void Add() = 0;
    virtual void Delete() = 0;
    virtual void Previous() = 0;
    virtual void Next() = 0;
    virtual void Copy() = 0;
    virtual void Paste() = 0;

    /// Takes a pasted picture for the picture of the current record.
    virtual void TakePicture(const QString& path) = 0;
    /// Takes a picture dropped on a box of the preview; false if the box does not belong to the page.
    virtual bool TakeDrop(const Box& box, const QString& path) = 0;
};

std::unique_ptr<Page> MakeStandardPage(EditorParts& parts, QWidget* parent);
std::unique_ptr<Page> MakeLargePage(EditorParts& parts, QWidget* parent);
std::unique_ptr<Page> MakeCharacterPage(EditorParts& parts, QWidget* parent);
std::unique_ptr<Page> MakeBackPage(EditorParts& parts, QWidget* parent);

} // namespace deckforge
