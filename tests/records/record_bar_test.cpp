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

TEST_F(RecordBarTest, GivesTheStatusTheRoomBetweenTheArrows) {
    const auto gaps = [this] {
        const QRect status = in(QStringLiteral("lblStatus")).geometry();
        const QRect next = in(QStringLiteral("cmdNext")).geometry();
        const QRect last = in(QStringLiteral("cmdLast")).geometry();
        return std::vector<int>{status.left(), next.left() - status.right(),
                                last.left() - next.left()};
    };
    bar_.resize(400, bar_.height());
    const auto before = gaps();
    const int width = in(QStringLiteral("lblStatus")).width();
    bar_.resize(640, bar_.height());
    EXPECT_EQ(gaps(), before);
    EXPECT_EQ(in(QStringLiteral("lblStatus")).width(), width + 240);
}

}  // namespace
