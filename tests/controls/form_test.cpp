// The life of a form.
#include "controls/form.h"

#include <gtest/gtest.h>

#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

#include "runtime/errors.h"
#include "support/event_counter.h"
#include "support/recording_host.h"
#include "support/widget_driver.h"

namespace {

// A form with a text box and a button that writes down what happens to it.
class Probe : public Form {
  public:
    explicit Probe(QWidget* owner = nullptr) : Form(owner) {
        auto* layout = new QVBoxLayout(this);
        layout->addWidget(&box);
        layout->addWidget(&button);
    }

    QStringList happened;
    QLineEdit box;
    QPushButton button;
    int keyToUse = 0;
    bool failsToLoad = false;

    using Form::isAtWork;
    using Form::isClosing;
    using Form::setDefaultButton;
    using Form::work;

  protected:
    void Form_Cancel() override { happened += QStringLiteral("cancel"); }
    void Form_Load() override {
        happened += QStringLiteral("load");
        if (failsToLoad)
            throw RuntimeError(ErrorNumber::FileNotFound);
    }
    void Form_Unload() override { happened += QStringLiteral("unload"); }
    void Form_KeyDown(QKeyEvent& key) override {
        happened += QStringLiteral("key %1").arg(key.key());
        if (key.key() == keyToUse)
            key.accept();
    }
};

class FormLife : public testing::Test {
  protected:
    RecordingHost host_;
};

using Strings = QStringList;

TEST_F(FormLife, LoadsOnceBeforeItIsShown) {
    Probe form;
    form.Load();
    EXPECT_FALSE(form.isVisible());
    form.Show();
    EXPECT_TRUE(form.isVisible());
    EXPECT_EQ(form.happened, Strings{QStringLiteral("load")});
}

TEST_F(FormLife, PressesItsDefaultButtonByEnter) {
    Probe form;
    form.setDefaultButton(form.button);
    const EventCounter presses(form.button, &QPushButton::clicked);
    form.Show();
    EXPECT_TRUE(form.button.isDefault());
    form.box.setFocus();
    pressKey(form.box, Qt::Key_Space);
    EXPECT_EQ(presses.fired(), 0);
    pressKey(form.box, Qt::Key_Return);
    EXPECT_EQ(presses.fired(), 1);
    form.box.setFocus();
    pressKey(form.box, Qt::Key_Enter);
    EXPECT_EQ(presses.fired(), 2);
}

TEST_F(FormLife, LeavesEnterToTheButtonThatHasTheFocus) {
    Probe form;
    QPushButton other(&form);
    form.setDefaultButton(form.button);
    const EventCounter presses(form.button, &QPushButton::clicked);
    form.Show();
    other.setFocus();
    pressKey(other, Qt::Key_Return);
    EXPECT_EQ(presses.fired(), 0);
}

TEST_F(FormLife, PressesNothingByEnterWithoutADefaultButton) {
    Probe form;
    const EventCounter presses(form.button, &QPushButton::clicked);
    form.Show();
    form.box.setFocus();
    pressKey(form.box, Qt::Key_Return);
    EXPECT_EQ(presses.fired(), 0);
}

TEST_F(FormLife, UnloadsOnceHoweverItCloses) {
    Probe form;
    form.Show();
    form.close();
    form.Unload();
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(form.happened, Strings({QStringLiteral("load"), QStringLiteral("unload")}));
}

TEST_F(FormLife, IsAmongTheFormsWhileItIsLoaded) {
    Probe first;
    Probe second;
    first.Load();
    second.Load();
    EXPECT_EQ(Form::forms(), (std::vector<Form*>{&first, &second}));
    first.Unload();
    EXPECT_EQ(Form::forms(), std::vector<Form*>{&second});
    second.Unload();
}

TEST_F(FormLife, IsNoLongerAmongTheFormsOnceItIsFreed) {
    {
        Probe form;
        form.Load();
    }
    EXPECT_TRUE(Form::forms().empty());
}

TEST_F(FormLife, ReturnsFromModalShowWhenItIsUnloaded) {
    Probe owner;
    Probe form(&owner);
    bool wasModalOverOwner = false;
    QTimer::singleShot(0, &form, [&] {
        wasModalOverOwner = form.isModal() && form.parentWidget() == &owner;
        form.Unload();
    });
    form.ShowModal();
    EXPECT_TRUE(wasModalOverOwner);
    EXPECT_FALSE(form.isLoaded());
}

TEST_F(FormLife, IsUnloadedAfterTheWorkDuringWhichItIsClosed) {
    Probe form;
    form.Show();
    form.work([&form] {
        EXPECT_TRUE(form.isAtWork());
        EXPECT_FALSE(form.close());
        EXPECT_TRUE(form.isClosing());
        EXPECT_TRUE(form.isVisible());
        form.happened += QStringLiteral("work");
    });
    EXPECT_FALSE(form.isAtWork());
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(form.happened, Strings({QStringLiteral("load"), QStringLiteral("cancel"),
                                      QStringLiteral("work"), QStringLiteral("unload")}));
}

TEST_F(FormLife, StaysAfterWorkDuringWhichNobodyClosesIt) {
    Probe form;
    form.Show();
    form.work([] {});
    EXPECT_TRUE(form.isVisible());
    EXPECT_EQ(form.happened, Strings{QStringLiteral("load")});
}

TEST_F(FormLife, CanWorkAgainOnceItIsLoadedAnew) {
    Probe form;
    form.Show();
    form.work([&form] { form.close(); });
    form.Show();
    EXPECT_FALSE(form.isClosing());
    form.work([] {});
    EXPECT_TRUE(form.isVisible());
}

TEST_F(FormLife, HandsAnErrorOfItsLoadToWhoeverLoadsIt) {
    Probe form;
    form.failsToLoad = true;
    EXPECT_THROW(form.Load(), RuntimeError);
    EXPECT_FALSE(form.isVisible());
}

TEST_F(FormLife, SeesAKeyBeforeTheControlAndLetsItThrough) {
    Probe form;
    form.Show();
    form.box.setFocus();
    pressKey(form.box, Qt::Key_A);
    EXPECT_EQ(form.happened.back(), QStringLiteral("key %1").arg(Qt::Key_A));
    EXPECT_EQ(form.box.text(), QStringLiteral("a"));
}

TEST_F(FormLife, KeepsAKeyThatItUses) {
    Probe form;
    form.keyToUse = Qt::Key_A;
    form.Show();
    form.box.setFocus();
    pressKey(form.box, Qt::Key_A);
    EXPECT_EQ(form.box.text(), QString());
}

TEST_F(FormLife, SeesAKeyOnceAlsoIfNoControlWantsIt) {
    Probe form;
    form.Show();
    form.button.setFocus();
    pressKey(form.button, Qt::Key_F7);
    EXPECT_EQ(form.happened.count(QStringLiteral("key %1").arg(Qt::Key_F7)), 1);
}

TEST_F(FormLife, IsClosedNeitherByEscNorByEnter) {
    Probe form;
    form.Show();
    int presses = 0;
    QObject::connect(&form.button, &QPushButton::clicked, &form, [&] { ++presses; });
    form.box.setFocus();
    pressKey(form.box, Qt::Key_Escape);
    pressKey(form.box, Qt::Key_Return);
    EXPECT_TRUE(form.isLoaded());
    EXPECT_EQ(presses, 0);
}

TEST_F(FormLife, LeavesTheFocusToAButtonBeforeItsClick) {
    Probe form;
    form.Show();
    const QWidget* atClick = nullptr;
    QObject::connect(&form.button, &QPushButton::clicked, &form,
                     [&] { atClick = form.focusWidget(); });
    form.box.setFocus();
    form.button.animateClick();
    EXPECT_EQ(form.focusWidget(), &form.button);
    form.box.setFocus();
    form.button.click();
    EXPECT_EQ(atClick, &form.button);
}

TEST_F(FormLife, PressesTheButtonThatHasTheFocusByEnter) {
    Probe form;
    form.Show();
    int presses = 0;
    QObject::connect(&form.button, &QPushButton::clicked, &form, [&] { ++presses; });
    form.button.setFocus();
    pressKey(form.button, Qt::Key_Return);
    EXPECT_EQ(presses, 1);
}

TEST(TakeEsc, UsesUpThatKeyAlone) {
    for (const Qt::Key code : {Qt::Key_Escape, Qt::Key_Enter, Qt::Key_Home}) {
        QKeyEvent key(QEvent::KeyPress, code, Qt::NoModifier);
        key.ignore();
        EXPECT_EQ(takeEsc(key), code == Qt::Key_Escape);
        EXPECT_EQ(key.isAccepted(), code == Qt::Key_Escape);
    }
}

}  // namespace
