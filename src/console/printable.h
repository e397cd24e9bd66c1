#pragma once

#include <string>
#include <string_view>

namespace qarn {

/// The text with its control characters, but line breaks, as escapes such as "\\x1b": a name or a
/// path cannot command a terminal so.
std::string Printable(std::string_view text);

}  // namespace qarn
