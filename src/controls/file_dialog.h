// The dialog that asks for a file's name.
#pragma once

#include <QObject>
#include <QStringList>

#include "cycles/integers.h"
#include "runtime/file_question.h"

class QWidget;

// What was answered last stays: a dialog that the user cancels changes nothing. At first no filter
// has been chosen and there is no name.
class FileDialog final : public QObject {
    Q_OBJECT

  public:
    // The only flag there is: to ask before a file is overwritten.
    static constexpr Long kOverwritePrompt = 2;

    explicit FileDialog(QWidget* owner);

    void setDialogTitle(const QString& title) { title_ = title; }
    void setInitDir(const QString& folder) { folder_ = folder; }

    // Captions and patterns in turn: "Rich Text (*.rtf)|*.rtf|All files (*.*)|*.*". The dialog goes
    // by the patterns in the captions; those behind them are passed over.
    void setFilter(const QString& filter);

    void setDefaultExt(const QString& extension) { defaultExtension_ = extension; }

    void setFlags(Long flags) { flags_ = flags; }

    // The filter that was chosen, counted from 1; 0 for none.
    int FilterIndex() const { return filterIndex_; }
    const QString& FileName() const { return fileName_; }

    void ShowOpen();
    void ShowSave();

  private:
    void show(FilePurpose purpose);

    QString title_;
    QString folder_;
    QStringList filters_;
    QString defaultExtension_;
    Long flags_ = 0;
    int filterIndex_ = 0;
    QString fileName_;
};
