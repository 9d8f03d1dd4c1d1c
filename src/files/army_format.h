// The layout of an army file: one record, field after field, little-endian, no header.
#pragma once

#include "army/army.h"

#include <string>
#include <string_view>

namespace warhost {

/// The bytes of an army file. Throws a Failure that names the field when a text holds a character outside
/// Windows-1252 or is longer than 65535 characters.
[[nodiscard]] std::string encode_army(Army const& army);

/// The army that the bytes begin with; what follows the record is ignored, and no value is judged. Throws a Failure
/// that says at which byte the file ended and what was expected there. Memory stays within a small multiple of the
/// bytes, whatever counts they hold.
[[nodiscard]] Army decode_army(std::string_view bytes);

} // namespace warhost
