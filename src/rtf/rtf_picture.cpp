// The words and bytes of a picture.
#include "rtf/rtf_picture.h"

#include <algorithm>

#include "rtf/dib.h"

namespace {

// A length in twips at a scale in per cent.
Long scaled(Long length, Long scale) {
    return static_cast<Long>(
        std::clamp<std::int64_t>(std::int64_t{length} * scale / 100, 0, kLongest));
}

}  // namespace

void RtfPicture::takeWord(QStringView word, std::optional<Long> number) {
    if (word == u"pngblip" || word == u"jpegblip")
        kind_ = Kind::File;
    else if (word == u"dibitmap")
        kind_ = Kind::Bitmap;
    else if (word == u"picwgoal")
        width_ = number.value_or(0);
    else if (word == u"pichgoal")
        height_ = number.value_or(0);
    else if (word == u"picscalex")
        widthScale_ = number.value_or(widthScale_);
    else if (word == u"picscaley")
        heightScale_ = number.value_or(heightScale_);
}

void RtfPicture::addDigits(QStringView text) {
    digits_ += text.toLatin1();
}

void RtfPicture::addBytes(QStringView bytes) {
    bytes_ += bytes.toLatin1();
}

std::optional<RichPicture> RtfPicture::finish() const {
    const QByteArray data = QByteArray::fromHex(digits_) + bytes_;
    const QByteArray file = kind_ == Kind::Bitmap ? bmpFile(data) : data;
    if (kind_ == Kind::Unknown || file.isEmpty())
        return std::nullopt;
    return RichPicture{.file = file,
                       .width = scaled(width_, widthScale_),
                       .height = scaled(height_, heightScale_)};
}
