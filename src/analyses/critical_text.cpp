// The texts of critical_text.h and where their styles begin and end.
#include "analyses/critical_text.h"

#include <utility>

namespace {

constexpr int kHeadingPoints = 10;
constexpr int kBodyPoints = 8;
constexpr Long kBlack = 0;
constexpr Long kRed = 255;
constexpr Long kBlue = 0xFF0000;
constexpr Long kGreen = 65280;

struct Paragraph {
    QString heading;
    Long colour;
    QString body;
};

std::vector<Paragraph> paragraphs() {
    return {
        {QStringLiteral("Physical critical day"), kRed,
         QStringLiteral(
             "Reactions are remarkably slower. Accidents are more likely to happen, due to too "
             "much self-confidence. You are more likely to fall ill, varying from a simple cold or "
             "measles to acute appendicitis or a heart attack. Avoid routine surgery. Instead, "
             "look for a day with high and rising cycles. A natural birth usually occurs on a "
             "physical critical day.")},
        {QStringLiteral("Emotional critical day"), kBlue,
         QStringLiteral(
             "On this day people tend to be very emotional. Emotions are intense and people tend "
             "to be nervous. In about 50% of the natural births, contractions start on an "
             "emotional critical day, especially if the mother has a nervous predisposition.")},
        {QStringLiteral("Intellectual critical day"), kGreen,
         QStringLiteral(
             "A day with often slow and careless intellectual reactions. Try to avoid taking "
             "important decisions. These days are characterised by a lack of concentration, "
             "absent-mindedness and poor judgement. There is a tendency to be intellectually "
             "\"dumb\". Women over 35 often give birth on an intellectual critical day.")}};
}

// Puts texts one behind the other, each in a style, and counts a line end as one character.
class StyledWriter {
  public:
    void write(const QString& text, bool isBold, int points, Long colour) {
        const int length = static_cast<int>(text.size() - text.count(u'\r'));
        written_.ranges.push_back({start_, length, isBold, points, colour});
        written_.text += text;
        start_ += length;
    }

    bool hasText() const { return start_ > 0; }
    CriticalText take() { return std::move(written_); }

  private:
    CriticalText written_;
    int start_ = 0;
};

}  // namespace

CriticalText criticalText() {
    const QString lineEnd = QStringLiteral("\r\n");
    StyledWriter writer;
    for (const auto& [heading, colour, body] : paragraphs()) {
        if (writer.hasText())
            writer.write(lineEnd + lineEnd, false, kBodyPoints, kBlack);
        writer.write(heading, true, kHeadingPoints, colour);
        writer.write(lineEnd + body, false, kBodyPoints, kBlack);
    }
    return writer.take();
}
