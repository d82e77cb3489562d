// A folder that cannot be written, for a while.
#pragma once

#include <QDir>
#include <QFile>

// Takes the permission to write from a folder for as long as this lives. Neither every system nor
// every user is held back by that.
class ReadOnlyFolder {
  public:
    explicit ReadOnlyFolder(const QString& path) : path_(path) {
        QFile::setPermissions(path_, QFile::ReadOwner | QFile::ExeOwner);
    }
    ~ReadOnlyFolder() {
        QFile::setPermissions(path_, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    Q_DISABLE_COPY_MOVE(ReadOnlyFolder)

    bool holdsBack() const { return !QDir(path_).mkdir(QStringLiteral("new")); }

  private:
    QString path_;
};
