#pragma once

#include "core/modInfo.h"
#include "dialogs/frmCardList.h"
#include "editor/Page.h"
#include "editor/RecordForm.h"

#include <QLabel>
#include <QScrollBar>
#include <QSignalBlocker>

namespace deckforge {

/// One tab: edits the current record of its kind, steps through the records, adds and deletes them.
template <class Record>
class RecordPage : public Page, protected RecordForm<Record> {
public:
    [[nodiscard]] CardKind Kind() const override { return KindOf<Record>; }
    [[nodiscard]] QWidget* Form() const override { return this->m_widget; }

    void Enter() override;
    void TakeSet() override;
    void SyncSlider() override;
    void Fill() override;
    void Add() override;
    void Delete() override;
    void Previous() override { m_slider->setValue(m_slider->value() - 1); }
    void Next() override { m_slider->setValue(m_slider->value() + 1); }
    void Copy() override { CopyElement<Record>(m_parts.Works.Set, m_parts.User); } // changes no card: no step
    void Paste() override;
    bool TakeDrop(const Box& box, const QString& path) override { return this->TakePictureOn(box, path); }

protected:
    using RecordForm<Record>::m_parts;
    using RecordForm<Record>::On;

    RecordPage(EditorParts& parts, QWidget* parent) : RecordForm<Record>(parts, new QWidget(parent)) {}

    // Each connects controls. Called by the constructor of the page.

    /// The slider steps through the records and shows its place. While it is dragged, `dragged` shows a text
    /// for the record under it.
    void AddSlider(QScrollBar* slider, QLabel* position, QLabel* dragged = nullptr);
    /// `name` gets the focus for a new record; `list` chooses a record from Card List.
    void AddButtons(QAbstractButton* add, QAbstractButton* remove, QLineEdit* name,
                    QAbstractButton* list = nullptr);
    /// Connects the check boxes of the picture frame.
    template <class Template>
    void AddFrame(QCheckBox* showPicture, QCheckBox* outline, Template& boxes, Box& frame);

    /// Fills the controls that no Add function connects.
    virtual void FillOthers() {}
    /// What is shown for the record under the dragged slider.
    [[nodiscard]] virtual QString DraggedText(const Record& record) const
    {
        return record.*NameField<Record>;
    }

    [[nodiscard]] const CardList<Record>& List() const { return ListOf<Record>(m_parts.Document.Set()); }
    void ShowCurrent() { Show(List().Current); }

    QScrollBar* m_slider = nullptr;
    bool m_positionFollows = true; ///< the slider while it is dragged

private:
    void Changed();
    void Dragged();
    void Dropped();
    void ChooseFromList();
    void FillPosition() { m_position->setText(PositionText(List().Current, List().Count())); }

    QLabel* m_position = nullptr;
    QLabel* m_dragged = nullptr;
    QLineEdit* m_name = nullptr;
};

template <class Record>
void RecordPage<Record>::AddSlider(QScrollBar* slider, QLabel* position, QLabel* dragged)
{
    m_slider = slider;
    m_position = position;
    m_dragged = dragged;
    On(slider, &QScrollBar::valueChanged, [this] { Changed(); });
    On(slider, &QScrollBar::sliderMoved, [this] { Dragged(); });
    On(slider, &QScrollBar::sliderReleased, [this] { Dropped(); });
}

template <class Record>
void RecordPage<Record>::AddButtons(QAbstractButton* add, QAbstractButton* remove, QLineEdit* name,
                                    QAbstractButton* list)
{
    m_name = name;
    On(add, &QAbstractButton::clicked, [this] { Add(); });
    On(remove, &QAbstractButton::clicked, [this] { Delete(); });
    if (list)
        On(list, &QAbstractButton::clicked, [this] { ChooseFromList(); });
}

template <class Record>
template <class Template>
void RecordPage<Record>::AddFrame(QCheckBox* showPicture, QCheckBox* outline, Template& boxes, Box& frame)
{
    this->AddCheck(showPicture, &Record::ShowPicture, [this, &boxes] {
        ShowPictureFrame(boxes, this->Current().ShowPicture);
        m_parts.Preview.SettleFocus();
    });
    this->AddCheck(outline, &Record::Frame, [this, &frame] { frame.SetOutlined(this->Current().Frame); });
}

template <class Record>
void RecordPage<Record>::Enter()
{
    if (List().Count() == 0) {
        m_parts.Document.Edit(QStringLiteral("First card"), MakeFirstElement<Record>);
        m_slider->setRange(1, List().Count());
    }
    ShowCurrent();
}

template <class Record>
void RecordPage<Record>::Fill()
{
    this->FillFields();
    FillOthers();
    ShowFrameSize();
    FillPosition();
    m_parts.Preview.update();
}

/// A slider past its new end moves there without showing that record.
template <class Record>
void RecordPage<Record>::TakeSet()
{
    const QSignalBlocker quiet(m_slider);
    m_slider->setMaximum(std::max<int>(1, List().Count()));
}

template <class Record>
void RecordPage<Record>::SyncSlider()
{
    const QSignalBlocker quiet(m_slider);
    m_slider->setMaximum(std::max<int>(1, List().Count()));
    m_slider->setValue(List().Current);
}

/// The slider of card backs may reach past the last one, since opening a set does not change its range.
template <class Record>
void RecordPage<Record>::Changed()
{
    m_parts.Document.GoTo(Kind(), std::min(static_cast<int16>(m_slider->value()), List().Count()));
    Dropped();
    ShowCurrent();
}

template <class Record>
void RecordPage<Record>::Dragged()
{
    const int slider = m_slider->sliderPosition();
    const int16 index = m_positionFollows ? static_cast<int16>(slider) : List().Current;
    m_position->setText(PositionText(index, List().Count()));
    if (m_dragged)
        m_dragged->setText(DraggedText(List()[slider]));
}

/// Also called when the slider is released where it was, which does not change the record.
template <class Record>
void RecordPage<Record>::Dropped()
{
    if (m_dragged)
        m_dragged->clear();
    FillPosition();
}

template <class Record>
void RecordPage<Record>::Add()
{
    m_parts.Document.Edit(QStringLiteral("Add"), AddElement<Record>);
    m_slider->setMaximum(List().Count());
    ShowCurrent();
    m_slider->setValue(List().Count());
    m_name->selectAll();
    if (m_name->isVisibleTo(Form()->window())) // after New the form may not be that of the tab
        m_name->setFocus();
}

template <class Record>
void RecordPage<Record>::Delete()
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

template <class Record>
void RecordPage<Record>::Paste()
{
    m_parts.Document.Edit(QStringLiteral("Paste"), PasteElement<Record>);
    ShowCurrent();
}

template <class Record>
void RecordPage<Record>::ChooseFromList()
{
    const auto index = ChooseFromCardList(m_parts.Document.Set(), Kind(), Form()->window());
    if (!index)
        return;
    m_parts.Document.GoTo(Kind(), *index);
    {
        const QSignalBlocker quiet(m_slider); // which may not reach so far
        m_slider->setValue(*index);
    }
    FillPosition();
    // Kept: the list of the large cards shows the characters, and may return an index past the last large
    // card. That fails here and is reported once; showing the card would report it twice.
    static_cast<void>(List()[*index]);
    Show(*index);
}

} // namespace deckforge
