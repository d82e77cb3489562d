// The main window's fixture.
#include "support/main_window.h"

#include <QAction>

#include "controls/list_box.h"
#include "cycles/calendar.h"
#include "runtime/event.h"
#include "shell/frmMain.h"

MainWindowTest::MainWindowTest()
    : family_(addCategory(QStringLiteral("Family"))),
      friends_(addCategory(QStringLiteral("Friends"))) {
    using modCycles::DateSerial;
    directory_.addInterpretations();
    addPerson({.name = QStringLiteral("Smith"),
               .firstName = QStringLiteral("Anna"),
               .birthdate = Value(DateSerial(1972, 10, 20)),
               .catId = family_});
    addPerson({.name = QStringLiteral("Adler"),
               .firstName = QStringLiteral("Ben"),
               .birthdate = Value(DateSerial(1990, 5, 5)),
               .catId = friends_});
    addPerson({.name = QStringLiteral("Zed"),
               .birthdate = Value(DateSerial(1985, 1, 31)),
               .catId = friends_});
}

MainWindowTest::~MainWindowTest() = default;

Long MainWindowTest::addCategory(const QString& category) {
    return ::addCategory(directory_.people(), category);
}

Long MainWindowTest::addPerson(const PersonRow& person) {
    return ::addPerson(directory_.people(), person);
}

frmMain& MainWindowTest::load() {
    window_ = std::make_unique<frmMain>();
    runEvent([this] { window_->Load(); });
    return *window_;
}

frmMain& MainWindowTest::loadAndChoose(const QString& displayText) {
    load();
    control<ListBox>("lstMain").setText(displayText);
    return *window_;
}

void MainWindowTest::trigger(const char* action) {
    control<QAction>(action).trigger();
}
