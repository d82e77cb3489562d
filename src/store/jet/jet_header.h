// The first page of a Jet file, which says what can be read of it.
#pragma once

#include <QByteArray>

#include "store/jet/jet_format.h"

// The bytes of the beginning that tell whether a file is a Jet file.
inline constexpr int kJetSignature = 19;

// Whether a file that begins with these bytes is a Jet file, of whatever version. Later ones are
// called ACE.
bool isJet(const QByteArray& beginning);

// The bytes of the header.
inline constexpr int kJetHeader = 0x98;

// The format of a file with that header, which may be cut short. Raises JetFailure for what is no
// Jet file or none that can be read: another version, encrypted, with a password, or with texts in
// a code page other than Windows-1252.
const JetFormat& formatOfHeader(const QByteArray& header);
