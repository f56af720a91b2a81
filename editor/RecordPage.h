#pragma once

#include "core/modInfo.h"
#include "editor/Page.h"
#include "editor/RecordForm.h"

#include <QLabel>
#include <QScrollBar>
#include <QSignalBlocker>
#include <algorithm>

namespace deckforge {

/// The controls that step through the records of a kind.
template <class Record>
struct StepControls {
    QScrollBar* Bar;
    QLabel* Position;
    QLabel* Dragged = nullptr;                       ///< names the record under the slider
    QString (*DraggedText)(const Record&) = nullptr; ///< how it names it
    bool FollowsSlider = true;                       ///< the position follows the slider while it is dragged
    QAbstractButton* Add;
    QAbstractButton* Delete;
    QLineEdit* Name; ///< takes the next keys after a new record
};

/// One tab: edits the current record of its kind, steps through the records, adds and deletes them.
template <class Record>
class RecordPage : public Page, protected RecordForm<Record> {
public:
    [[nodiscard]] CardKind Kind() const override { return KindOf<Record>; }
    [[nodiscard]] QWidget* Form() const override { return this->m_widget; }

    void Add() override;
    void Delete() override;
    void Previous() override { m_steps.Bar->setValue(m_steps.Bar->value() - 1); }
    void Next() override { m_steps.Bar->setValue(m_steps.Bar->value() + 1); }
    void Copy() override { this->m_parts.Document.template Copy<Record>(); }
    void Paste() override;
    void SyncSlider() override;
    bool TakeDrop(const Box& box, const QString& path) override;

    /// Goes to a record that may lie past the end of the slider.
    void GoTo(int16 index);

protected:
    RecordPage(EditorParts& parts, QWidget* parent) : RecordForm<Record>(parts, new QWidget(parent)) {}

    /// Connects the controls of the form. Called once, by the constructor of the page.
    void Bind(const StepControls<Record>& steps, FieldRows<Record> rows);

    [[nodiscard]] const CardList<Record>& List() const
    {
        return ListOf<Record>(this->m_parts.Document.Set());
    }
    void ShowCurrent() { Show(List().Current); }
    void FillPosition();
    /// A slider past its new end goes there without showing what it stands for.
    void SetMaximumQuietly();
    /// Makes the first record where there is none; whether it did.
    bool MakeFirst();

    StepControls<Record> m_steps = {};

private:
    void Changed();
    void Dragged();
    void Dropped();
};

template <class Record>
void RecordPage<Record>::Bind(const StepControls<Record>& steps, FieldRows<Record> rows)
{
    m_steps = steps;
    RecordForm<Record>::Bind(std::move(rows));
    this->On(m_steps.Bar, &QScrollBar::valueChanged, [this] { Changed(); });
    this->On(m_steps.Bar, &QScrollBar::sliderMoved, [this] { Dragged(); });
    this->On(m_steps.Bar, &QScrollBar::sliderReleased, [this] { Dropped(); });
    this->On(m_steps.Add, &QAbstractButton::clicked, [this] { Add(); });
    this->On(m_steps.Delete, &QAbstractButton::clicked, [this] { Delete(); });
}

template <class Record>
void RecordPage<Record>::FillPosition()
{
    m_steps.Position->setText(PositionText(List().Current, List().Count()));
}

template <class Record>
void RecordPage<Record>::SetMaximumQuietly()
{
    const QSignalBlocker quiet(m_steps.Bar);
    m_steps.Bar->setMaximum(std::max<int>(1, List().Count()));
}

template <class Record>
void RecordPage<Record>::SyncSlider()
{
    SetMaximumQuietly();
    const QSignalBlocker quiet(m_steps.Bar);
    m_steps.Bar->setValue(List().Current);
}

template <class Record>
bool RecordPage<Record>::MakeFirst()
{
    if (List().Count() > 0)
        return false;
    this->m_parts.Document.Edit(QStringLiteral("First card"),
                                [](CardSet& set) { MakeFirstElement<Record>(set); });
    return true;
}

/// The slider of card backs can reach past them: its range is not renewed for a set that was opened.
template <class Record>
void RecordPage<Record>::Changed()
{
    this->m_parts.Document.template GoTo<Record>(
        std::min(static_cast<int16>(m_steps.Bar->value()), List().Count()));
    Dropped();
    ShowCurrent();
}

template <class Record>
void RecordPage<Record>::Dragged()
{
    const int slider = m_steps.Bar->sliderPosition();
    const int16 index = m_steps.FollowsSlider ? static_cast<int16>(slider) : List().Current;
    m_steps.Position->setText(PositionText(index, List().Count()));
    if (m_steps.Dragged)
        m_steps.Dragged->setText(m_steps.DraggedText(List()[slider]));
}

/// Also where the slider is released where it was, which changes no record.
template <class Record>
void RecordPage<Record>::Dropped()
{
    if (m_steps.Dragged)
        m_steps.Dragged->clear();
    FillPosition();
}

template <class Record>
void RecordPage<Record>::Add()
{
    this->m_parts.Document.Edit(QStringLiteral("Add"), [](CardSet& set) { AddElement<Record>(set); });
    m_steps.Bar->setMaximum(List().Count());
    ShowCurrent();
    m_steps.Bar->setValue(List().Count());
    m_steps.Name->selectAll();
    if (m_steps.Name->isVisibleTo(this->m_widget->window())) // after New the form may not be that of the tab
        m_steps.Name->setFocus();
}

template <class Record>
void RecordPage<Record>::Delete()
{
    const bool isLast = List().Current == List().Count();
    bool isDeleted = false;
    this->m_parts.Document.Edit(QStringLiteral("Delete"), [&](CardSet& set) {
        isDeleted = DeleteElement<Record>(set, this->m_parts.User);
    });
    if (!isDeleted)
        return;
    if (isLast)
        m_steps.Bar->setValue(List().Current);
    ShowCurrent();
    m_steps.Bar->setMaximum(List().Count());
    FillPosition();
}

template <class Record>
void RecordPage<Record>::Paste()
{
    this->m_parts.Document.Edit(QStringLiteral("Paste"), [](CardSet& set) { PasteElement<Record>(set); });
    ShowCurrent();
}

template <class Record>
void RecordPage<Record>::GoTo(int16 index)
{
    this->m_parts.Document.template GoTo<Record>(index);
    {
        const QSignalBlocker quiet(m_steps.Bar); // which may not reach as far
        m_steps.Bar->setValue(index);
    }
    FillPosition();
    // The list of the large cards shows the characters, and may have given an index past the last large card.
    // That fails here and is reported once; showing it would fail twice.
    static_cast<void>(List()[index]);
    Show(index);
}

template <class Record>
bool RecordPage<Record>::TakeDrop(const Box& box, const QString& path)
{
    for (const auto& row : this->Rows().Pictures) {
        const bool isPlace = std::find(row.DropsAt.begin(), row.DropsAt.end(), &box) != row.DropsAt.end();
        if (&box == row.Target || isPlace) {
            this->TakePicture(row, path);
            return true;
        }
    }
    return false;
}

} // namespace deckforge
