// Bytes that nobody vouches for, read within their bounds alone.
#pragma once

#include <QByteArray>
#include <QtEndian>
#include <bit>
#include <cstdint>
#include <type_traits>

#include "store/jet/jet_errors.h"

// A view of bytes that others keep. Numbers are little-endian, places are counted from 0; whatever
// does not lie within the view raises JetDamage.
class ByteView {
  public:
    ByteView() = default;
    explicit ByteView(const QByteArray& bytes) : data_(bytes.constData()), size_(bytes.size()) {}

    const char* data() const { return data_; }
    qsizetype length() const { return size_; }

    template <class Number>
    Number numberAt(qsizetype place) const {
        require(place, sizeof(Number));
        if constexpr (std::is_floating_point_v<Number>) {
            using Bits = std::conditional_t<sizeof(Number) == 4, std::uint32_t, std::uint64_t>;
            return std::bit_cast<Number>(qFromLittleEndian<Bits>(data_ + place));
        } else {
            return qFromLittleEndian<Number>(data_ + place);
        }
    }

    // A number of one or two bytes.
    int numberAt(qsizetype place, int bytes) const {
        return bytes == 1 ? numberAt<std::uint8_t>(place) : numberAt<std::uint16_t>(place);
    }

    ByteView part(qsizetype place, qsizetype size) const {
        require(place, size);
        return {data_ + place, size};
    }
    ByteView from(qsizetype place) const { return part(place, size_ - place); }

    QByteArray copy() const { return {data_, size_}; }

  private:
    ByteView(const char* data, qsizetype size) : data_(data), size_(size) {}

    void require(qsizetype place, qsizetype size) const {
        if (place < 0 || size < 0 || size > size_ || place > size_ - size)
            throw JetDamage(QStringLiteral("something in it breaks off"));
    }

    const char* data_ = nullptr;
    qsizetype size_ = 0;
};
