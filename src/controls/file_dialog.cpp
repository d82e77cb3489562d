// The question to the host, and what stays of its answer.
#include "controls/file_dialog.h"

#include <QStringList>
#include <QWidget>

#include "runtime/errors.h"
#include "runtime/host.h"

FileDialog::FileDialog(QWidget* owner) : QObject(owner) {}

void FileDialog::setFilter(const QString& filter) {
    const QStringList parts = filter.split(u'|');
    filters_.clear();
    for (qsizetype part = 0; part + 1 < parts.size(); part += 2)
        filters_.push_back({.caption = parts[part], .pattern = parts[part + 1]});
}

void FileDialog::ShowOpen() {
    show(FilePurpose::Open);
}

void FileDialog::ShowSave() {
    show(FilePurpose::Save);
}

void FileDialog::show(FilePurpose purpose) {
    const std::optional<ChosenFile> chosen =
        host().chooseFile({.purpose = purpose,
                           .title = title_,
                           .folder = folder_,
                           .fileName = fileName_,
                           .filters = filters_,
                           .filterIndex = filterIndex_,
                           .defaultExtension = defaultExtension_,
                           .asksBeforeOverwriting = (flags_ & kOverwritePrompt) != 0,
                           .owner = parent()});
    if (!chosen && cancelError_)
        throw RuntimeError(ErrorNumber::Cancelled);
    if (!chosen)
        return;
    fileName_ = chosen->path;
    filterIndex_ = chosen->filterIndex;
}
