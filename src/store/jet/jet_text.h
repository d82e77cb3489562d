// The texts of a Jet file.
#pragma once

#include <QString>

#include "store/jet/byte_view.h"
#include "store/jet/jet_format.h"

// The text of these bytes: in Windows-1252 in Jet 3, in UTF-16 in Jet 4, where it may be
// compressed. Raises JetDamage for half a character.
QString jetText(ByteView bytes, const JetFormat& format);

// The same of a name in a definition, which is never compressed.
QString jetName(ByteView bytes, const JetFormat& format);
