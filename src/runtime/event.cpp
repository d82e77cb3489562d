// The boxes at the event boundary and the trap.
#include "runtime/event.h"

#include <stdexcept>

#include "runtime/app.h"
#include "runtime/host.h"

namespace event_detail {

RuntimeError currentError() {
    try {
        throw;
    } catch (const RuntimeError& error) {
        return error;
    } catch (const std::overflow_error&) {
        return RuntimeError(ErrorNumber::Overflow);
    } catch (const std::out_of_range&) {
        return RuntimeError(ErrorNumber::InvalidProcedureCall);
    }
}

void endWith(const RuntimeError& error) noexcept {
    host().showMessage({.text = QStringLiteral("Run-time error '%1':\n\n%2")
                                    .arg(QString::number(error.number), error.description),
                        .title = App::Title(),
                        .icon = MessageIcon::Critical});
    host().endProcess(1);
}

void report(QObject* owner, const RuntimeError& error) {
    QString description = error.description;
    if (description.endsWith(u'.'))
        description.chop(1);
    host().showMessage(
        {.text = description + QStringLiteral(". Please report this error to the author."),
         .owner = owner});
}

}  // namespace event_detail
