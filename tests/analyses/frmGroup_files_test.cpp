// The group comparison: groups saved, loaded and deleted.
#include <QDir>
#include <QFile>

#include "analyses/group_driver.h"
#include "store/group_files.h"
#include "support/errors.h"
#include "support/files.h"
#include "support/read_only_folder.h"

namespace {

class SavedGroup : public GroupTest {
  protected:
    QString pathOf(const char* fileName) { return directory_.path(QString::fromUtf8(fileName)); }

    QByteArray bytesOf(const char* fileName) { return fileBytes(pathOf(fileName)); }

    void make(const char* fileName, const QByteArray& bytes) { makeFile(pathOf(fileName), bytes); }

    // Everybody on the tab that defines groups.
    void openToDefine() {
        open();
        clickTab(3);
        addAll();
    }

    void saveAs(const char* name) {
        groupName().setText(QString::fromUtf8(name));
        press("cmdSave");
    }

    void save(const char* name) {
        expectMessage("Done!");
        saveAs(name);
    }

    void openTab(int tab) {
        open();
        clickTab(tab);
    }

    // What reading the file fails with.
    static QString failureOf(const QString& fileName) {
        return descriptionOf([&] { readGroup(fileName, [](const PersonRecord&) {}); });
    }

    static QString refusalOf(const QString& fileName) {
        return descriptionOf([&] { const GroupWriter file(fileName); });
    }

    const QByteArray kEverybody = "2,\"Adler, Ben\"\r\n1,\"Smith, Anna\"\r\n3,\"Zed\"\r\n";
};

TEST_F(SavedGroup, HoldsItsMembersInTheirOrderUnderTheNameAsTyped) {
    openToDefine();
    save("My FRIENDS");
    EXPECT_EQ(bytesOf("My FRIENDS.ofg"), kEverybody);
    EXPECT_EQ(host_.messages().back().icon, MessageIcon::Information);
    EXPECT_EQ(host_.messages().back().title, QString());
    EXPECT_EQ(host_.messages().back().owner, form_.get());
    EXPECT_EQ(group().ListCount(), 3);
    EXPECT_EQ(host_.yields(), 3);
    EXPECT_EQ(groupName().text(), QStringLiteral("My FRIENDS"));
}

TEST_F(SavedGroup, HasANameWithoutBlanksAtItsEnds) {
    openToDefine();
    save("  Friends ");
    EXPECT_EQ(bytesOf("Friends.ofg"), kEverybody);
}

TEST_F(SavedGroup, NeedsPeopleBeforeItNeedsAName) {
    make("Work.ofg", "old");
    openTab(3);
    for (const char* name : {"", "Friends", "Work"}) {
        expectMessage("Please select people from the list first!");
        saveAs(name);
        EXPECT_EQ(host_.messages().back().icon, MessageIcon::Exclamation);
    }
    EXPECT_FALSE(QFile::exists(pathOf("Friends.ofg")));
}

TEST_F(SavedGroup, NeedsANameAndSaysNothingWithoutOne) {
    openToDefine();
    for (const char* name : {"", "   "})
        saveAs(name);
    EXPECT_TRUE(host_.messages().empty());
    EXPECT_FALSE(isLocked());
    EXPECT_FALSE(QFile::exists(pathOf(".ofg")));
}

TEST_F(SavedGroup, IsNotReplacedByOneWhoseNameDiffersInCaseAndBlanksAlone) {
    make("Friends.ofg", "old");
    openToDefine();
    for (const char* name : {"Friends", " fRIENDS  "}) {
        expectMessage("This group already exists!");
        saveAs(name);
        EXPECT_EQ(host_.messages().back().icon, MessageIcon::Exclamation);
    }
    EXPECT_EQ(bytesOf("Friends.ofg"), "old");
    EXPECT_FALSE(isLocked());
}

TEST_F(SavedGroup, IsReplacedUntilTheNextTab) {
    openToDefine();
    save("Friends");
    group().setText(kZed);
    press("cmdRemove");
    save("friends");
    EXPECT_EQ(bytesOf("Friends.ofg"), "2,\"Adler, Ben\"\r\n1,\"Smith, Anna\"\r\n");
    clickTab(3);
    addAll();
    expectMessage("This group already exists!");
    saveAs("friends");
}

TEST_F(SavedGroup, IsRefusedAsOfTheLastTabThoughItsFileIsGone) {
    make("Friends.ofg", "old");
    openToDefine();
    QFile::remove(pathOf("Friends.ofg"));
    expectMessage("This group already exists!");
    saveAs("Friends");
}

TEST_F(SavedGroup, LocksTheWindowWhileItIsWritten) {
    openToDefine();
    int looks = 0;
    host_.onYield([&] {
        ++looks;
        EXPECT_TRUE(isLocked());
        EXPECT_FALSE(isShown("lstGroup"));
        EXPECT_TRUE(isShown("lblProc"));
        EXPECT_EQ(textOf("lblCancel"), QStringLiteral("Press Esc to cancel"));
        EXPECT_EQ(group().ListIndex(), looks - 1);
        if (looks == 1)
            Q_EMIT of<PictureButton>("cmdSave").Click();
    });
    host_.onMessage([&] {
        EXPECT_EQ(looks, 3);
        EXPECT_TRUE(isLocked());
        EXPECT_TRUE(isShown("lblProc"));
    });
    save("Friends");
    expectIdle();
}

TEST_F(SavedGroup, IsDoneWithTheMembersSoFarWhereEscIsPressed) {
    openToDefine();
    duringYield(1, [this] { pressEsc(); });
    save("Friends");
    EXPECT_EQ(bytesOf("Friends.ofg"), "2,\"Adler, Ben\"\r\n1,\"Smith, Anna\"\r\n");
    EXPECT_FALSE(isLocked());
    host_.onYield({});
    save("Friends");
    EXPECT_EQ(bytesOf("Friends.ofg"), kEverybody);
}

TEST_F(SavedGroup, HoldsOneMemberWhereEscWasPressedBeforeIt) {
    openToDefine();
    pressEsc();
    save("Friends");
    EXPECT_EQ(bytesOf("Friends.ofg"), "2,\"Adler, Ben\"\r\n");
    save("Friends");
    EXPECT_EQ(bytesOf("Friends.ofg"), kEverybody);
}

TEST_F(SavedGroup, IsDoneBeforeAWindowGoesThatIsClosedMeanwhile) {
    openToDefine();
    duringYield(2, [this] { form_->close(); });
    save("Friends");
    EXPECT_EQ(bytesOf("Friends.ofg"), kEverybody);
    EXPECT_FALSE(form_->isVisible());
}

TEST_F(SavedGroup, OfANameThatNoFileCanHaveFailsBeforeAnyMemberAndLeavesTheLock) {
    openToDefine();
    host_.onYield([] { FAIL(); });
    for (const char* name : {"a/b", "a:b", "../up"}) {
        expectReport(refusalOf(QString::fromLatin1(name) + QStringLiteral(".ofg")));
        saveAs(name);
        EXPECT_EQ(host_.messages().back().icon, MessageIcon::None);
        EXPECT_TRUE(isLocked());
        EXPECT_FALSE(isShown("lstGroup"));
        EXPECT_TRUE(isShown("lblProc"));
        EXPECT_EQ(textOf("lblCancel"), QStringLiteral("Press Esc to cancel"));
    }
    form_->close();
    EXPECT_FALSE(form_->isVisible());
}

TEST_F(SavedGroup, ThatSucceedsAfterOneThatFailedTakesTheLockAway) {
    openToDefine();
    expectReport(refusalOf(QStringLiteral("a/b.ofg")));
    saveAs("a/b");
    save("Friends");
    EXPECT_EQ(bytesOf("Friends.ofg"), kEverybody);
    EXPECT_FALSE(isLocked());
    EXPECT_TRUE(isShown("lstGroup"));
}

TEST_F(SavedGroup, IsWholeWhereOneThatWouldReplaceItFails) {
    openToDefine();
    save("Friends");
    const ReadOnlyFolder readOnly(QDir(pathOf("")).path());
    if (!readOnly.holdsBack())
        GTEST_SKIP() << "this user may write whatever the permissions say";
    expectReport(refusalOf(QStringLiteral("Friends.ofg")));
    saveAs("Friends");
    EXPECT_EQ(bytesOf("Friends.ofg"), kEverybody);
}

TEST_F(SavedGroup, CannotReplaceAFolderOfItsName) {
    ASSERT_TRUE(QDir(pathOf("")).mkdir(QStringLiteral("Friends.ofg")));
    openToDefine();
    expectReport(refusalOf(QStringLiteral("Friends.ofg")));
    saveAs("Friends");
    EXPECT_TRUE(isLocked());
}

TEST_F(SavedGroup, IsNotDoneWhereItCannotTakeItsPlace) {
    const auto makeFolder = [this] { QDir(pathOf("")).mkdir(QStringLiteral("Friends.ofg")); };
    const QString failure = descriptionOf([&] {
        GroupWriter file(QStringLiteral("Friends.ofg"));
        makeFolder();
        file.Close();
    });
    QDir(pathOf("")).rmdir(QStringLiteral("Friends.ofg"));
    openToDefine();
    host_.onYield(makeFolder);
    expectReport(failure);
    saveAs("Friends");
    EXPECT_TRUE(isLocked());
}

TEST_F(SavedGroup, ReplacesTheGroupWhenItIsDoubleClicked) {
    make("Friends.ofg", "3,\"Zed\"\r\n1,\"Smith, Anna\"\r\n");
    open();
    for (const int tab : {2, 4}) {
        clickTab(tab);
        for (int time = 0; time < 2; ++time) {
            doubleClickEntry(files(), 0);
            EXPECT_EQ(textsOf(group()), QStringList({kAnna, kZed}));
            EXPECT_EQ(numbersOf(group()), (std::vector<Long>{1, 3}));
        }
        EXPECT_EQ(grid().cells().Rows(), 3);
        EXPECT_EQ(textsOf(total()), QStringList({kBen, kAnna, kZed}));
    }
}

TEST_F(SavedGroup, IsComparedByTheNumbersOfItsMembersAndShownByTheirTexts) {
    make("Friends.ofg", "1,\"Once, Anna\"\r\n");
    openTab(2);
    doubleClickEntry(files(), 0);
    pickDate(kAnnaBorn);
    EXPECT_EQ(row(2), QStringLiteral("Once, Anna|^|0%|^|^|0%|^|^|0%|^"));
}

TEST_F(SavedGroup, WithSomebodyWhoIsGoneLoadsAndFailsAtTheCalculation) {
    make("Friends.ofg", "99,\"Gone, Gil\"\r\n1,\"Smith, Anna\"\r\n");
    openTab(2);
    doubleClickEntry(files(), 0);
    EXPECT_EQ(textsOf(group()), QStringList({QStringLiteral("Gone, Gil"), kAnna}));
    expectReport(noCurrentRecord());
    press("cmdTransfer");
    EXPECT_EQ(compared(), QStringList(QString()));
}

TEST_F(SavedGroup, MayBeEmpty) {
    make("Friends.ofg", "");
    openTab(2);
    group().AddItem(kZed);
    doubleClickEntry(files(), 0);
    EXPECT_EQ(group().ListCount(), 0);
}

TEST_F(SavedGroup, ThatBreaksOffIsLoadedAsFarAsItGoesAndReported) {
    make("Friends.ofg", "3,\"Zed\"\r\n1,\"Smi");
    openTab(2);
    expectReport(QStringLiteral("Input past end of file"));
    doubleClickEntry(files(), 0);
    EXPECT_EQ(textsOf(group()), QStringList(kZed));
}

TEST_F(SavedGroup, OfRandomBytesIsReportedAndLeavesNobody) {
    make("Friends.ofg", QByteArray::fromHex("00ff80313b2c220a89504e47fffe2c222c"));
    openTab(2);
    group().AddItem(kZed);
    expectReport(QStringLiteral("Type mismatch"));
    doubleClickEntry(files(), 0);
    EXPECT_EQ(group().ListCount(), 0);
    EXPECT_FALSE(isLocked());
}

TEST_F(SavedGroup, ThatIsGoneIsReportedAndLeavesNobody) {
    make("Friends.ofg", "3,\"Zed\"\r\n");
    openTab(2);
    QFile::remove(pathOf("Friends.ofg"));
    group().AddItem(kZed);
    expectReport(failureOf(QStringLiteral("Friends.ofg")));
    doubleClickEntry(files(), 0);
    EXPECT_EQ(group().ListCount(), 0);
}

TEST_F(SavedGroup, ThatNobodySelectedIsReported) {
    openTab(2);
    expectReport(failureOf(QString()));
    Q_EMIT files().DblClick();
}

TEST_F(SavedGroup, OfAMillionLinesIsLoaded) {
    QByteArray lines;
    for (int member = 0; member < 1'000'000; ++member)
        lines += QByteArray::number(member) + ",\"x\"\r\n";
    make("Friends.ofg", lines);
    openTab(2);
    doubleClickEntry(files(), 0);
    EXPECT_EQ(group().ListCount(), 1'000'000);
    EXPECT_EQ(group().ItemData(999'999), 999'999);
}

TEST_F(SavedGroup, GoesWithoutAQuestionAndStaysInTheList) {
    make("Friends.ofg", "3,\"Zed\"\r\n");
    make("Work.ofg", "1,\"Smith, Anna\"\r\n");
    openTab(4);
    doubleClickEntry(files(), 0);
    press("cmdDelete");
    EXPECT_FALSE(QFile::exists(pathOf("Friends.ofg")));
    EXPECT_EQ(textsOf(files()), QStringList(QStringLiteral("Work.ofg")));
    EXPECT_EQ(textsOf(group()), QStringList(kZed));
    EXPECT_FALSE(isLocked());
    press("cmdDelete");
    EXPECT_TRUE(QFile::exists(pathOf("Work.ofg")));
    EXPECT_TRUE(host_.messages().empty());
}

TEST_F(SavedGroup, ThatCannotBeDeletedIsReportedAndLeavesTheLock) {
    make("Friends.ofg", "3,\"Zed\"\r\n");
    openTab(4);
    clickEntry(files(), 0);
    QFile::remove(pathOf("Friends.ofg"));
    expectReport(descriptionOf([] { deleteGroupFile(QStringLiteral("Friends.ofg")); }));
    press("cmdDelete");
    EXPECT_TRUE(isLocked());
    EXPECT_EQ(files().ListCount(), 1);
    form_->close();
    EXPECT_FALSE(form_->isVisible());
}

}  // namespace
