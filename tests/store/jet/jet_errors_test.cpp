// The wording of what goes wrong in a Jet file.
#include "store/jet/jet_errors.h"

#include <gtest/gtest.h>

#include "support/errors.h"
#include "support/printing.h"

TEST(JetErrors, NameCauseAndFile) {
    const RuntimeError error =
        jetError(JetFailure(ErrorNumber::DeviceIo, QStringLiteral("it cannot be read")),
                 QStringLiteral("a"));
    EXPECT_EQ(error.number, 57);
    EXPECT_EQ(error.description, QStringLiteral("Device I/O error: it cannot be read, a"));
}

TEST(JetErrors, SayOfDamageThatTheFileHasIt) {
    const auto steps = [] { throw JetDamage(QStringLiteral("it is cut short")); };
    EXPECT_EQ(descriptionOf([&] { raisingJetErrors(QStringLiteral("a"), steps); }),
              QStringLiteral("Invalid file format: the file is damaged, it is cut short, a"));
    EXPECT_EQ(errorOf([&] { raisingJetErrors(QStringLiteral("a"), steps); }), 321);
}

TEST(JetErrors, LeaveOthersAndWhatIsGivenAsTheyAre) {
    EXPECT_EQ(
        errorOf([] { raisingJetErrors({}, [] { throw RuntimeError(ErrorNumber::DiskFull); }); }),
        61);
    EXPECT_EQ(raisingJetErrors({}, [] { return 7; }), 7);
}
