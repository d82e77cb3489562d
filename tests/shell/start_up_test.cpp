// The start of the program.
#include "shell/start_up.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include "controls/form.h"
#include "controls/list_box.h"
#include "runtime/event.h"
#include "shell/default_instance.h"
#include "shell/frmMain.h"
#include "shell/frmSplash.h"
#include "store/interpretation.h"
#include "support/errors.h"
#include "support/files.h"
#include "support/main_window.h"
#include "support/old_tables.h"

namespace {

// Writes down which forms appear and disappear, in their order.
class WindowRecord final : public QObject {
  public:
    WindowRecord() { qApp->installEventFilter(this); }

    const QStringList& happened() const { return happened_; }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (qobject_cast<Form*>(watched)) {
            if (event->type() == QEvent::Show)
                happened_ += watched->objectName() + QStringLiteral(" shown");
            if (event->type() == QEvent::Hide)
                happened_ += watched->objectName() + QStringLiteral(" hidden");
        }
        return false;
    }

  private:
    QStringList happened_;
};

class StartUp : public MainWindowTest {
  protected:
    ~StartUp() override {
        while (!Form::forms().empty())
            Form::forms().back()->Unload();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    static QStringList loadedForms() {
        QStringList names;
        for (const Form* form : Form::forms())
            names += form->objectName();
        return names;
    }
};

TEST_F(StartUp, ShowsTheMainWindowAndNoMoreSplash) {
    modCycles::Main();
    EXPECT_EQ(loadedForms(), QStringList(QStringLiteral("frmMain")));
    EXPECT_TRUE(Form::forms().front()->isVisible());
}

TEST_F(StartUp, PaintsTheSplashBeforeTheMainWindowLoads) {
    QStringList loadedWhilePainting;
    host_.onPaintWindows([&] { loadedWhilePainting = loadedForms(); });
    modCycles::Main();
    EXPECT_EQ(loadedWhilePainting, QStringList(QStringLiteral("frmSplash")));
}

TEST_F(StartUp, KeepsTheSplashUntilTheMainWindowIsLoaded) {
    QFile::remove(directory_.people());
    EXPECT_THROW(modCycles::Main(), RuntimeError);
    EXPECT_EQ(loadedForms(), QStringList({QStringLiteral("frmSplash"), QStringLiteral("frmMain")}));
    EXPECT_TRUE(Form::forms().front()->isVisible());
    EXPECT_FALSE(Form::forms().back()->isVisible());
}

TEST_F(StartUp, ShowsTheMainWindowWhenTheSplashHasGone) {
    WindowRecord windows;
    modCycles::Main();
    EXPECT_EQ(windows.happened(),
              QStringList({QStringLiteral("frmSplash shown"), QStringLiteral("frmSplash hidden"),
                           QStringLiteral("frmMain shown")}));
}

TEST_F(StartUp, LeavesNoMarkerBesideTheDatabases) {
    modCycles::Main();
    EXPECT_EQ(
        QDir(directory_.path({})).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
        QStringList({QStringLiteral("Interp.mdb"), QStringLiteral("Ondara2.mdb")}));
}

TEST_F(StartUp, AdoptsOldDatabasesBeforeTheMainWindowLoads) {
    makeFile(directory_.people(), oldDatabase());
    makeFile(directory_.interpretation(),
             builtJet(4, {oldInterpretations({{{1, 1, 1, QStringLiteral("High.")}}})}).bytes);
    modCycles::Main();
    auto& people = child<ListBox>(*Form::forms().front(), QStringLiteral("lstMain"));
    EXPECT_EQ(people.ListCount(), 2);
    EXPECT_EQ(people.List(0), u"Adler");
    EXPECT_EQ(fileBytes(directory_.path(QStringLiteral("Ondara2 (Jet).mdb"))), oldDatabase());
    EXPECT_TRUE(QFile::exists(directory_.path(QStringLiteral("Interp (Jet).mdb"))));
    EXPECT_EQ(valueOf(directory_.interpretation(), QStringLiteral("SELECT interp FROM HLC")),
              Value(QStringLiteral("High.")));
}

TEST_F(StartUp, NamesOnTheSplashWhoIsLeftOut) {
    makeFile(directory_.people(), oldDatabaseWithNoDate());
    QStringList loaded;
    host_.onMessage([&] { loaded = loadedForms(); });
    host_.expectMessage(
        QStringLiteral("Ondara has taken over your old database, but for the people without a "
                       "birth date:\n\nBerg\n\nAll that is known of them is kept in \"Ondara2 "
                       "(left out).txt\", and the old database as \"Ondara2 (Jet).mdb\"."));
    modCycles::Main();
    EXPECT_EQ(loaded, QStringList(QStringLiteral("frmSplash")));
    EXPECT_EQ(host_.messages().back().title, u"Ondara");
    EXPECT_EQ(host_.messages().back().icon, MessageIcon::Information);
    EXPECT_NE(host_.messages().back().owner, nullptr);
    EXPECT_EQ(loadedForms(), QStringList(QStringLiteral("frmMain")));
}

TEST_F(StartUp, LoadsNothingWhereAnOldDatabaseCannotBeAdopted) {
    const QByteArray damaged = oldDatabase().chopped(4096);
    makeFile(directory_.people(), damaged);
    EXPECT_THROW(modCycles::Main(), RuntimeError);
    EXPECT_EQ(loadedForms(), QStringList(QStringLiteral("frmSplash")));
    EXPECT_EQ(fileBytes(directory_.people()), damaged);
}

// They can be read where they are.
TEST_F(StartUp, LeavesOldTextsThatCannotBeAdoptedAsTheyAre) {
    const QByteArray old =
        builtJet(4, {oldInterpretations({{{1, 0, -1, QStringLiteral("High.")}}})}).bytes;
    makeFile(directory_.interpretation(), old);
    QDir(directory_.path({})).mkdir(QStringLiteral("Interp.mdb.new"));
    modCycles::Main();
    EXPECT_EQ(loadedForms(), QStringList(QStringLiteral("frmMain")));
    EXPECT_EQ(fileBytes(directory_.interpretation()), old);
    EXPECT_EQ(readInterpretation(1, 0, -1), Value(QStringLiteral("High.")));
}

TEST_F(StartUp, LeavesDamagedOldTextsToWhoeverNeedsOne) {
    const QByteArray damaged =
        builtJet(4, {oldInterpretations({{{1, 0, -1, QStringLiteral("High.")}}})})
            .bytes.chopped(4096);
    makeFile(directory_.interpretation(), damaged);
    modCycles::Main();
    EXPECT_EQ(loadedForms(), QStringList(QStringLiteral("frmMain")));
    EXPECT_EQ(fileBytes(directory_.interpretation()), damaged);
    EXPECT_EQ(errorOf([] { readInterpretation(1, 0, -1); }), 321);
}

TEST_F(StartUp, RefusesASecondInstanceAndLoadsNothing) {
    host_.setAnotherInstanceRuns(true);
    makeFile(directory_.people(), oldDatabase());
    host_.expectMessage(QStringLiteral("Cannot load program again."));
    modCycles::Main();
    const Message& box = host_.messages().back();
    EXPECT_EQ(box.title, QStringLiteral("The requested application is already open"));
    EXPECT_EQ(box.icon, MessageIcon::Exclamation);
    EXPECT_EQ(box.buttons, MessageButtons::Ok);
    EXPECT_EQ(fileBytes(directory_.people()), oldDatabase());
    EXPECT_TRUE(Form::forms().empty());
}

}  // namespace
