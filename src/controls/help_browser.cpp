// Where the pages of the help come from, and where links may lead.
#include "controls/help_browser.h"

#include <QImage>

namespace {

constexpr int kMargin = 16;  // pixels, round the page

QImage nothingToSee() {
    QImage image(1, 1, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

}  // namespace

HelpBrowser::HelpBrowser(const HelpFolder& folder, QWidget* parent)
    : QTextBrowser(parent), folder_(folder) {
    document()->setDocumentMargin(kMargin);
}

// A page comes first, and then what stands in it. There is an answer to everything: without one, Qt
// would look for the file by itself, anywhere.
QVariant HelpBrowser::loadResource(int type, const QUrl& name) {
    if (type == QTextDocument::HtmlResource)
        page_ = name;
    const QByteArray bytes = folder_.read(page_.resolved(name));
    if (type != QTextDocument::ImageResource)
        return bytes;
    const QImage image = QImage::fromData(bytes);
    return image.isNull() ? nothingToSee() : image;
}

void HelpBrowser::doSetSource(const QUrl& name, QTextDocument::ResourceType) {
    const QUrl address = source().resolved(name);
    if (folder_.hasPage(address))
        QTextBrowser::doSetSource(address, QTextDocument::HtmlResource);
}
