// Forms that exist once and are used through their one instance.
#pragma once

#include <QPointer>

#include "controls/form.h"

// The default instance of a form: made when it is first used, and freed once it has been unloaded,
// so that the next use makes a new one.
template <class F>
F& defaultInstance() {
    static QPointer<F> instance;
    if (!instance) {
        instance = new F;
        QObject::connect(instance, &Form::unloaded, instance, &QObject::deleteLater);
    }
    return *instance;
}
