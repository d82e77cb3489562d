// The parts of the help window, and what keeps them in step.
#include "controls/help_window.h"

#include <QAction>
#include <QEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QSignalBlocker>
#include <QSplitter>
#include <QToolBar>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <QVBoxLayout>
#include <QWindow>

#include "controls/help_browser.h"
#include "runtime/app.h"

namespace {

constexpr QSize kWindowSize(860, 600);  // pixels
constexpr int kContentsWidth = 230;     // pixels
constexpr QSize kIconSize(24, 24);      // pixels
constexpr int kRowSpace = 8;            // pixels, above and below a title together
constexpr int kAddressRole = Qt::UserRole;

QTreeWidgetItem* newEntry(const HelpTopic& topic, const QUrl& address) {
    auto* entry = new QTreeWidgetItem({topic.title});
    entry->setToolTip(0, topic.title);
    if (!topic.page.isEmpty())
        entry->setData(0, kAddressRole, address);
    return entry;
}

QUrl addressOf(const QTreeWidgetItem& entry) {
    return entry.data(0, kAddressRole).toUrl();
}

// The first entry whose address `suits`, or nullptr.
template <class Suits>
QTreeWidgetItem* firstEntry(QTreeWidget* contents, Suits suits) {
    for (QTreeWidgetItemIterator entry(contents); *entry; ++entry) {
        if (suits(addressOf(**entry)))
            return *entry;
    }
    return nullptr;
}

}  // namespace

HelpWindow::HelpWindow(const HelpFolder& folder)
    : contents_(new QTreeWidget(this)), page_(new HelpBrowser(folder, this)) {
    setObjectName(QStringLiteral("HelpWindow"));
    setWindowTitle(App::Title() + QStringLiteral(" Help"));
    setAttribute(Qt::WA_QuitOnClose, false);
    layOut();
    fillContents(folder);
    connect(contents_, &QTreeWidget::currentItemChanged, this, &HelpWindow::showChosenPage);
    connect(page_, &HelpBrowser::sourceChanged, this, &HelpWindow::choose);
    contents_->setCurrentItem(
        firstEntry(contents_, [](const QUrl& page) { return page.isValid(); }));
}

void HelpWindow::layOut() {
    contents_->setObjectName(QStringLiteral("contents"));
    contents_->setAccessibleName(QStringLiteral("Contents"));
    contents_->setHeaderHidden(true);
    contents_->setFrameShape(QFrame::NoFrame);
    page_->setObjectName(QStringLiteral("page"));
    page_->setAccessibleName(QStringLiteral("Page"));
    page_->setFrameShape(QFrame::NoFrame);

    auto* beside = new QSplitter(this);
    beside->addWidget(contents_);
    beside->addWidget(page_);
    beside->setChildrenCollapsible(false);
    beside->setSizes({kContentsWidth, kWindowSize.width() - kContentsWidth});
    beside->setStretchFactor(0, 0);
    beside->setStretchFactor(1, 1);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addWidget(newToolBar());
    layout->addWidget(beside);
    resize(kWindowSize);
    page_->setFocus();
}

QToolBar* HelpWindow::newToolBar() {
    auto* bar = new QToolBar(this);
    bar->setIconSize(kIconSize);
    QAction* back = bar->addAction(QIcon(QStringLiteral(":/art/arrow-left.png")),
                                   QStringLiteral("Back"), page_, &HelpBrowser::backward);
    QAction* forward = bar->addAction(QIcon(QStringLiteral(":/art/arrow-right.png")),
                                      QStringLiteral("Forward"), page_, &HelpBrowser::forward);
    back->setShortcuts(QKeySequence::Back);
    forward->setShortcuts(QKeySequence::Forward);
    back->setEnabled(false);
    forward->setEnabled(false);
    connect(page_, &HelpBrowser::backwardAvailable, back, &QAction::setEnabled);
    connect(page_, &HelpBrowser::forwardAvailable, forward, &QAction::setEnabled);
    return bar;
}

// The entries on the way to the last one are kept, one for each level.
void HelpWindow::fillContents(const HelpFolder& folder) {
    std::vector<QTreeWidgetItem*> way{contents_->invisibleRootItem()};
    for (const HelpTopic& topic : folder.topics()) {
        way.resize(static_cast<std::size_t>(topic.level) + 1);
        auto* entry = newEntry(topic, folder.addressOf(topic));
        entry->setSizeHint(0, {0, contents_->fontMetrics().height() + kRowSpace});
        way.back()->addChild(entry);
        way.push_back(entry);
    }
    contents_->expandAll();
}

bool HelpWindow::hasContents() const {
    return contents_->topLevelItemCount() > 0;
}

// Where there is no such page, the one that is shown stays.
void HelpWindow::showChosenPage() {
    if (const auto* entry = contents_->currentItem())
        page_->setSource(addressOf(*entry));
}

// The contents follow where a link leads, to the part of the page that it names or else to the
// page.
void HelpWindow::choose(const QUrl& part) {
    const QTreeWidgetItem* chosen = contents_->currentItem();
    if (chosen && addressOf(*chosen) == part)
        return;
    const QUrl whole = part.adjusted(QUrl::RemoveFragment);
    QTreeWidgetItem* entry = firstEntry(contents_, [&](const QUrl& page) { return page == part; });
    if (!entry)
        entry = firstEntry(contents_, [&](const QUrl& page) { return page == whole; });
    const QSignalBlocker unheard(contents_);
    contents_->setCurrentItem(entry);
}

// A modal window holds back the events of every window that does not stand over it.
bool HelpWindow::event(QEvent* event) {
    if (event->type() == QEvent::WindowBlocked)
        standOverModalWindow();
    return QWidget::event(event);
}

void HelpWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape)
        close();
    else
        QWidget::keyPressEvent(event);
}

void HelpWindow::standOverModalWindow() {
    QWindow* modal = QGuiApplication::modalWindow();
    if (modal)
        connect(modal, &QObject::destroyed, this, &HelpWindow::standOverModalWindow);
    windowHandle()->setTransientParent(modal);
}
