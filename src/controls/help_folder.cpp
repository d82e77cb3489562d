// What may be read of the folder of the help.
#include "controls/help_folder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStringDecoder>

namespace {

constexpr qint64 kLargestFile = qint64{1024} * 1024;  // bytes; larger ones keep the user waiting

QString decoded(const QByteArray& html) {
    return QStringDecoder::decoderForHtml(html).decode(html);
}

}  // namespace

HelpFolder::HelpFolder(const QString& helpFile) {
    const QFileInfo file(helpFile);
    path_ = QFileInfo(file.dir().filePath(file.completeBaseName())).canonicalFilePath();
    contents_ = file.completeBaseName() + QStringLiteral(".hhc");
}

std::vector<HelpTopic> HelpFolder::topics() const {
    return helpTopics(decoded(read(QUrl::fromLocalFile(path_ + u'/' + contents_))));
}

// Help compilers take both slashes between folders.
QUrl HelpFolder::addressOf(const HelpTopic& topic) const {
    QString page = topic.page;
    page.replace(u'\\', u'/');
    return QUrl::fromLocalFile(path_ + u'/').resolved(QUrl(page));
}

bool HelpFolder::hasPage(const QUrl& address) const {
    const QString suffix = QFileInfo(address.path()).suffix().toLower();
    return (suffix == QStringLiteral("html") || suffix == QStringLiteral("htm")) &&
           !pathOf(address).isEmpty();
}

QByteArray HelpFolder::read(const QUrl& address) const {
    const QString path = pathOf(address);
    QFile file(path);
    return !path.isEmpty() && file.open(QIODevice::ReadOnly) ? file.read(kLargestFile)
                                                             : QByteArray();
}

// The path of a file that may be read, else "". A link of the file system may lead out of the
// folder, and what is no regular file may never end.
QString HelpFolder::pathOf(const QUrl& address) const {
    const QString within = path_ + u'/';
    const QFileInfo file(QFileInfo(address.toLocalFile()).canonicalFilePath());
    const bool isInside = !path_.isEmpty() && file.filePath().startsWith(within);
    return isInside && file.isFile() && file.size() <= kLargestFile ? file.filePath() : QString();
}
