// Forms that exist once.
#include "shell/default_instance.h"

#include <gtest/gtest.h>

#include <QCoreApplication>

#include "support/recording_host.h"

namespace {

class Probe final : public Form {};

TEST(DefaultInstance, IsOneUntilItIsUnloadedAndThenAnother) {
    RecordingHost host;
    QPointer<Probe> first = &defaultInstance<Probe>();
    EXPECT_EQ(&defaultInstance<Probe>(), first);
    first->Load();
    first->Unload();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(first.isNull());
    QPointer<Probe> second = &defaultInstance<Probe>();
    EXPECT_FALSE(second->isLoaded());
    delete second;
}

}  // namespace
