// The dialog for a file's name.
#include "controls/file_dialog.h"

#include <gtest/gtest.h>

#include <QWidget>

#include "support/errors.h"
#include "support/printing.h"
#include "support/recording_host.h"

namespace {

const ChosenFile kNotes{QStringLiteral("/home/anna/notes.txt"), 2};

class FileDialogTest : public testing::Test {
  protected:
    const FileQuestion& asked() { return host_.fileQuestions().back(); }

    RecordingHost host_;
    QWidget window_;
    FileDialog dialog_{&window_};
};

}  // namespace

TEST_F(FileDialogTest, AsksWithItsProperties) {
    dialog_.setDialogTitle(QStringLiteral("Save Report ..."));
    dialog_.setInitDir(QStringLiteral("/home/anna"));
    dialog_.setDefaultExt(QStringLiteral("rtf"));
    dialog_.setFilter(QStringLiteral("Rich Text (*.rtf)|*.rtf|All files (*.*)|*.*"));
    host_.expectFileQuestion(std::nullopt);
    dialog_.ShowSave();
    EXPECT_EQ(asked().purpose, FilePurpose::Save);
    EXPECT_EQ(asked().title, u"Save Report ...");
    EXPECT_EQ(asked().folder, u"/home/anna");
    EXPECT_EQ(asked().defaultExtension, u"rtf");
    EXPECT_EQ(asked().fileName, QString());
    EXPECT_EQ(asked().filters, (std::vector<FileFilter>{
                                   {QStringLiteral("Rich Text (*.rtf)"), QStringLiteral("*.rtf")},
                                   {QStringLiteral("All files (*.*)"), QStringLiteral("*.*")}}));
    EXPECT_EQ(asked().owner, &window_);
    host_.expectFileQuestion(std::nullopt);
    dialog_.ShowOpen();
    EXPECT_EQ(asked().purpose, FilePurpose::Open);
}

TEST_F(FileDialogTest, HasTheFiltersThatItWasGivenLast) {
    dialog_.setFilter(QStringLiteral("All files (*.*)|*.*"));
    dialog_.setFilter(QStringLiteral("Rich Text (*.rtf)|*.rtf"));
    host_.expectFileQuestion(std::nullopt);
    dialog_.ShowSave();
    EXPECT_EQ(
        asked().filters,
        (std::vector<FileFilter>{{QStringLiteral("Rich Text (*.rtf)"), QStringLiteral("*.rtf")}}));
}

TEST_F(FileDialogTest, AsksBeforeOverwritingByItsFlag) {
    host_.expectFileQuestion(std::nullopt);
    dialog_.ShowSave();
    EXPECT_FALSE(asked().asksBeforeOverwriting);
    dialog_.setFlags(FileDialog::kOverwritePrompt);
    host_.expectFileQuestion(std::nullopt);
    dialog_.ShowSave();
    EXPECT_TRUE(asked().asksBeforeOverwriting);
}

TEST_F(FileDialogTest, KeepsTheLastAnswerWhenItIsCancelled) {
    EXPECT_EQ(dialog_.FilterIndex(), 0);
    EXPECT_EQ(dialog_.FileName(), QString());
    host_.expectFileQuestion(kNotes);
    dialog_.ShowSave();
    host_.expectFileQuestion(std::nullopt);
    dialog_.ShowSave();
    EXPECT_EQ(dialog_.FilterIndex(), 2);
    EXPECT_EQ(dialog_.FileName(), kNotes.path);
}

TEST_F(FileDialogTest, ProposesTheNameThatItWasGivenAndThenTheLastAnswer) {
    dialog_.setFileName(QStringLiteral("names.mdb"));
    host_.expectFileQuestion(kNotes);
    dialog_.ShowOpen();
    EXPECT_EQ(asked().fileName, u"names.mdb");
    EXPECT_EQ(asked().filterIndex, 0);
    host_.expectFileQuestion(std::nullopt);
    dialog_.ShowOpen();
    EXPECT_EQ(asked().fileName, kNotes.path);
    EXPECT_EQ(asked().filterIndex, 2);
}

TEST_F(FileDialogTest, RaisesAnErrorWhenItIsCancelledWhereItIsToldTo) {
    dialog_.setCancelError(true);
    host_.expectFileQuestion(std::nullopt);
    EXPECT_EQ(descriptionOf([this] { dialog_.ShowOpen(); }), u"Cancel was selected.");
    host_.expectFileQuestion(kNotes);
    EXPECT_EQ(errorOf([this] { dialog_.ShowOpen(); }), 0);
    EXPECT_EQ(dialog_.FileName(), kNotes.path);
    host_.expectFileQuestion(std::nullopt);
    EXPECT_EQ(errorOf([this] { dialog_.ShowOpen(); }), 32755);
    EXPECT_EQ(dialog_.FileName(), kNotes.path);
}
