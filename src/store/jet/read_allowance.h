// How much may still be read out of a file.
#pragma once

#include <QtGlobal>

#include "store/jet/jet_errors.h"

// No byte of a file belongs to two rows. So a file whose rows hold more bytes than it has itself is
// damaged, which ends every loop and keeps what is read from growing beyond the file.
class ReadAllowance {
  public:
    explicit ReadAllowance(qint64 bytes) : bytes_(bytes) {}

    void take(qsizetype bytes) {
        bytes_ -= bytes;
        if (bytes_ < 0)
            throw JetDamage(QStringLiteral("its rows hold more than the whole file"));
    }

  private:
    qint64 bytes_;
};
