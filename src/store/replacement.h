// A new file in the place of an old one, which is kept.
#pragma once

#include <QFile>
#include <QString>
#include <QStringList>
#include <functional>

// Replaces a file by one that is made beside it, in steps of which each leaves either the old state
// or the new one, wherever the machine stops: the new file is made under another name, the old one
// is copied to the name under which it is kept, and then the new one takes its place at once. What
// such a stop leaves is removed or used by the next replacement.
//
// Until commit() nothing that was there before is touched, and without it nothing else stays. No
// file is ever overwritten: where "Ondara2 (Jet).mdb" exists with other contents, the name is
// "Ondara2 (Jet 2).mdb", and so on. Errors are those of file_error.h.
class Replacement {
  public:
    explicit Replacement(const QString& path);
    ~Replacement();
    Q_DISABLE_COPY_MOVE(Replacement)

    // Where the new file is to be made. There is none yet.
    const QString& newPath() const { return newPath_; }

    // Keeps a copy of the old file with this word in its name, and returns the name.
    QString keepOld(const QString& word);

    // The same of a text file with these bytes.
    QString addText(const QString& word, const QByteArray& bytes);

    // Puts the new file, of which the disk must have everything, in the place of the old one. It
    // gets the permissions of that.
    void commit();

  private:
    QString nameFor(const QString& word, const QString& suffix,
                    const std::function<bool(const QString&)>& isSame) const;
    void addUnlessThere(const QString& name, const std::function<void(QFile&)>& write);

    QString path_;
    QString newPath_;
    QString halfPath_;  // of any other file until it is whole
    QStringList made_;
};
