#pragma once

#include <string>
#include <string_view>

namespace qarn {

/// Sixteen hexadecimal digits by which one text is known from others (FNV-1a, 64 bits). The same
/// everywhere and at all times.
std::string Fingerprint(std::string_view text);

}  // namespace qarn
