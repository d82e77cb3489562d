// The question to the host, and what stays of its answer.
#include "controls/file_dialog.h"

#include <QWidget>

#include "runtime/host.h"

FileDialog::FileDialog(QWidget* owner) : QObject(owner) {}

void FileDialog::setFilter(const QString& filter) {
    const QStringList parts = filter.split(u'|');
    filters_.clear();
    for (qsizetype part = 0; part < parts.size(); part += 2)
        filters_.append(parts[part]);
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
                           .filters = filters_,
                           .defaultExtension = defaultExtension_,
                           .asksBeforeOverwriting = (flags_ & kOverwritePrompt) != 0,
                           .owner = parent()});
    if (!chosen)
        return;
    fileName_ = chosen->path;
    filterIndex_ = chosen->filterIndex;
}
