// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "core/modInfo.h"
#include "dialogs/frmCardList.h"
#include "editor/Page.h"
#include "editor/RecordForm.h"

#include <QLabel>
#include <QScrollBar>
#include <QSignalBlocker>

namespace deckforge {

/// One tab: edits the current record of its kind, and adds, deletes and steps through records.
template <class Record>
class RecordPage : public Page, protected RecordForm<Record> {
public:
    [[nodiscard]] CardKind Kind() const override { return KindOf<Record>; }
    [[nodiscard]] QWidget* Form() const override { return this->m_widget; }

    void Enter() override
    {
        if (List().Count() == 0) {
            m_parts.Document.Edit(QStringLiteral("First card"), MakeFirstElement<Record>);
            m_slider->setRange(1, List().Count());
        }
        ShowCurrent();
    }

    /// Does not show another record if the slider has to move.
    void TakeSet() override
    {
        const QSignalBlocker quiet(m_slider);
        m_slider->setMaximum(std::max<int>(1, List().Count()));
    }

    void SyncSlider() override
    {
        const QSignalBlocker quiet(m_slider);
        m_slider->setMaximum(std::max<int>(1, List().Count()));
        m_slider->setValue(List().Current);
    }

    void Fill() override
    {
        this->FillFields();
        FillOthers();
        ShowFrameSize();
        FillPosition();
        m_parts.Preview.update();
    }

    void StartTyping() override
    {
        m_name->selectAll();
        if (m_name->isVisibleTo(Form()->window())) // after New another tab may be shown
            m_name->setFocus();
    }

    void Add() override
    {
        m_parts.Document.Edit(QStringLiteral("Add"), AddElement<Record>);
        m_slider->setMaximum(List().Count());
        ShowCurrent();
        m_slider->setValue(List().Count());
        StartTyping();
    }

    void Delete() override
    {
        const bool isLast = List().Current == List().Count();
        bool isDeleted = false;
        m_parts.Document.Edit(QStringLiteral("Delete"),
                              [&](CardSet& set) { isDeleted = DeleteElement<Record>(set, m_parts.User); });
        if (!isDeleted)
            return;
        if (isLast)
            m_slider->setValue(List().Current);
        ShowCurrent();
        m_slider->setMaximum(List().Count());
        FillPosition();
    }

    void Previous() override { m_slider->setValue(m_slider->value() - 1); }
    void Next() override { m_slider->setValue(m_slider->value() + 1); }
    void Copy() override // not part of the undo steps
    {
        CopyElement<Record>(m_parts.Works.Set);
        ShowCopied(m_parts.User, KindOf<Record>);
    }
    void Paste() override
    {
        m_parts.Document.Edit(QStringLiteral("Paste"), PasteElement<Record>);
        ShowCurrent();
    }

    void TakePicture(const QString& path) override { this->TakeFirstPicture(path); }
    bool TakeDrop(const Box& box, const QString& path) override { return this->TakePictureOn(box, path); }

protected:
    using RecordForm<Record>::m_parts;
    using RecordForm<Record>::On;

    RecordPage(EditorParts& parts, QWidget* parent) : RecordForm<Record>(parts, new QWidget(parent)) {}

    // Each connects controls. Called by the constructor of the page.

    /// Connects the slider and the label that shows the position. While the slider is dragged, `dragged`
    /// shows DraggedText().
    void AddSlider(QScrollBar* slider, QLabel* position, QLabel* dragged = nullptr)
    {
        m_slider = slider;
        m_position = position;
        m_dragged = dragged;
        On(slider, &QScrollBar::valueChanged, [this] { Changed(); });
        On(slider, &QScrollBar::sliderMoved, [this] { Dragged(); });
        On(slider, &QScrollBar::sliderReleased, [this] { Dropped(); });
    }

    /// `name` gets the focus for a new record; `list` opens Card List.
    void AddButtons(QAbstractButton* add, QAbstractButton* remove, QLineEdit* name,
                    QAbstractButton* list = nullptr)
    {
        m_name = name;
        On(add, &QAbstractButton::clicked, [this] { Add(); });
        On(remove, &QAbstractButton::clicked, [this] { Delete(); });
        if (list)
            On(list, &QAbstractButton::clicked, [this] { ChooseFromList(); });
    }

    /// Connects the check boxes of the picture frame.
    template <class Template>
    void AddFrame(QCheckBox* showPicture, QCheckBox* outline, Template& boxes, Box& frame)
    {
        this->AddCheck(showPicture, &Record::ShowPicture, [this, &boxes] {
            ShowPictureFrame(boxes, this->Current().ShowPicture);
            m_parts.Preview.SettleFocus();
        });
        this->AddCheck(outline, &Record::Frame, [this, &frame] { frame.Outlined = this->Current().Frame; });
    }

    /// Fills the controls that no Add function has connected.
    virtual void FillOthers() {}
    /// Describes the record under the dragged slider.
    [[nodiscard]] virtual QString DraggedText(const Record& record) const
    {
        return record.*NameField<Record>;
    }

    [[nodiscard]] const CardList<Record>& List() const { return ListOf<Record>(m_parts.Document.Set()); }
    void ShowCurrent() { Show(List().Current); }

    QScrollBar* m_slider = nullptr;
    bool m_positionFollows = true; ///< whether the position follows the dragged slider

private:
    /// The slider of card backs may exceed their count, since opening a set does not change its range.
    void Changed()
    {
        m_parts.Document.GoTo(Kind(), std::min(static_cast<int16>(m_slider->value()), List().Count()));
        Dropped();
        ShowCurrent();
    }

    void Dragged()
    {
        const int slider = m_slider->sliderPosition();
        const int16 index = m_positionFollows ? static_cast<int16>(slider) : List().Current;
        m_position->setText(PositionText(index, List().Count()));
        if (m_dragged)
            m_dragged->setText(DraggedText(List()[slider]));
    }

    /// Also called if the slider is released at its old position, without valueChanged().
    void Dropped()
    {
        if (m_dragged)
            m_dragged->clear();
        FillPosition();
    }

    void ChooseFromList()
    {
        const auto index = ChooseFromCardList(m_parts.Document.Set(), Kind(), Form()->window());
        if (!index)
            return;
        m_parts.Document.GoTo(Kind(), *index);
        {
            const QSignalBlocker quiet(m_slider); // the record may be past the slider's end
            m_slider->setValue(*index);
        }
        FillPosition();
        // Kept: the list of the large cards shows the characters, and may return an index past the last large
        // card. That fails here and is reported once; showing the card would report it twice.
        static_cast<void>(List()[*index]);
        Show(*index);
    }

    void FillPosition() { m_position->setText(PositionText(List().Current, List().Count())); }

    QLabel* m_position = nullptr;
    QLabel* m_dragged = nullptr;
    QLineEdit* m_name = nullptr;
};

} // namespace deckforge
