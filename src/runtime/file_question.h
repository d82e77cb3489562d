// A question for a file, and its answer, as plain data.
#pragma once

#include <QObject>
#include <QString>
#include <QStringList>

enum class FilePurpose { Open, Save };

struct FileQuestion {
    FilePurpose purpose = FilePurpose::Open;
    QString title = {};
    QString folder = {};            // that the user begins in
    QStringList filters = {};       // "Rich Text (*.rtf)", the first one is chosen at first
    QString defaultExtension = {};  // of a name that has none, without its full stop
    bool asksBeforeOverwriting = false;
    QObject* owner = nullptr;  // the window that waits for the answer
};

struct ChosenFile {
    QString path;
    int filterIndex;  // that of the filter, counted from 1
};
