// The pages of a Jet file.
#pragma once

#include <QByteArray>
#include <QIODevice>
#include <QString>
#include <array>
#include <cstdint>
#include <limits>
#include <memory>

#include "store/jet/jet_format.h"

// Reads pages of a file as they are asked for, and keeps the last few: so it takes the same memory
// for a file of any size. A page beyond the end raises JetDamage; what the system cannot read
// raises JetFailure with the number of its error.
class JetPages {
  public:
    // The path is for the errors of others. Raises JetFailure for what is no Jet file that can be
    // read.
    JetPages(std::unique_ptr<QIODevice> device, QString path);

    const QString& path() const { return path_; }
    const JetFormat& format() const { return format_; }
    qint64 bytes() const { return bytes_; }

    // A page that must be of the type.
    QByteArray page(std::uint32_t number, JetPageType type);

  private:
    struct KeptPage {
        std::uint32_t number = std::numeric_limits<std::uint32_t>::max();
        QByteArray bytes;
    };
    static constexpr std::size_t kKeptPages = 64;

    QByteArray read(qint64 place, qsizetype size);

    std::unique_ptr<QIODevice> device_;
    QString path_;
    qint64 bytes_;
    const JetFormat& format_;
    std::array<KeptPage, kKeptPages> kept_;
};
