// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "dialogs/Choices.h"
#include "dialogs/ColourSwatch.h"
#include "dialogs/FitPicture.h"
#include "editor/EditorParts.h"
#include "editor/TextControl.h"
#include "platform/Paths.h"

#include <QCheckBox>
#include <QMap>
#include <QPlainTextEdit>
#include <QScopedValueRollback>
#include <QSpinBox>
#include <deque>
#include <functional>
#include <limits>
#include <utility>
#include <vector>

namespace deckforge {

using Handler = std::function<void()>;

inline void DoNothing() {}

struct TextOptions {
    Box* Preview = nullptr; ///< its caption shows the text
    Handler Changed = DoNothing;
    bool QuietOnFill = false; ///< not applied when the control is filled
};

struct PictureControls {
    QAbstractButton* Choose;
    QAbstractButton* Clear;
    QLineEdit* PathBox;
    QAbstractButton* Fit = nullptr;
};

struct PictureOptions {
    const char* Title = "Choose picture";          ///< of the file dialog
    Box* Target = nullptr;                         ///< shows the picture
    std::function<void(const Picture&)> Show = {}; ///< shows it in another way
    const Box* Frame = nullptr;    ///< contains Target, which then takes the picture's natural size
    const Box* DropArea = nullptr; ///< accepts dropped pictures, as Target and Frame do
    bool StartsAtFrame = true;     ///< a new picture starts at the top left of its frame
    QSize FitSize = {};            ///< what a fitted picture fills, without Target and Frame
    Handler Changed = DoNothing;
    Handler Cleared = DoNothing;
};

struct ColourControls {
    QAbstractButton* Choose;
    ColourSwatch* Swatch;
    const char* Title; ///< of the colour dialog
};

struct ColourOptions {
    Box* Preview = nullptr;      ///< its background has the colour
    Handler Changed = DoNothing; ///< also runs if the dialog was cancelled
};

/// A form whose controls edit the current record of one type. A change is written to the record through
/// SetDocument::Edit, as an undo step named after the control, and shown by the control's box of the preview.
template <class Record>
class RecordForm {
public:
    RecordForm(EditorParts& parts, QWidget* widget) : m_parts(parts), m_widget(widget) {}
    virtual ~RecordForm() = default;
    RecordForm(const RecordForm&) = delete;
    RecordForm& operator=(const RecordForm&) = delete;

protected:
    using ColourField = Colour& (*)(Record&);

    /// The fields of a picture's place behind its frame, in twips.
    struct PictureOffset {
        double Record::*Left = nullptr;
        double Record::*Top = nullptr;
    };

    // Each connects controls with a field of the record. Called by the constructor of the form.

    void AddText(QWidget* control, QString Record::*field, TextOptions options = {})
    {
        m_fills.emplace_back([control, field](const Record& record) { SetTextOf(*control, record.*field); });
        const auto changed = [this, control, field, options = std::move(options)] {
            if (m_isFilling && options.QuietOnFill)
                return;
            if (!m_isFilling)
                Edit(control, field, TextOf(*control));
            if (options.Preview)
                options.Preview->Caption = Current().*field;
            options.Changed();
            m_parts.Preview.update();
        };
        if (QLineEdit* const line = LineEditOf(control)) {
            line->setMaxLength(std::numeric_limits<int>::max()); // the field has no limit
            On(line, &QLineEdit::textChanged, changed);
        } else {
            On(static_cast<QPlainTextEdit*>(control), &QPlainTextEdit::textChanged, changed);
        }
    }

    void AddCheck(QCheckBox* control, bool Record::*field, Handler changed = DoNothing)
    {
        m_fills.emplace_back([control, field](const Record& record) { control->setChecked(record.*field); });
        On(control, &QCheckBox::clicked, [this, control, field, changed = std::move(changed)] {
            Edit(control, field, control->isChecked());
            changed();
            m_parts.Preview.update();
        });
    }

    void AddCount(QSpinBox* control, int16 Record::*field)
    {
        m_fills.emplace_back([control, field](const Record& record) { control->setValue(record.*field); });
        On(control, &QSpinBox::valueChanged, [this, control, field](int value) {
            if (!m_isFilling)
                Edit(control, field, static_cast<int16>(value));
        });
    }

    void AddPicture(PictureControls controls, QString Record::*field, PictureOptions options,
                    PictureOffset offset = {})
    {
        m_fills.emplace_back(
            [controls, field](const Record& record) { ShowPath(*controls.PathBox, record.*field); });
        const PictureRow& row =
            m_pictures.emplace_back(PictureRow{controls, field, std::move(options), offset});
        if (controls.Fit)
            On(controls.Fit, &QAbstractButton::clicked, [this, &row] { FitPicture(row); });
        On(controls.Choose, &QAbstractButton::clicked, [this, &row] {
            if (const auto path = AskPicture(row.Options.Title, row.Controls.Choose))
                TakePicture(row, *path);
        });
        On(controls.Clear, &QAbstractButton::clicked, [this, &row] { ClearPicture(row); });
    }

    void AddColour(ColourControls controls, ColourField field, ColourOptions options)
    {
        m_fills.emplace_back(
            [controls, field](Record record) { controls.Swatch->SetColour(QColor(ToRgb(field(record)))); });
        const auto choose = [this, controls, field, options = std::move(options)] {
            Record record = Current();
            if (const auto colour =
                    m_parts.User.AskColour(QString::fromLatin1(controls.Title), field(record))) {
                Edit(controls.Swatch, [&](Record& changed) { field(changed) = *colour; });
                controls.Swatch->SetColour(QColor(ToRgb(*colour)));
                if (options.Preview)
                    options.Preview->Surface->SetBackColor(*colour);
            }
            options.Changed();
            m_parts.Preview.update();
        };
        On(controls.Choose, &QAbstractButton::clicked, choose);
        On(controls.Swatch, &QAbstractButton::clicked, choose);
    }

    /// Connects an editable list whose entries differ from the text of the record: `chosen` runs when an
    /// entry is chosen, `typed` when text is typed.
    template <class Chosen, class Typed>
    void OnEntry(QComboBox* list, Chosen chosen, Typed typed)
    {
        On(list, &QComboBox::activated, chosen);
        On(list->lineEdit(), &QLineEdit::textEdited, [list, typed] {
            SelectTyped(*list);
            typed();
        });
        On(list->lineEdit(), &QLineEdit::returnPressed, [list, chosen] {
            if (ShowsEntry(*list))
                chosen();
        });
    }

    /// Shows the current record in the controls. The record does not change, even where a control truncates
    /// its value.
    void FillFields()
    {
        m_parts.Offer.hide(); // it was for another record
        const QScopedValueRollback filling(m_isFilling, true);
        for (const auto& fill : m_fills)
            fill(Current());
    }

    [[nodiscard]] const Record& Current() const { return RecordIn(m_parts.Document.Set()); }

    /// Changes the record: change(Record&), as an undo step named after the control.
    template <class Change>
    void Edit(const QWidget* control, Change&& change)
    {
        m_parts.Document.Edit(control->accessibleName(), Scope, [&](CardSet& set) { change(RecordIn(set)); });
    }

    template <class Value>
    void Edit(const QWidget* control, Value Record::*field, const Value& value)
    {
        Edit(control, [&](Record& record) { record.*field = value; });
    }

    /// Asks for a picture file. With a button the dialog starts in the folder of the button's last file.
    [[nodiscard]] std::optional<QString> AskPicture(const char* title, const QAbstractButton* button)
    {
        FileDialogRequest request = PictureDialog(title);
        if (button)
            request.Folder = m_folders.value(button);
        return m_parts.User.AskOpenFile(request);
    }

    /// Takes a picture dropped on a box; false if the box belongs to no picture of the form.
    bool TakePictureOn(const Box& box, const QString& path)
    {
        for (const PictureRow& row : m_pictures) {
            const PictureOptions& options = row.Options;
            if (&box == options.Target || &box == options.Frame || &box == options.DropArea) {
                TakePicture(row, path);
                return true;
            }
        }
        return false;
    }

    /// Takes a picture for the first picture field.
    void TakeFirstPicture(const QString& path) { TakePicture(m_pictures.front(), path); }

    template <class Sender, class Signal, class Work>
    void On(Sender* sender, Signal signal, Work work)
    {
        OnSignal(m_parts.User, sender, signal, m_widget, work);
    }

    EditorParts& m_parts;
    QWidget* const m_widget;
    bool m_isFilling = false; ///< true while the controls are filled: changes are not the user's

private:
    static constexpr bool IsSettings = std::is_same_v<Record, SetHeader>;
    static constexpr EditScope Scope = IsSettings ? EditScope::Settings : ScopeOf(KindOf<Record>);

    template <class Set>
    static auto& RecordIn(Set& set)
    {
        if constexpr (IsSettings)
            return (set.Header);
        else
            return ListOf<Record>(set)[ListOf<Record>(set).Current];
    }

    struct PictureRow {
        PictureControls Controls;
        QString Record::*Field;
        PictureOptions Options;
        PictureOffset Offset;
    };

    void TakePicture(const PictureRow& row, const QString& path)
    {
        Edit(row.Controls.PathBox, row.Field, path);
        m_folders.insert(row.Controls.Choose, FolderPart(path));
        ShowTaken(row, path);
        OfferToFit(row, path);
    }

    void ShowTaken(const PictureRow& row, const QString& path)
    {
        if (row.Options.Target || row.Options.Show) {
            const auto picture = LoadedPicture(m_parts, path);
            ShowOnTarget(row.Options, picture);
            if (!picture)
                return;
        }
        ShowPath(*row.Controls.PathBox, path);
        row.Options.Changed();
    }

    [[nodiscard]] QSize FitSizeOf(const PictureOptions& options) const
    {
        if (options.Frame)
            return options.Frame->Place().size();
        return options.Target ? options.Target->Surface->Size() : options.FitSize;
    }

    /// If the frame shows less than a quarter of the picture.
    void OfferToFit(const PictureRow& row, const QString& path)
    {
        if (!row.Controls.Fit)
            return;
        const auto picture = PictureIfAny([&] { return m_parts.Works.Pictures.LoadPicture(path); });
        const QSize frame = FitSizeOf(row.Options);
        if (picture && picture->Size().width() > 2 * frame.width() &&
            picture->Size().height() > 2 * frame.height())
            m_parts.Offer.Offer([this, &row] { Guarded(m_parts.User, [&] { FitPicture(row); }); });
    }

    /// The fitted picture takes its frame exactly.
    void FitPicture(const PictureRow& row)
    {
        QString path = Current().*row.Field;
        if (path.isEmpty())
            path = AskPicture(row.Options.Title, row.Controls.Choose).value_or(QString());
        if (path.isEmpty())
            return;
        const auto fitted = FitToFrame(m_parts.Document.Set(), m_parts.Works.Pictures, path,
                                       FitSizeOf(row.Options), m_widget->window());
        if (!fitted)
            return;
        Edit(row.Controls.PathBox, [&](Record& record) {
            record.*row.Field = *fitted;
            if (row.Offset.Left) {
                record.*row.Offset.Left = 0;
                record.*row.Offset.Top = 0;
            }
        });
        if (row.Options.Frame)
            row.Options.Target->MoveToTwips(0, 0);
        ShowTaken(row, *fitted);
    }

    void ClearPicture(const PictureRow& row)
    {
        Edit(row.Controls.PathBox, row.Field, QString());
        if (row.Options.Target || row.Options.Show)
            ShowOnTarget(row.Options, Picture());
        row.Controls.PathBox->clear(); // Kept: the tool tip stays.
        row.Options.Cleared();
        m_parts.Preview.update();
    }

    /// A picture that could not be loaded leaves the previous one. The record keeps its offsets, which apply
    /// when the card is laid out again.
    void ShowOnTarget(const PictureOptions& options, const std::optional<Picture>& picture)
    {
        if (options.Frame && options.StartsAtFrame) {
            options.Target->Left = 0;
            options.Target->Top = 0;
        }
        if (picture && options.Show)
            options.Show(*picture);
        else if (picture && options.Frame)
            options.Target->ShowAtNaturalSize(*picture);
        else if (picture)
            options.Target->Surface->SetPicture(*picture);
        m_parts.Preview.update();
    }

    std::vector<std::function<void(const Record&)>> m_fills; ///< show the record in each control
    std::deque<PictureRow> m_pictures;                       // a deque, since handlers refer to its elements
    QMap<const QAbstractButton*, QString> m_folders;         ///< last folder of each button
};

} // namespace deckforge
