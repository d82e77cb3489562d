// The reading of single pages.
#include "store/jet/jet_pages.h"

#include <algorithm>
#include <utility>

#include "store/jet/jet_errors.h"
#include "store/jet/jet_header.h"

namespace {

constexpr qint64 kMostPages = qint64{1} << 24;  // that pointers to rows tell apart

}  // namespace

JetPages::JetPages(std::unique_ptr<QIODevice> device, QString path)
    : device_(std::move(device)),
      path_(std::move(path)),
      bytes_(device_->size()),
      format_(formatOfHeader(read(0, std::min<qint64>(kJetHeader, bytes_)))) {
    if (bytes_ % format_.pageSize != 0)
        throw JetDamage(QStringLiteral("it is cut short"));
    if (bytes_ / format_.pageSize > kMostPages)
        throw JetDamage(QStringLiteral("it is larger than a Jet file can be"));
}

QByteArray JetPages::page(std::uint32_t number, JetPageType type) {
    if (number >= bytes_ / format_.pageSize)
        throw JetDamage(QStringLiteral("page %1 lies beyond its end").arg(number));
    KeptPage& kept = kept_[number % kKeptPages];
    if (kept.number != number) {
        kept.bytes = read(qint64{number} * format_.pageSize, format_.pageSize);
        kept.number = number;
    }
    if (static_cast<unsigned char>(kept.bytes.front()) != static_cast<unsigned char>(type))
        throw JetDamage(QStringLiteral("page %1 is not of the kind that it should be").arg(number));
    return kept.bytes;
}

QByteArray JetPages::read(qint64 place, qsizetype size) {
    QByteArray bytes(size, Qt::Uninitialized);
    if (!device_->seek(place) || device_->read(bytes.data(), size) != size)
        throw JetFailure(ErrorNumber::DeviceIo, device_->errorString());
    return bytes;
}
