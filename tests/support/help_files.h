// A help file of one test, with the folder of its pages beside it.
#pragma once

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QUrl>

#include "support/files.h"

// The help is "test.chm", in a directory that goes with everything in it when the test ends.
class HelpFiles {
  public:
    // The path of the help file. It is not there; only its folder is read.
    QString helpFile() const { return directory_.filePath(QStringLiteral("test.chm")); }

    // The path of a file, from the folder of the pages on.
    QString path(const QString& name) const {
        return directory_.filePath(QStringLiteral("test/") + name);
    }

    QUrl address(const QString& name) const { return QUrl::fromLocalFile(path(name)); }

    void write(const QString& name, const QByteArray& bytes) const {
        QDir().mkpath(QFileInfo(path(name)).path());
        makeFile(path(name), bytes);
    }

    void writeContents(const QByteArray& bytes) const { write(QStringLiteral("test.hhc"), bytes); }

    // An entry of the contents, as help compilers read them.
    static QByteArray entry(const QByteArray& title, const QByteArray& page) {
        return "<LI><OBJECT type=\"text/sitemap\"><param name=\"Name\" value=\"" + title +
               "\"><param name=\"Local\" value=\"" + page + "\"></OBJECT>\n";
    }

  private:
    QTemporaryDir directory_;
};
