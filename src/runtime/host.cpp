// The host in force.
#include "runtime/host.h"

namespace {

Host* hostInForce = nullptr;

}  // namespace

Date Host::today() const {
    return Date(now().dayNumber());
}

Host& host() {
    Q_ASSERT(hostInForce);
    return *hostInForce;
}

HostInForce::HostInForce(Host& host) : previous_(hostInForce) {
    hostInForce = &host;
}

HostInForce::~HostInForce() {
    hostInForce = previous_;
}
