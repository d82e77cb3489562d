// The following of long values.
#include "store/jet/long_value.h"

#include "store/jet/row_page.h"

namespace {

constexpr qsizetype kHeader = 12;
constexpr qsizetype kPointer = 4;  // in the header
constexpr qsizetype kPointerSize = 4;
constexpr std::uint32_t kInField = 0x80000000;
constexpr std::uint32_t kInOneRow = 0x40000000;
constexpr std::uint32_t kLength = 0x3FFFFFFF;

// Sees that a walk of any length visits no place twice.
class CircleWatch {
  public:
    explicit CircleWatch(std::uint32_t first) : mark_(first) {}

    void visit(std::uint32_t place) {
        if (place == mark_)
            throw JetDamage(QStringLiteral("a long value runs in a circle"));
        if (++steps_ == nextMark_) {
            mark_ = place;
            nextMark_ *= 2;
        }
    }

  private:
    std::uint32_t mark_;
    quint64 steps_ = 0;
    quint64 nextMark_ = 1;
};

// The bytes of one piece.
QByteArray pieceAt(std::uint32_t pointer, JetPages& pages, ReadAllowance& allowance) {
    const JetPointer place(pointer);
    const RowPage page(pages, place.page);
    if (page.owner() != RowPage::kLongValues || page.isHidden(place.row) ||
        page.hasMoved(place.row))
        throw JetDamage(QStringLiteral("a long value is not where it should be"));
    const ByteView piece = page.rowAt(place.row);
    allowance.take(piece.length());
    return piece.copy();
}

QByteArray chainFrom(std::uint32_t pointer, JetPages& pages, ReadAllowance& allowance) {
    CircleWatch watch(pointer);
    QByteArray bytes;
    while (pointer != 0) {
        const QByteArray piece = pieceAt(pointer, pages, allowance);
        pointer = ByteView(piece).numberAt<std::uint32_t>(0);
        bytes += QByteArrayView(piece).sliced(kPointerSize);
        watch.visit(pointer);
    }
    return bytes;
}

QByteArray bytesOf(ByteView field, std::uint32_t flags, JetPages& pages, ReadAllowance& allowance) {
    if (flags & kInField)
        return field.from(kHeader).copy();
    const auto pointer = field.numberAt<std::uint32_t>(kPointer);
    return flags & kInOneRow ? pieceAt(pointer, pages, allowance)
                             : chainFrom(pointer, pages, allowance);
}

}  // namespace

QByteArray longValue(ByteView field, JetPages& pages, ReadAllowance& allowance) {
    if (field.length() == 0)
        return {};
    const auto header = field.numberAt<std::uint32_t>(0);
    // One of no bytes need not lead to any.
    if ((header & (kInField | kLength)) == 0)
        return {};
    QByteArray bytes = bytesOf(field, header, pages, allowance);
    if (bytes.size() != static_cast<qsizetype>(header & kLength))
        throw JetDamage(QStringLiteral("a long value has not its length"));
    return bytes;
}
