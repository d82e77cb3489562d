// The list of the files in a folder.
#include "controls/file_list_box.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "support/event_counter.h"
#include "support/files.h"
#include "support/printing.h"
#include "support/recording_host.h"

namespace {

class FileList : public testing::Test {
  protected:
    FileList() {
        list_.setPath(folder_.path());
        list_.setPattern(QStringLiteral("*.ofp"));
    }

    void make(const QString& name) { makeFile(folder_.filePath(name)); }

    QStringList names() const {
        QStringList all;
        for (int i = 0; i < list_.ListCount(); ++i)
            all += list_.List(i);
        return all;
    }

    QTemporaryDir folder_;
    RecordingHost host_;
    FileListBox list_;
};

TEST_F(FileList, ShowsWhatMatchesWithItsExtensionInOrderOfName) {
    for (const char* name : {"Zed.ofp", "Émile.ofp", "smith.OFP", "abe.ofp", "team.ofg"})
        make(QString::fromUtf8(name));
    list_.Refresh();
    EXPECT_EQ(names(), QStringList({QStringLiteral("abe.ofp"), QStringLiteral("Émile.ofp"),
                                    QStringLiteral("smith.OFP"), QStringLiteral("Zed.ofp")}));
}

TEST_F(FileList, ShowsAnotherStateAfterRefreshOnlyAndWithoutASelection) {
    make(QStringLiteral("abe.ofp"));
    list_.Refresh();
    list_.setListIndex(0);
    make(QStringLiteral("Zed.ofp"));
    EXPECT_EQ(names(), QStringList(QStringLiteral("abe.ofp")));
    EXPECT_EQ(list_.FileName(), QStringLiteral("abe.ofp"));
    const EventCounter clicks(list_, &ListBox::Click);
    list_.Refresh();
    EXPECT_EQ(list_.ListCount(), 2);
    EXPECT_EQ(list_.ListIndex(), -1);
    EXPECT_EQ(list_.FileName(), QString());
    EXPECT_EQ(clicks.fired(), 0);
}

TEST_F(FileList, KnowsItsFolderAndPattern) {
    EXPECT_EQ(list_.Path(), folder_.path());
    EXPECT_EQ(list_.Pattern(), QStringLiteral("*.ofp"));
}

}  // namespace
