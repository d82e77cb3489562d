// What the critical and peak viewer does when something goes wrong.
#include <QFile>

#include "analyses/critical_text.h"
#include "analyses/viewer_driver.h"
#include "controls/bar_shape.h"
#include "support/errors.h"

using modCycles::DateSerial;

namespace {

QString trappedMessage(const QString& description) {
    return description + QStringLiteral(". Please report this error to the author.");
}

QString noRowMessage() {
    return trappedMessage(
        QStringLiteral("Either BOF or EOF is True, or the current record has been deleted. "
                       "Requested operation requires a current record"));
}

class CriticalViewerThatFails : public CriticalViewer {
  protected:
    QString missingFileMessage() {
        return trappedMessage(QStringLiteral("File not found: there is no file of this name, %1")
                                  .arg(QDir::toNativeSeparators(directory_.interpretation())));
    }

    void expectTheEnd(const QString& message) {
        host_.expectMessage(message);
        show();
        EXPECT_EQ(host_.exitCode(), 1);
        host_.forgetExit();
    }
};

TEST_F(CriticalViewerThatFails, TellsThatThereAreNoInterpretationsForEachAnalysisOfItsLoad) {
    QFile::remove(directory_.interpretation());
    choose(kAnna, kPicked);
    host_.expectMessage(missingFileMessage());
    host_.expectMessage(missingFileMessage());
    show();
    for (const Message& message : host_.messages()) {
        EXPECT_EQ(message.title, QString());
        EXPECT_EQ(message.icon, MessageIcon::None);
    }
    EXPECT_TRUE(form_->isVisible());
    EXPECT_EQ(textOf("lblAge"), readDay(kAnnasBirth, kPicked).age);
    EXPECT_NE(textOf("lblEmot_0"), QString());
    EXPECT_NE(of<BarShape>("barEmot").Width(), 0);
    EXPECT_EQ(picker().Value(), kPicked);
    EXPECT_EQ(of<RichTextBox>("rtbCritical").Text(), criticalText().text);
}

TEST_F(CriticalViewerThatFails, AnalysesOnceForAChangeAlthoughItMovesThePickerItself) {
    open();
    QFile::remove(directory_.interpretation());
    host_.expectMessage(missingFileMessage());
    pick(DateSerial(2000, 5, 31));
    ASSERT_EQ(host_.messages().size(), 1U);
    EXPECT_EQ(host_.messages().back().owner, form_.get());
    EXPECT_EQ(picker().Value(), DateSerial(2000, 5, 31));
}

TEST_F(CriticalViewerThatFails, KeepsTheLastInterpretationWhereThereIsNoneForADay) {
    open();
    const QString before = interpretation();
    runSql(directory_.interpretation(), QStringLiteral("DELETE FROM HLC"));
    host_.expectMessage(noRowMessage());
    pick(DateSerial(2000, 5, 31));
    EXPECT_EQ(interpretation(), before);
    EXPECT_EQ(picker().Value(), DateSerial(2000, 5, 31));
    EXPECT_EQ(textOf("lblAge"), readDay(kAnnasBirth, DateSerial(2000, 5, 31)).age);
}

TEST_F(CriticalViewerThatFails, TellsOfAnInterpretationThatIsNull) {
    open();
    const QString before = interpretation();
    runSql(directory_.interpretation(), QStringLiteral("ALTER TABLE HLC DROP COLUMN interp"));
    runSql(directory_.interpretation(), QStringLiteral("ALTER TABLE HLC ADD COLUMN interp TEXT"));
    host_.expectMessage(trappedMessage(QStringLiteral("Invalid use of Null")));
    pick(DateSerial(2000, 5, 31));
    EXPECT_EQ(interpretation(), before);
    EXPECT_EQ(picker().Value(), DateSerial(2000, 5, 31));
}

TEST_F(CriticalViewerThatFails, StaysOnTheFirstOfTheMonthWhenTheSearchFails) {
    open();
    host_.breakClock(ErrorNumber::DeviceIo);
    host_.expectMessage(trappedMessage(errorText(ErrorNumber::DeviceIo)));
    pick(DateSerial(2000, 5, 31));
    EXPECT_EQ(picker().Value(), DateSerial(2000, 5, 1));
    EXPECT_EQ(picker().text(), QStringLiteral("1 May 2000"));
    EXPECT_EQ(textOf("lblAge"), readDay(kAnnasBirth, DateSerial(2000, 5, 31)).age);
    EXPECT_EQ(textsOf("lblEmot"), QStringList({QString(), QString(), QString()}));
    EXPECT_EQ(shownOf("imgSmileP"), QStringLiteral("..."));
}

TEST_F(CriticalViewerThatFails, EndsTheProgramForAPersonWhoIsGone) {
    choose(kAnna, kPicked);
    runSql(directory_.people(), QStringLiteral("DELETE FROM Data"));
    expectTheEnd(noCurrentRecordBox());
}

TEST_F(CriticalViewerThatFails, EndsTheProgramForADateOfBirthThatIsNull) {
    choose(kAnna, kPicked);
    directory_.dropConstraints();
    for (int person = 0; person < 3; ++person)
        addPerson({.name = QStringLiteral("Undated"), .birthdate = Value()});
    expectTheEnd(QStringLiteral("Run-time error '94':\n\nInvalid use of Null"));
}

}  // namespace
