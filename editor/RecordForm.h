#pragma once

#include "dialogs/Choices.h"
#include "dialogs/ColourSwatch.h"
#include "editor/EditorParts.h"
#include "editor/TextControl.h"
#include "platform/Paths.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QMap>
#include <QPlainTextEdit>
#include <QScopedValueRollback>
#include <QSpinBox>
#include <array>
#include <functional>
#include <limits>
#include <vector>

namespace deckforge {

// The rows by which a form knows its controls. An undo step has the accessible name of its control.

/// What follows a change of a control; nothing by default.
class Handler {
public:
    // Not defaulted: the compiler fails on defaulted ones where a row leaves its handler out.
    Handler() noexcept {}  // NOLINT(modernize-use-equals-default)
    ~Handler() noexcept {} // NOLINT(modernize-use-equals-default)
    Handler(const Handler&) = default;
    Handler& operator=(const Handler&) = default;
    template <class Work>
    requires std::is_invocable_v<const Work&> Handler(Work work)
        : m_work(std::move(work)) // converts, so that rows take lambdas
    {
    }

    void operator()() const
    {
        if (m_work)
            m_work();
    }

private:
    std::function<void()> m_work;
};

/// A text box, or a list that takes any text, for a field of the record.
template <class Record>
struct TextField {
    QWidget* Control;
    QString Record::*Field;
    Box* Preview = nullptr;   ///< whose caption follows
    Handler Changed = {};     ///< what else follows, also when the control is filled
    bool QuietOnFill = false; ///< nothing follows when the control is filled
};

/// A check box for a field of the record.
template <class Record>
struct CheckField {
    QCheckBox* Control;
    bool Record::*Field;
    Handler Changed = {};
};

/// A spin box for a field of the record.
template <class Record>
struct CountField {
    QSpinBox* Control;
    int16 Record::*Field;
};

/// The buttons that choose and clear a picture from disk, and the box that shows its name.
template <class Record>
struct PictureField {
    QAbstractButton* Choose;
    QAbstractButton* Clear;
    const char* Title = "Choose picture"; ///< of the file dialog
    QString Record::*Field;
    Box* Target = nullptr;     ///< shows the picture
    bool IsFramed = false;     ///< the target has the size of its picture; any other shows it from its corner
    bool StartsAtFrame = true; ///< a new picture is shown at the corner of its frame until it is placed again
    std::array<const Box*, 2> DropsAt = {}; ///< take dropped pictures for the target
    QLineEdit* PathBox;
    Handler Changed = {};
    Handler Cleared = {};
};

/// The button and the swatch that choose a colour.
template <class Record>
struct ColourField {
    QAbstractButton* Choose;
    ColourSwatch* Swatch;
    const char* Title;
    Colour& (*Field)(Record&);
    Box* Preview = nullptr; ///< whose background follows
    Handler Changed = {};   ///< runs after a cancel as well
};

template <class Record>
struct FieldRows {
    std::vector<TextField<Record>> Texts = {};
    std::vector<CheckField<Record>> Checks = {};
    std::vector<CountField<Record>> Counts = {};
    std::vector<PictureField<Record>> Pictures = {};
    std::vector<ColourField<Record>> Colours = {};
};

/// A form whose controls edit the current record of one type: what is typed or clicked goes into the record
/// as a step of the document, and to the one box of the preview that shows it.
template <class Record>
class RecordForm {
public:
    RecordForm(EditorParts& parts, QWidget* widget) : m_parts(parts), m_widget(widget) {}
    virtual ~RecordForm() = default;
    RecordForm(const RecordForm&) = delete;
    RecordForm& operator=(const RecordForm&) = delete;

protected:
    /// Connects the controls. Called once, by the constructor of the form.
    void Bind(FieldRows<Record> rows);

    /// Shows the current record in the controls. The record stays as it is, even where a control cannot show
    /// all of it.
    void FillFields();

    [[nodiscard]] const Record& Current() const { return CurrentRecordOf<Record>(m_parts.Document.Set()); }
    [[nodiscard]] const FieldRows<Record>& Rows() const { return m_rows; }

    /// The dialog starts where the button's last file was; without a button it has no such memory.
    [[nodiscard]] std::optional<QString> AskPicture(const char* title, const QAbstractButton* button);
    void RememberFolder(const QAbstractButton* button, const QString& path)
    {
        m_folders.insert(button, FolderPart(path));
    }
    void TakePicture(const PictureField<Record>& row, const QString& path);

    template <class Sender, class Signal, class Work>
    void On(Sender* sender, Signal signal, Work work)
    {
        OnSignal(m_parts.User, sender, signal, m_widget, work);
    }

    EditorParts& m_parts;
    QWidget* const m_widget;
    bool m_isFilling = false; ///< the controls show a record and nobody types

private:
    void Bind(const TextField<Record>& row);
    void Bind(const CheckField<Record>& row);
    void Bind(const CountField<Record>& row);
    void Bind(const PictureField<Record>& row);
    void Bind(const ColourField<Record>& row);
    void TextChanged(const TextField<Record>& row);
    void ShowOn(const PictureField<Record>& row, const Picture& picture);
    void LayAtFrame(const PictureField<Record>& row);
    void ClearPicture(const PictureField<Record>& row);
    void ChooseColour(const ColourField<Record>& row);

    FieldRows<Record> m_rows;
    QMap<const QAbstractButton*, QString> m_folders; ///< where each button's file was chosen last
};

template <class Record>
void RecordForm<Record>::Bind(FieldRows<Record> rows)
{
    m_rows = std::move(rows);
    const auto bindAll = [this](const auto& fields) {
        for (const auto& row : fields)
            Bind(row);
    };
    bindAll(m_rows.Texts);
    bindAll(m_rows.Checks);
    bindAll(m_rows.Counts);
    bindAll(m_rows.Pictures);
    bindAll(m_rows.Colours);
}

template <class Record>
void RecordForm<Record>::Bind(const TextField<Record>& row)
{
    const auto changed = [this, &row] { TextChanged(row); };
    if (auto* const line = qobject_cast<QLineEdit*>(row.Control)) {
        line->setMaxLength(std::numeric_limits<int>::max()); // the field has no limit either
        On(line, &QLineEdit::textChanged, changed);
    } else if (auto* const list = qobject_cast<QComboBox*>(row.Control)) {
        list->lineEdit()->setMaxLength(std::numeric_limits<int>::max());
        On(list, &QComboBox::editTextChanged, changed);
    } else {
        On(static_cast<QPlainTextEdit*>(row.Control), &QPlainTextEdit::textChanged, changed);
    }
}

template <class Record>
void RecordForm<Record>::Bind(const CheckField<Record>& row)
{
    On(row.Control, &QCheckBox::clicked, [this, &row] {
        m_parts.Document.Edit<Record>(row.Control->accessibleName(), row.Field, row.Control->isChecked());
        row.Changed();
        m_parts.Preview.update();
    });
}

template <class Record>
void RecordForm<Record>::Bind(const CountField<Record>& row)
{
    On(row.Control, &QSpinBox::valueChanged, [this, &row] {
        if (!m_isFilling)
            m_parts.Document.Edit<Record>(row.Control->accessibleName(), row.Field,
                                          static_cast<int16>(row.Control->value()));
    });
}

template <class Record>
void RecordForm<Record>::Bind(const PictureField<Record>& row)
{
    On(row.Choose, &QAbstractButton::clicked, [this, &row] {
        if (const auto path = AskPicture(row.Title, row.Choose))
            TakePicture(row, *path);
    });
    On(row.Clear, &QAbstractButton::clicked, [this, &row] { ClearPicture(row); });
}

template <class Record>
void RecordForm<Record>::Bind(const ColourField<Record>& row)
{
    for (QAbstractButton* button : {row.Choose, static_cast<QAbstractButton*>(row.Swatch)})
        On(button, &QAbstractButton::clicked, [this, &row] { ChooseColour(row); });
}

template <class Record>
void RecordForm<Record>::TextChanged(const TextField<Record>& row)
{
    if (m_isFilling && row.QuietOnFill)
        return;
    if (!m_isFilling)
        m_parts.Document.Edit<Record>(row.Control->accessibleName(), row.Field, TextOf(*row.Control));
    if (row.Preview)
        row.Preview->Caption = Current().*row.Field;
    row.Changed();
    m_parts.Preview.update();
}

template <class Record>
void RecordForm<Record>::FillFields()
{
    const QScopedValueRollback filling(m_isFilling, true);
    Record record = Current(); // a copy: colours are read by the function that changes them
    for (const auto& row : m_rows.Texts)
        SetTextOf(*row.Control, record.*row.Field);
    for (const auto& row : m_rows.Checks)
        row.Control->setChecked(record.*row.Field);
    for (const auto& row : m_rows.Counts)
        row.Control->setValue(record.*row.Field);
    for (const auto& row : m_rows.Pictures)
        ShowPath(*row.PathBox, record.*row.Field);
    for (const auto& row : m_rows.Colours)
        row.Swatch->SetColour(QColor(ToRgb(row.Field(record))));
}

template <class Record>
std::optional<QString> RecordForm<Record>::AskPicture(const char* title, const QAbstractButton* button)
{
    FileDialogRequest request = PictureDialog(title);
    if (button)
        request.Folder = m_folders.value(button);
    return m_parts.User.AskOpenFile(request);
}

template <class Record>
void RecordForm<Record>::ShowOn(const PictureField<Record>& row, const Picture& picture)
{
    if (row.IsFramed)
        row.Target->ShowAtNaturalSize(picture);
    else
        row.Target->Surface->SetPicture(picture);
}

/// The offsets of the picture before stay in the record, and come back when it is placed again.
template <class Record>
void RecordForm<Record>::LayAtFrame(const PictureField<Record>& row)
{
    if (!row.IsFramed || !row.StartsAtFrame)
        return;
    row.Target->Left = 0;
    row.Target->Top = 0;
}

template <class Record>
void RecordForm<Record>::TakePicture(const PictureField<Record>& row, const QString& path)
{
    m_parts.Document.Edit<Record>(row.PathBox->accessibleName(), row.Field, path);
    RememberFolder(row.Choose, path);
    if (row.Target) {
        LayAtFrame(row);
        const auto picture = LoadedPicture(m_parts, path);
        m_parts.Preview.update();
        if (!picture)
            return;
        ShowOn(row, *picture);
    }
    ShowPath(*row.PathBox, path);
    row.Changed();
}

template <class Record>
void RecordForm<Record>::ClearPicture(const PictureField<Record>& row)
{
    m_parts.Document.Edit<Record>(row.PathBox->accessibleName(), row.Field, QString());
    if (row.Target) {
        LayAtFrame(row);
        ShowOn(row, {});
    }
    row.PathBox->clear(); // the tool tip stays
    row.Cleared();
    m_parts.Preview.update();
}

template <class Record>
void RecordForm<Record>::ChooseColour(const ColourField<Record>& row)
{
    Record record = Current();
    if (const auto colour = m_parts.User.AskColour(QString::fromLatin1(row.Title), row.Field(record))) {
        m_parts.Document.Edit<Record>(row.Swatch->accessibleName(),
                                      [&](Record& changed) { row.Field(changed) = *colour; });
        row.Swatch->SetColour(QColor(ToRgb(*colour)));
        if (row.Preview)
            row.Preview->Surface->SetBackColor(*colour);
    }
    row.Changed();
    m_parts.Preview.update();
}

} // namespace deckforge
