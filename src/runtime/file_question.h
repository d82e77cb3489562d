// A question for a file, and its answer, as plain data.
#pragma once

#include <QObject>
#include <QString>
#include <vector>

enum class FilePurpose { Open, Save };

// A choice of files by their names.
struct FileFilter {
    QString caption;
    QString pattern;  // "*.rtf"; it matches without regard to case

    friend bool operator==(const FileFilter&, const FileFilter&) = default;
};

// The user may answer the name of a file that does not exist.
struct FileQuestion {
    FilePurpose purpose = FilePurpose::Open;
    QString title = {};
    QString folder = {};    // that the user begins in
    QString fileName = {};  // that is proposed
    std::vector<FileFilter> filters = {};
    int filterIndex = 0;            // of the one that is proposed, from 1; 0 is the first
    QString defaultExtension = {};  // of a name that has none, without its full stop
    bool asksBeforeOverwriting = false;
    QObject* owner = nullptr;  // the window that waits for the answer
};

struct ChosenFile {
    QString path;
    int filterIndex;  // that of the filter, counted from 1
};
