// The reader of contents files.
#include "controls/help_topics.h"

#include <QRegularExpression>
#include <QXmlStreamReader>
#include <algorithm>
#include <optional>

namespace {

// The text that stands for itself in a file of tags; what cannot be decoded stands as it is.
QString decoded(const QString& text) {
    QXmlStreamReader reader(QStringLiteral("<text>%1</text>").arg(text));
    reader.readNextStartElement();
    const QString plain = reader.readElementText();
    return reader.hasError() ? text : plain;
}

// The pattern of an attribute, its value in double quotes.
QRegularExpression attributePattern(const char* name) {
    return QRegularExpression(QStringLiteral("\\b%1=\"([^\"]*)\"").arg(QLatin1String(name)),
                              QRegularExpression::CaseInsensitiveOption);
}

QString nameIn(const QString& attributes) {
    static const QRegularExpression name = attributePattern("name");
    return decoded(name.match(attributes).captured(1));
}

QString valueIn(const QString& attributes) {
    static const QRegularExpression value = attributePattern("value");
    return decoded(value.match(attributes).captured(1));
}

bool isTag(const QString& tag, const char* name) {
    return tag.compare(QLatin1String(name), Qt::CaseInsensitive) == 0;
}

class Reader {
  public:
    void take(const QString& tag, const QString& attributes) {
        if (isTag(tag, "ul"))
            ++depth_;
        else if (isTag(tag, "/ul"))
            depth_ = std::max(depth_ - 1, 0);
        else if (isTag(tag, "object"))
            topic_ = HelpTopic{{}, {}, level()};
        else if (isTag(tag, "param"))
            takeParameter(nameIn(attributes), valueIn(attributes));
        else if (isTag(tag, "/object"))
            finishTopic();
    }

    std::vector<HelpTopic> topics;

  private:
    int level() const {
        const int deepest = topics.empty() ? 0 : topics.back().level + 1;
        return std::clamp(depth_ - 1, 0, std::min(deepest, kDeepestHelpLevel));
    }

    void takeParameter(const QString& name, const QString& value) {
        if (topic_ && isTag(name, "Name"))
            topic_->title = value;
        else if (topic_ && isTag(name, "Local"))
            topic_->page = value;
    }

    void finishTopic() {
        if (topic_ && !topic_->title.isEmpty())
            topics.push_back(*topic_);
        topic_.reset();
    }

    std::optional<HelpTopic> topic_;  // the one that is being read
    int depth_ = 0;
};

}  // namespace

// The possessive quantifiers keep the search from going back over what it has seen.
std::vector<HelpTopic> helpTopics(const QString& contents) {
    static const QRegularExpression tag(QStringLiteral("<(/?[a-z]++)([^<>]*+)>"),
                                        QRegularExpression::CaseInsensitiveOption);
    Reader reader;
    for (auto tags = tag.globalMatch(contents); tags.hasNext();) {
        const QRegularExpressionMatch found = tags.next();
        reader.take(found.captured(1), found.captured(2));
    }
    return reader.topics;
}
