// The event boundary, the error trap and the ignoring of errors: where a run-time error stops.
//
// Every event routine is connected by onEvent. A run-time error that no trap has ended reaches the
// boundary there, which shows the run-time's box and ends the process; no exception crosses the
// frames of Qt. Any other exception is a defect and terminates the program.
#pragma once

#include <QObject>
#include <functional>
#include <optional>
#include <utility>

#include "runtime/errors.h"

namespace event_detail {

// The run-time error that is being handled, whichever room raised it: an overflow or a range error
// of the arithmetic becomes the error of that number. Anything else is thrown on.
RuntimeError currentError();

void endWith(const RuntimeError& error) noexcept;
void report(QObject* owner, const RuntimeError& error);

}  // namespace event_detail

// Runs an event routine inside the boundary. Use it only where no signal leads to the routine.
template <class Routine>
void runEvent(Routine&& routine) noexcept {
    try {
        std::invoke(std::forward<Routine>(routine));
    } catch (...) {
        event_detail::endWith(event_detail::currentError());
    }
}

// Connects a signal to an event routine of `receiver`, a member function that takes the signal's
// arguments, the first of them, or none. The connection ends with either of the two objects.
template <class Sender, class Signal, class Receiver, class Class, class... Arguments>
void onEvent(Sender* sender, Signal signal, Receiver* receiver,
             void (Class::*routine)(Arguments...)) {
    QObject::connect(sender, signal, receiver, [receiver, routine](Arguments... arguments) {
        runEvent([&] { (receiver->*routine)(arguments...); });
    });
}

// Runs the steps and returns the run-time error that ended them, if one did: for a routine that has
// words of its own for it.
template <class Steps>
std::optional<RuntimeError> errorEnding(Steps&& steps) {
    try {
        std::invoke(std::forward<Steps>(steps));
        return std::nullopt;
    } catch (...) {
        return event_detail::currentError();
    }
}

// The one error trap: runs the steps, and ends a run-time error in a message box over `owner` with
// the error's description, without a full stop of its own, and the request to report it. What had
// been shown by then stays. An error of the number `silent` ends them without a box. Returns
// whether an error was trapped.
template <class Steps>
bool trapped(QObject* owner, Steps&& steps, std::optional<ErrorNumber> silent = std::nullopt) {
    const std::optional<RuntimeError> error = errorEnding(std::forward<Steps>(steps));
    if (error && !(silent && error->number == static_cast<int>(*silent)))
        event_detail::report(owner, *error);
    return error.has_value();
}

// Runs one statement of a routine that ignores errors: a run-time error of it is forgotten, and the
// next statement runs.
template <class Statement>
void resumingNext(Statement&& statement) {
    errorEnding(std::forward<Statement>(statement));
}
