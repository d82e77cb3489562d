// The desktop's help, boxes, clipboard, printer, beep and event queue.
#include "controls/desktop_host.h"

#include <QApplication>
#include <QClipboard>
#include <QFileDialog>
#include <QGridLayout>
#include <QMessageBox>
#include <QPrinter>
#include <QPrinterInfo>
#include <QTimer>
#include <QWindow>
#include <algorithm>
#include <chrono>

#include "controls/bitmap.h"
#include "controls/help_folder.h"
#include "controls/help_window.h"
#include "controls/paper_printer.h"
#include "runtime/errors.h"
#include "runtime/system_help.h"

namespace {

QMessageBox::Icon iconOf(MessageIcon icon) {
    switch (icon) {
        case MessageIcon::None:
            return QMessageBox::NoIcon;
        case MessageIcon::Critical:
            return QMessageBox::Critical;
        case MessageIcon::Exclamation:
            return QMessageBox::Warning;
        case MessageIcon::Information:
            return QMessageBox::Information;
    }
    Q_UNREACHABLE();
}

QMessageBox::StandardButtons buttonsOf(MessageButtons buttons) {
    return buttons == MessageButtons::YesNo ? QMessageBox::Yes | QMessageBox::No
                                            : QMessageBox::StandardButtons(QMessageBox::Ok);
}

Answer answerOf(int button) {
    switch (button) {
        case QMessageBox::Yes:
            return Answer::Yes;
        case QMessageBox::No:
            return Answer::No;
        default:
            return Answer::Ok;
    }
}

constexpr int kBesideTitle = 128;  // pixels, for the picture and the buttons of a frame

// A box is as wide as its text by itself. This one's title is told in full as well.
void makeRoomForTitle(QMessageBox& box) {
    const QString title = box.windowTitle();
    auto* grid = qobject_cast<QGridLayout*>(box.layout());
    if (title.isEmpty() || !grid)
        return;
    const int width = box.fontMetrics().horizontalAdvance(title) + kBesideTitle;
    grid->addItem(new QSpacerItem(width, 0), grid->rowCount(), 0, 1, grid->columnCount());
}

// The window that a box waits over or help belongs to: the owner's, or the one below it while it is
// not shown yet; or else the one that the user is in.
QWidget* windowOf(QObject* owner) {
    const auto* widget = qobject_cast<QWidget*>(owner);
    if (!widget)
        return QApplication::activeWindow();
    QWidget* window = widget->window();
    while (!window->isVisible() && window->parentWidget())
        window = window->parentWidget()->window();
    return window;
}

// A filter as Qt reads it: the pattern stands in brackets at the end.
QString nameFilter(const FileFilter& filter) {
    return QStringLiteral("%1 (%2)").arg(filter.caption, filter.pattern);
}

QStringList nameFilters(const std::vector<FileFilter>& filters) {
    QStringList names;
    for (const FileFilter& filter : filters)
        names += nameFilter(filter);
    return names;
}

// The number of the filter that Qt tells of, with its pattern or without; 0 if there is none.
int numberOf(const QString& chosen, const std::vector<FileFilter>& filters) {
    const auto found = std::find_if(filters.begin(), filters.end(), [&](const FileFilter& filter) {
        return chosen == nameFilter(filter) || chosen == filter.caption;
    });
    return found == filters.end() ? 0 : static_cast<int>(found - filters.begin()) + 1;
}

// How long a window system may take to show a window. One that is slower, or hides the window
// behind others, is not waited for.
constexpr std::chrono::milliseconds kPatience{200};

bool hasAppeared(const QWidget* window) {
    return !window->isVisible() || window->isMinimized() || window->windowHandle()->isExposed();
}

bool allWindowsHaveAppeared() {
    const QWidgetList windows = QApplication::topLevelWidgets();
    return std::all_of(windows.begin(), windows.end(), hasAppeared);
}

}  // namespace

DesktopHost::DesktopHost() = default;

DesktopHost::~DesktopHost() = default;

// Help that is shown anew is read anew, and stands where it stood.
void DesktopHost::showHelp(QObject* owner, const QString& fileName) {
    const QWidget* window = windowOf(owner);
    if (showSystemHelp(window ? window->winId() : 0, fileName))
        return;
    auto help = std::make_unique<HelpWindow>(HelpFolder(fileName));
    if (!help->hasContents())
        return;
    if (helpWindow_)
        help->restoreGeometry(helpWindow_->saveGeometry());
    helpWindow_ = std::move(help);
    helpWindow_->show();
}

Answer DesktopHost::showMessage(const Message& message) {
    QMessageBox box(windowOf(message.owner));
    box.setIcon(iconOf(message.icon));
    box.setWindowTitle(message.title);
    box.setTextFormat(Qt::PlainText);
    box.setText(message.text);
    box.setStandardButtons(buttonsOf(message.buttons));
    makeRoomForTitle(box);
    return answerOf(box.exec());
}

// Whether the file is to exist is left to whoever asks. Qt's dialog reads the patterns out of its
// captions, and shows them without.
std::optional<ChosenFile> DesktopHost::chooseFile(const FileQuestion& question) {
    QFileDialog dialog(windowOf(question.owner), question.title, question.folder);
    dialog.setAcceptMode(question.purpose == FilePurpose::Save ? QFileDialog::AcceptSave
                                                               : QFileDialog::AcceptOpen);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setOption(QFileDialog::HideNameFilterDetails);
    const QStringList filters = nameFilters(question.filters);
    dialog.setNameFilters(filters);
    dialog.selectNameFilter(filters.value(question.filterIndex - 1));
    if (!question.fileName.isEmpty())
        dialog.selectFile(question.fileName);
    dialog.setDefaultSuffix(question.defaultExtension);
    dialog.setOption(QFileDialog::DontConfirmOverwrite, !question.asksBeforeOverwriting);
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return ChosenFile{.path = dialog.selectedFiles().constFirst(),
                      .filterIndex = numberOf(dialog.selectedNameFilter(), question.filters)};
}

std::optional<QByteArray> DesktopHost::clipboardBitmap() {
    const QClipboard* clipboard = QApplication::clipboard();
    if (const auto* own = qobject_cast<const BitmapData*>(clipboard->mimeData()))
        return own->file();
    const QImage picture = clipboard->image();
    return picture.isNull() ? std::nullopt : std::optional(bitmapOf(picture));
}

void DesktopHost::setClipboardBitmap(const QByteArray& file) {
    QApplication::clipboard()->setMimeData(new BitmapData(file));
}

void DesktopHost::clearClipboard() {
    QApplication::clipboard()->clear();
}

// Qt takes a file for a printer where there is none.
std::unique_ptr<Printer> DesktopHost::printer() {
    const QPrinterInfo info = QPrinterInfo::defaultPrinter();
    if (info.isNull())
        throw RuntimeError(ErrorNumber::Printer);
    return std::make_unique<PaperPrinter>(
        std::make_unique<QPrinter>(info, QPrinter::HighResolution));
}

void DesktopHost::beep() {
    QApplication::beep();
}

void DesktopHost::yield() {
    QApplication::processEvents();
}

// A window that has been shown appears when the window system has answered, and is then painted.
void DesktopHost::paintWindows() {
    QTimer patience;
    patience.setSingleShot(true);
    patience.start(kPatience);
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    while (!allWindowsHaveAppeared() && patience.isActive())
        QApplication::processEvents(QEventLoop::ExcludeUserInputEvents |
                                    QEventLoop::WaitForMoreEvents);
}
