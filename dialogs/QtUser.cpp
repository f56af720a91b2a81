// SPDX-License-Identifier: GPL-3.0-or-later

#include "dialogs/QtUser.h"

#include "dialogs/frmFont.h"
#include "imaging/PictureBox.h"
#include "platform/Paths.h"
#include "platform/PrinterResolution.h"

#include <QApplication>
#include <QColorDialog>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QHeaderView>
#include <QInputDialog>
#include <QKeyEvent>
#include <QLabel>
#include <QMainWindow>
#include <QMessageBox>
#include <QPrinter>
#include <QPrinterInfo>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QSplitter>
#include <QStatusBar>
#include <QTreeView>

namespace deckforge {

namespace {

QMessageBox::Icon IconOf(BoxStyle style)
{
    static constexpr QMessageBox::Icon icons[] = {QMessageBox::NoIcon, QMessageBox::Information,
                                                  QMessageBox::Question, QMessageBox::Warning,
                                                  QMessageBox::Critical};
    return icons[static_cast<std::size_t>(style)];
}

QMessageBox::StandardButtons ButtonsOf(BoxButtons buttons)
{
    if (buttons == BoxButtons::Ok)
        return QMessageBox::Ok;
    const QMessageBox::StandardButtons answers = QMessageBox::Yes | QMessageBox::No;
    return buttons == BoxButtons::YesNo ? answers : answers | QMessageBox::Cancel;
}

Answer AnswerOf(int button)
{
    switch (button) {
    case QMessageBox::Yes:
        return Answer::Yes;
    case QMessageBox::No:
        return Answer::No;
    case QMessageBox::Ok:
        return Answer::Ok;
    default:
        return Answer::Cancel;
    }
}

/// A Yes/No message box that Esc cancels. QMessageBox would return No.
class AnswerBox final : public QMessageBox {
public:
    using QMessageBox::QMessageBox;

protected:
    void keyPressEvent(QKeyEvent* event) override
    {
        if (event->matches(QKeySequence::Cancel))
            done(QMessageBox::NoButton);
        else
            QMessageBox::keyPressEvent(event);
    }

    void closeEvent(QCloseEvent* /*event*/) override { done(QMessageBox::NoButton); }
};

/// Converts "All files(*.*)|*.*|Pictures (*.bmp;*.jpg)|*.bmp;*.jpg" to the name filters of QFileDialog. "*.*"
/// becomes "*", which also matches files without an extension.
QStringList NameFilters(const QString& filter)
{
    const QStringList parts = filter.split(QLatin1Char('|'));
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        const QString description = parts[i].section(QLatin1Char('('), 0, 0).trimmed();
        QStringList patterns = parts[i + 1].split(QLatin1Char(';'), Qt::SkipEmptyParts);
        patterns.replaceInStrings(QStringLiteral("*.*"), QStringLiteral("*"));
        filters += QStringLiteral("%1 (%2)").arg(description, patterns.join(QLatin1Char(' ')));
    }
    return filters;
}

/// A size in characters of the dialog's font.
QSize Letters(const QWidget& dialog, int across, int down)
{
    return {across * dialog.fontMetrics().averageCharWidth(), down * dialog.fontMetrics().height()};
}

/// Qt's own file dialog elides places, sizes and types. A native dialog has none of these widgets.
void WidenColumns(QFileDialog& dialog)
{
    if (auto* const splitter = dialog.findChild<QSplitter*>(QStringLiteral("splitter"))) {
        const int places = Letters(dialog, 20, 0).width();
        splitter->setSizes({places, dialog.width() - places});
    }
    if (auto* const list = dialog.findChild<QTreeView*>(QStringLiteral("treeView"))) {
        list->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
        list->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    }
}

/// A message box is only as wide as its text, which may be too narrow for the title.
void MakeRoomForTitle(QMessageBox& box)
{
    constexpr int lettersOfButtons = 16; // width of the window's buttons beside the title
    const int title = box.fontMetrics().boundingRect(box.windowTitle()).width();
    const int width = title + Letters(box, lettersOfButtons, 0).width();
    if (auto* const rows = qobject_cast<QGridLayout*>(box.layout()))
        rows->addItem(new QSpacerItem(width, 0), rows->rowCount(), 0, 1, rows->columnCount());
}

/// Statistics of a large set are taller than a screen.
void LetLongTextScroll(QMessageBox& box)
{
    auto* const text = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
    auto* const rows = qobject_cast<QGridLayout*>(box.layout());
    const QSize room = box.screen()->availableSize() * 2 / 3;
    if (!text || !rows || text->sizeHint().height() <= room.height())
        return;
    auto* const area = new QScrollArea(&box);
    delete rows->replaceWidget(text, area);
    area->setFrameShape(QFrame::NoFrame);
    area->setWidget(text);
    const QSize whole = text->sizeHint() + QSize(area->verticalScrollBar()->sizeHint().width(), 0);
    area->setMinimumSize(whole.boundedTo(room));
}

/// With NoButton, QMessageBox chooses the default button.
int RunBox(const MessageBoxRequest& request, QMessageBox::StandardButton defaultButton, QWidget* window)
{
    AnswerBox box(IconOf(request.Style), request.Title, {}, ButtonsOf(request.Buttons), window);
    QString text = request.Text;
    box.setTextFormat(Qt::PlainText);
    box.setText(text.replace(QLatin1String("\r\n"), QLatin1String("\n")));
    box.setDefaultButton(defaultButton);
    MakeRoomForTitle(box);
    LetLongTextScroll(box);
    return box.exec();
}

} // namespace

QString ReplaceQuestion(const QString& path, const FileDialogRequest& request)
{
    const QFileInfo file(path);
    const std::optional<FileAttributes> now = AttributesOf(path);
    const bool isChanged =
        request.Known && now && IsSameFile(path, request.FileName) && !HaveSameContents(*request.Known, *now);
    const QString change =
        isChanged
            ? QStringLiteral("It has been changed by another program since it was opened or saved here.\n")
            : QString();
    return QStringLiteral("%1 already exists in %2.\n%3Do you want to replace it?")
        .arg(file.fileName(), QDir::toNativeSeparators(file.path()), change);
}

QtUser::~QtUser()
{
    SetPointer(Pointer::Default);
}

void QtUser::Serve(QWidget* window, std::function<void(int, int)> showProgress)
{
    m_window = window;
    m_showProgress = std::move(showProgress);
}

Answer QtUser::ShowMessage(const MessageBoxRequest& request)
{
    return AnswerOf(RunBox(request, QMessageBox::NoButton, TopWindow()));
}

void QtUser::ReportProblems(const QStringList& problems)
{
    auto* const window = qobject_cast<QMainWindow*>(m_window);
    if (window == nullptr)
        return;
    QString text = problems.value(problems.size() - 1);
    if (problems.size() > 1)
        text += QStringLiteral(" (and %1 more)").arg(problems.size() - 1);
    window->statusBar()->showMessage(text);
}

std::optional<QString> QtUser::AskOpenFile(const FileDialogRequest& request)
{
    QFileDialog dialog(TopWindow(), request.Title);
    dialog.setFileMode(QFileDialog::ExistingFile);
    Prepare(dialog, request);
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return Remembered(dialog.selectedFiles().constFirst());
}

std::optional<QString> QtUser::AskSaveFile(const FileDialogRequest& request)
{
    QFileDialog dialog(TopWindow(), request.Title);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    // Asked below: a native dialog would check the name before the extension is appended.
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    dialog.setDefaultSuffix(request.DefaultExtension);
    Prepare(dialog, request);
    while (dialog.exec() == QDialog::Accepted) {
        const QString path = dialog.selectedFiles().constFirst();
        if (MayWrite(path, request))
            return Remembered(path);
    }
    return std::nullopt;
}

std::optional<QString> QtUser::BrowseForFolder()
{
    QFileDialog dialog(TopWindow(), QStringLiteral("Choose a directory from the list."));
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOption(QFileDialog::ShowDirsOnly);
    Prepare(dialog, {});
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    m_lastFolder = dialog.selectedFiles().constFirst();
    return WithSeparator(m_lastFolder);
}

std::optional<Colour> QtUser::AskColour(const QString& title, Colour colour)
{
    const QColor chosen = QColorDialog::getColor(QColor(ToRgb(colour)), TopWindow(), title);
    if (!chosen.isValid())
        return std::nullopt;
    return FromRgb(chosen.rgb());
}

std::optional<FontSpec> QtUser::AskFont(const QString& title, const FontSpec& font)
{
    return ChooseFontInDialog(title, font, *this, TopWindow());
}

std::optional<QString> QtUser::AskText(const QString& prompt, const QString& title, const QString& text)
{
    QInputDialog dialog(TopWindow());
    dialog.setWindowTitle(title);
    dialog.setLabelText(prompt);
    dialog.setTextValue(text);
    dialog.resize(Letters(dialog, 48, 0).expandedTo(dialog.sizeHint()));
    return dialog.exec() == QDialog::Accepted ? std::optional(dialog.textValue()) : std::nullopt;
}

std::unique_ptr<QPagedPaintDevice> QtUser::OpenPrinter(const QString& document)
{
    const QPrinterInfo info = QPrinterInfo::defaultPrinter();
    if (info.isNull())
        return nullptr;
    auto printer = std::make_unique<QPrinter>(info, QPrinter::HighResolution);
    printer->setResolution(PrinterResolution(info.printerName()));
    printer->setDocName(document);
    printer->setCreator(QStringLiteral("Varnhelm Deck Forge"));
    const QPageLayout layout = printer->pageLayout();
    printer->setPageMargins(layout.minimumMargins(), layout.units());
    return printer;
}

void QtUser::SetPointer(Pointer pointer)
{
    const bool isHourglass = pointer == Pointer::Hourglass;
    if (isHourglass == m_isHourglass)
        return;
    m_isHourglass = isHourglass;
    if (isHourglass)
        QApplication::setOverrideCursor(Qt::WaitCursor);
    else
        QApplication::restoreOverrideCursor();
}

void QtUser::ShowProgress(int done, int total)
{
    if (m_showProgress)
        m_showProgress(done, total);
}

QWidget* QtUser::TopWindow() const
{
    QWidget* const modal = QApplication::activeModalWidget();
    return modal ? modal : m_window;
}

void QtUser::Prepare(QFileDialog& dialog, const FileDialogRequest& request) const
{
    if (!request.Filter.isEmpty()) {
        const QStringList filters = NameFilters(request.Filter);
        dialog.setNameFilters(filters);
        dialog.selectNameFilter(filters.value(request.FilterIndex - 1));
    }
    dialog.resize(Letters(dialog, 120, 30).expandedTo(dialog.sizeHint()));
    WidenColumns(dialog);
    const QString folder = request.Folder.isEmpty() ? m_lastFolder : request.Folder;
    dialog.setDirectory(folder.isEmpty() ? QDir::homePath() : PathToOpen(folder));
    if (request.FileName.isEmpty())
        return;
    // The name may contain separators: titles of cards do, and so do paths of other systems.
    const QString path = PathToOpen(request.FileName);
    const bool isPath = QDir::isAbsolutePath(path) && QFileInfo(FolderPart(path)).isDir();
    dialog.selectFile(isPath ? path : NamePart(path));
}

bool QtUser::MayWrite(const QString& path, const FileDialogRequest& request)
{
    const QFileInfo file(path);
    if (!file.dir().exists()) {
        ShowMessage({.Text = QStringLiteral("The folder does not exist:\n\n%1").arg(file.path()),
                     .Title = request.Title,
                     .Style = BoxStyle::Exclamation});
        return false;
    }
    if (!file.exists())
        return true;
    const MessageBoxRequest box = {.Text = ReplaceQuestion(path, request),
                                   .Title = request.Title,
                                   .Style = BoxStyle::Exclamation,
                                   .Buttons = BoxButtons::YesNo};
    return RunBox(box, QMessageBox::No, TopWindow()) == QMessageBox::Yes;
}

QString QtUser::Remembered(const QString& path)
{
    m_lastFolder = QFileInfo(path).path();
    return path;
}

} // namespace deckforge
