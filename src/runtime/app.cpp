// App, from the build's one version and from the host.
#include "runtime/app.h"

#include "runtime/host.h"

namespace App {

QString Title() {
    return QStringLiteral(ONDARA_TITLE);
}

int Major() {
    return ONDARA_MAJOR;
}

int Minor() {
    return ONDARA_MINOR;
}

int Revision() {
    return ONDARA_REVISION;
}

QString Path() {
    return host().programDirectory();
}

bool PrevInstance() {
    return host().anotherInstanceRuns();
}

}  // namespace App
