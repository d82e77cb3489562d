// The folder with the pages of the help.
#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>
#include <vector>

#include "controls/help_topics.h"

// The folder beside a help file that has its name without the suffix. "ondarahelp.chm" has the
// folder "ondarahelp" with pages in HTML, their pictures, and the contents "ondarahelp.hhc": what
// the help file is compiled from.
//
// Nothing outside the folder is ever read, wherever a page or a link in the folder leads, and no
// file that is too large for a page. What cannot be read is empty.
class HelpFolder {
  public:
    explicit HelpFolder(const QString& helpFile);

    std::vector<HelpTopic> topics() const;

    // The address of a page of the contents.
    QUrl addressOf(const HelpTopic& topic) const;

    // Whether there is a page at this address.
    bool hasPage(const QUrl& address) const;

    // The bytes of a page, a picture or a style sheet.
    QByteArray read(const QUrl& address) const;

  private:
    QString pathOf(const QUrl& address) const;

    QString path_;  // absolute and without links; "" if there is no such folder
    QString contents_;
};
