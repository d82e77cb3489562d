// The critical days, peaks and lows in the critical and peak viewer, and their explanation.
#include <QLayout>

#include "analyses/critical_text.h"
#include "analyses/viewer_driver.h"

using modCycles::DateSerial;

namespace {

constexpr int kFarAway = 48;  // pixels, less than the next column is off

// The arrays of the peaks of a cycle and of the pictures beside them.
struct PeakArrays {
    const char* peaks;
    const char* smiles;
    const char* sads;
};

constexpr PeakArrays kPeaks[] = {{"lblEmotPeak", "imgSmileE", "imgSadE"},
                                 {"lblPhysPeak", "imgSmileP", "imgSadP"},
                                 {"lblIntelPeak", "imgSmileI", "imgSadI"}};

TEST_F(CriticalViewer, ListsTheDaysOfTheMonthFromItsFirstOn) {
    openBorn(DateSerial(2000, 1, 1), DateSerial(2000, 1, 20));
    chooseView(2);
    EXPECT_EQ(textsOf("lblEmot"),
              QStringList({QStringLiteral("Sat, 1 January"), QStringLiteral("Sat, 15 January"),
                           QStringLiteral("Sat, 29 January")}));
    EXPECT_EQ(textsOf("lblPhys"),
              QStringList({QStringLiteral("Sat, 1 January"), QStringLiteral("Wed, 12 January"),
                           QStringLiteral("Mon, 24 January"), QString()}));
    EXPECT_EQ(textsOf("lblIntel"),
              QStringList({QStringLiteral("Sat, 1 January"), QStringLiteral("Mon, 17 January")}));
    EXPECT_EQ(textsOf("lblEmotPeak"), QStringList({QStringLiteral("Sat, 8 Jan"),
                                                   QStringLiteral("Sat, 22 Jan"), QString()}));
    EXPECT_EQ(textsOf("lblPhysPeak"),
              QStringList({QStringLiteral("Fri, 7 Jan"), QStringLiteral("Tue, 18 Jan"),
                           QStringLiteral("Sun, 30 Jan")}));
    EXPECT_EQ(textsOf("lblIntelPeak"),
              QStringList({QStringLiteral("Sun, 9 Jan"), QStringLiteral("Wed, 26 Jan")}));
}

TEST_F(CriticalViewer, SmilesBesideAPeakAndIsSadBesideALow) {
    openBorn(DateSerial(2000, 1, 1), DateSerial(2000, 1, 20));
    chooseView(2);
    EXPECT_EQ(shownOf("imgSmileE"), QStringLiteral("x.."));
    EXPECT_EQ(shownOf("imgSadE"), QStringLiteral(".x."));
    EXPECT_EQ(shownOf("imgSmileP"), QStringLiteral("x.x"));
    EXPECT_EQ(shownOf("imgSadP"), QStringLiteral(".x."));
    EXPECT_EQ(shownOf("imgSmileI"), QStringLiteral("x."));
    EXPECT_EQ(shownOf("imgSadI"), QStringLiteral(".x"));
}

TEST_F(CriticalViewer, HasItsFacesBesideThePeaksOfTheSameIndex) {
    open();
    chooseView(2);
    for (const auto& [peaks, smiles, sads] : kPeaks) {
        const std::vector<QLabel*> labels = membersOf<QLabel>(peaks);
        for (const char* array : {smiles, sads}) {
            const std::vector<QLabel*> pictures = membersOf<QLabel>(array);
            for (QLabel* picture : pictures)
                picture->show();
            form_->layout()->activate();
            for (std::size_t i = 0; i < labels.size(); ++i) {
                const QRect label = labels[i]->geometry();
                const QPoint middle = pictures[i]->geometry().center();
                EXPECT_GT(middle.x(), label.right()) << array << i;
                EXPECT_LT(middle.x(), label.right() + kFarAway) << array << i;
                EXPECT_LE(label.top(), middle.y()) << array << i;
                EXPECT_GE(label.bottom(), middle.y()) << array << i;
            }
        }
    }
}

TEST_F(CriticalViewer, HasADifferentFaceForAPeakAndForALow) {
    open();
    const QImage smile = of<QLabel>("imgSmileE_0").pixmap().toImage();
    const QImage sad = of<QLabel>("imgSadE_0").pixmap().toImage();
    EXPECT_NE(smile, sad);
    for (const auto& [peaks, smiles, sads] : kPeaks) {
        for (const QLabel* picture : membersOf<QLabel>(smiles)) {
            EXPECT_EQ(picture->pixmap().toImage(), smile) << qPrintable(picture->objectName());
            EXPECT_EQ(picture->accessibleName(), QStringLiteral("Peak"));
        }
        for (const QLabel* picture : membersOf<QLabel>(sads)) {
            EXPECT_EQ(picture->pixmap().toImage(), sad) << qPrintable(picture->objectName());
            EXPECT_EQ(picture->accessibleName(), QStringLiteral("Low"));
        }
    }
}

TEST_F(CriticalViewer, SpeaksItsMindInTheTooltipsOfThePictures) {
    open();
    for (const auto& [peaks, smiles, sads] : kPeaks) {
        for (const QLabel* picture : membersOf<QLabel>(smiles))
            EXPECT_EQ(picture->toolTip(), QStringLiteral("Happy days are here again!"));
        for (const QLabel* picture : membersOf<QLabel>(sads))
            EXPECT_EQ(picture->toolTip(), QStringLiteral("Oh bugger..."));
    }
}

TEST_F(CriticalViewer, CoversThePicturesByTheInterpretationInTheViewOfTheDay) {
    openBorn(DateSerial(2000, 1, 1), DateSerial(2000, 1, 20));
    auto& cover = of<RichTextBox>("rtbInterp");
    int found = 0;
    for (const char* array :
         {"imgSmileE", "imgSadE", "imgSmileP", "imgSadP", "imgSmileI", "imgSadI"})
        for (const QLabel* picture : membersOf<QLabel>(array)) {
            if (!picture->isVisible())
                continue;
            ++found;
            EXPECT_TRUE(cover.geometry().contains(picture->geometry())) << array;
            const QPoint middle = picture->mapTo(form_.get(), picture->rect().center());
            EXPECT_EQ(form_->childAt(middle), cover.viewport()) << array;
        }
    EXPECT_EQ(found, 7);
}

TEST_F(CriticalViewer, ClearsWhatAnotherMonthHasLeft) {
    openBorn(DateSerial(2000, 1, 1), DateSerial(2000, 1, 20));
    EXPECT_EQ(textOf("lblEmot_2"), QStringLiteral("Sat, 29 January"));
    EXPECT_EQ(shownOf("imgSmileP"), QStringLiteral("x.x"));
    pick(DateSerial(2000, 2, 20));
    EXPECT_EQ(textOf("lblEmot_2"), QString());
    EXPECT_EQ(shownOf("imgSmileP"), QStringLiteral(".x."));
}

TEST_F(CriticalViewer, IsBoldOnTheRealCurrentDateFromWhicheverDayItsMonthIsReached) {
    const Date today = DateSerial(2000, 3, 14);
    openBorn(today + -28, DateSerial(2000, 3, 31));
    EXPECT_EQ(textOf("lblEmot_0"), QStringLiteral("Tue, 14 March"));
    EXPECT_EQ(boldOf("lblEmot"), QStringLiteral("x.."));
    pick(DateSerial(2000, 4, 14));
    EXPECT_EQ(boldOf("lblEmot"), QStringLiteral("..."));
    pick(DateSerial(2000, 3, 1));
    EXPECT_EQ(boldOf("lblEmot"), QStringLiteral("x.."));
}

TEST_F(CriticalViewer, IsBoldOnAPeakThatIsTodayToo) {
    openBorn(DateSerial(2000, 3, 14) + -63, kPicked);
    EXPECT_EQ(textOf("lblEmotPeak_0"), QStringLiteral("Tue, 14 Mar"));
    EXPECT_EQ(boldOf("lblEmotPeak"), QStringLiteral("x.."));
}

TEST_F(CriticalViewer, IsNotBoldOnTheDayOfThePicker) {
    openBorn(kPicked + -28, kPicked);
    EXPECT_EQ(textOf("lblEmot_1"), QStringLiteral("Mon, 20 March"));
    EXPECT_EQ(boldOf("lblEmot"), QStringLiteral("..."));
}

TEST_F(CriticalViewer, KeepsTheDayWhenTheMonthIsChanged) {
    open();
    chooseView(2);
    pressKey(picker(), Qt::Key_Up);
    EXPECT_EQ(picker().Value(), DateSerial(2000, 4, 20));
    const DayReading reading = readDay(kAnnasBirth, DateSerial(2000, 4, 20));
    EXPECT_EQ(textOf("lblAge"), reading.age);
    EXPECT_EQ(textOf("lblToday_0"), reading.percentTexts[0]);
    EXPECT_EQ(interpretation(), storedText(DateSerial(2000, 4, 20)));
    const SpanFinds finds =
        searchSpan(kAnnasBirth, DateSerial(2000, 4, 1), DateSerial(2000, 3, 14));
    EXPECT_EQ(textOf("lblEmot_0"), finds.emotional.critical[0].text);
    EXPECT_EQ(textOf("lblEmotPeak_0"), finds.emotional.peaks[0].text);
}

TEST_F(CriticalViewer, ExplainsCriticalDaysInItsStyles) {
    open();
    auto& box = of<RichTextBox>("rtbCritical");
    EXPECT_EQ(box.Text(), criticalText().text);
    EXPECT_EQ(box.SelStart(), 0);
    EXPECT_EQ(box.SelLength(), 0);
    for (const StyledRange& range : criticalText().ranges)
        for (const int place : {range.start, range.start + range.length - 1}) {
            box.setSelStart(place);
            box.setSelLength(1);
            EXPECT_EQ(box.SelBold(), range.isBold) << place;
            EXPECT_EQ(box.SelFontSize(), range.points) << place;
            EXPECT_EQ(box.SelColor(), range.colour) << place;
        }
}

}  // namespace
