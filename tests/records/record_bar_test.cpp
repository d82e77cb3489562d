// The two states of the buttons.
#include "records/record_bar.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QLabel>

#include "support/printing.h"
#include "support/widget_driver.h"

namespace {

class RecordBarTest : public testing::Test {
  protected:
    RecordBarTest() { bar_.show(); }

    QWidget& in(const QString& name) { return child<QWidget>(bar_, name); }

    // The captions that can be seen, in their order.
    QStringList captions() {
        QStringList captions;
        for (const char* name :
             {"cmdAdd", "cmdEdit", "cmdUpdate", "cmdCancel", "cmdDelete", "cmdClose"}) {
            const auto& button = child<QAbstractButton>(bar_, QString::fromLatin1(name));
            if (button.isVisible())
                captions += button.text();
        }
        return captions;
    }

    void expectArrows(bool enabled) {
        for (const char* name : {"cmdFirst", "cmdPrevious", "cmdNext", "cmdLast"})
            EXPECT_EQ(in(QString::fromLatin1(name)).isEnabled(), enabled) << name;
    }

    RecordBar bar_;
};

const QStringList kBrowsing{QStringLiteral("Add"), QStringLiteral("Edit"), QStringLiteral("Delete"),
                            QStringLiteral("Close")};

TEST_F(RecordBarTest, OffersToBrowseAtFirst) {
    EXPECT_EQ(captions(), kBrowsing);
    expectArrows(true);
}

TEST_F(RecordBarTest, OffersUpdateAndCancelAloneDuringAnEdit) {
    bar_.SetButtons(false);
    EXPECT_EQ(captions(), QStringList({QStringLiteral("Update"), QStringLiteral("Cancel")}));
    expectArrows(false);
    bar_.SetButtons(true);
    EXPECT_EQ(captions(), kBrowsing);
    expectArrows(true);
}

}  // namespace
