// What a test does with a form that a command shows modally.
#pragma once

#include <gtest/gtest.h>

#include <QTimer>
#include <functional>

#include "controls/form.h"

// As soon as the next form waits for the user, this acts in the user's place; the form is unloaded
// after that, if it is still there. A form of another kind fails the test.
template <class F>
void onNextForm(std::function<void(F&)> act) {
    QTimer::singleShot(0, [act] {
        Form* shown = Form::forms().empty() ? nullptr : Form::forms().back();
        if (auto* wanted = dynamic_cast<F*>(shown))
            act(*wanted);
        else
            ADD_FAILURE() << "Another form is shown, or none";
        if (!Form::forms().empty() && Form::forms().back() == shown)
            shown->Unload();
    });
}
