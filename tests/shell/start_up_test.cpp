// The start of the program.
#include "shell/start_up.h"

#include <QCoreApplication>
#include <QFile>

#include "controls/form.h"
#include "runtime/event.h"
#include "shell/default_instance.h"
#include "shell/frmMain.h"
#include "shell/frmSplash.h"
#include "support/main_window.h"

namespace {

// Writes down which forms are loaded and shown when windows are let to paint and when the database
// is about to be read.
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

TEST_F(StartUp, RefusesASecondInstanceAndLoadsNothing) {
    host_.setAnotherInstanceRuns(true);
    QFile::remove(directory_.people());
    host_.expectMessage(QStringLiteral("Cannot load program again."));
    modCycles::Main();
    const Message& box = host_.messages().back();
    EXPECT_EQ(box.title, QStringLiteral("The requested application is already open"));
    EXPECT_EQ(box.icon, MessageIcon::Exclamation);
    EXPECT_EQ(box.buttons, MessageButtons::Ok);
    EXPECT_TRUE(Form::forms().empty());
}

}  // namespace
