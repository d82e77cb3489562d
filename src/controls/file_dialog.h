// The dialog that asks for a file's name.
#pragma once

#include <QObject>
#include <QString>
#include <vector>

#include "cycles/integers.h"
#include "runtime/file_question.h"

class QWidget;

// What was answered last stays, and is proposed when the dialog is shown again: a dialog that the
// user cancels changes nothing. At first no filter has been chosen and there is no name but one
// that was set. A file of the name need not exist.
class FileDialog final : public QObject {
    Q_OBJECT

  public:
    // The only flag there is: to ask before a file is overwritten.
    static constexpr Long kOverwritePrompt = 2;

    explicit FileDialog(QWidget* owner);

    void setDialogTitle(const QString& title) { title_ = title; }
    void setInitDir(const QString& folder) { folder_ = folder; }

    // Captions and patterns in turn: "Rich Text (*.rtf)|*.rtf|All files (*.*)|*.*".
    void setFilter(const QString& filter);

    void setDefaultExt(const QString& extension) { defaultExtension_ = extension; }

    void setFlags(Long flags) { flags_ = flags; }

    // Whether a dialog that the user cancels raises 32755 (Cancel was selected).
    void setCancelError(bool raises) { cancelError_ = raises; }

    // The filter that was chosen, counted from 1; 0 for none.
    int FilterIndex() const { return filterIndex_; }
    void setFileName(const QString& name) { fileName_ = name; }
    const QString& FileName() const { return fileName_; }

    void ShowOpen();
    void ShowSave();

  private:
    void show(FilePurpose purpose);

    QString title_;
    QString folder_;
    std::vector<FileFilter> filters_;
    QString defaultExtension_;
    Long flags_ = 0;
    bool cancelError_ = false;
    int filterIndex_ = 0;
    QString fileName_;
};
