// The message boxes of the desktop.
#include "controls/desktop_host.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QMessageBox>
#include <QTimer>
#include <QWindow>

#include "support/printing.h"

namespace {

class DesktopHostTest : public testing::Test {
  protected:
    // Shows a box, looks at it with `look`, and answers it with a button.
    template <class Look>
    Answer answered(const Message& message, QMessageBox::StandardButton button, Look look) {
        QTimer::singleShot(0, [&] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            look(*box);
            box->done(button);
        });
        return host_.showMessage(message);
    }

    DesktopHost host_;
};

TEST_F(DesktopHostTest, ShowsTextTitleIconAndButtons) {
    const Message message{.text = QStringLiteral("Cannot <b>load</b>."),
                          .title = QStringLiteral("Ondara"),
                          .icon = MessageIcon::Exclamation};
    const Answer answer = answered(message, QMessageBox::Ok, [](const QMessageBox& box) {
        EXPECT_EQ(box.text(), QStringLiteral("Cannot <b>load</b>."));
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        EXPECT_EQ(box.windowTitle(), QStringLiteral("Ondara"));
        EXPECT_EQ(box.icon(), QMessageBox::Warning);
        EXPECT_EQ(box.standardButtons(), QMessageBox::Ok);
    });
    EXPECT_EQ(answer, Answer::Ok);
}

TEST_F(DesktopHostTest, IsWideEnoughForItsTitle) {
    const QString title = QStringLiteral("The requested application is already open");
    answered({.text = QStringLiteral("No."), .title = title}, QMessageBox::Ok,
             [&](const QMessageBox& box) {
                 EXPECT_GT(box.width(), box.fontMetrics().horizontalAdvance(title) + 100);
             });
}

TEST_F(DesktopHostTest, HasNoIconAndNoTitleUnlessTheyAreAskedFor) {
    answered({.text = QStringLiteral("Well?")}, QMessageBox::Ok, [](const QMessageBox& box) {
        EXPECT_EQ(box.icon(), QMessageBox::NoIcon);
        EXPECT_EQ(box.windowTitle(), QString());
    });
}

TEST_F(DesktopHostTest, AnswersAQuestionAsTheUserDoes) {
    const Message question{.text = QStringLiteral("Sure?"), .buttons = MessageButtons::YesNo};
    const auto look = [](const QMessageBox& box) {
        EXPECT_EQ(box.standardButtons(), QMessageBox::Yes | QMessageBox::No);
    };
    EXPECT_EQ(answered(question, QMessageBox::Yes, look), Answer::Yes);
    EXPECT_EQ(answered(question, QMessageBox::No, look), Answer::No);
}

TEST_F(DesktopHostTest, WaitsOverTheWindowOfItsOwner) {
    QWidget window;
    auto* inner = new QWidget(&window);
    answered({.text = QStringLiteral("Here."), .owner = inner}, QMessageBox::Ok,
             [&](const QMessageBox& box) { EXPECT_EQ(box.parentWidget(), &window); });
}

TEST_F(DesktopHostTest, YieldsToWaitingEvents) {
    bool happened = false;
    QTimer::singleShot(0, [&] { happened = true; });
    host_.yield();
    EXPECT_TRUE(happened);
}

// A widget that is not shown on the screen stands for a window that the window system is slow with.
TEST_F(DesktopHostTest, WaitsForAWindowThatAppearsLate) {
    QWidget window;
    window.setAttribute(Qt::WA_DontShowOnScreen);
    window.show();
    QTimer::singleShot(10, [&] {
        window.hide();
        window.setAttribute(Qt::WA_DontShowOnScreen, false);
        window.show();
    });
    host_.paintWindows();
    EXPECT_TRUE(window.windowHandle()->isExposed());
}

TEST_F(DesktopHostTest, DoesNotWaitForEverForAWindowThatStaysAway) {
    QWidget window;
    window.setAttribute(Qt::WA_DontShowOnScreen);
    window.show();
    host_.paintWindows();
    EXPECT_FALSE(window.windowHandle()->isExposed());
}

}  // namespace
