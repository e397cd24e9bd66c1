#pragma once

#include <map>
#include <stdexcept>
#include <string>
#include <string_view>

namespace qarn {

/// A help file can not be used. what() says why.
class HelpFileError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// The order of names that differ in more than the case of their ASCII letters.
struct IgnoringCase {
    using is_transparent = void;
    bool operator()(std::string_view left, std::string_view right) const;
};

/// What a compiled help file holds: contents by name ("pictures/board.png", "#SYSTEM"), in which
/// case does not count.
using ChmContents = std::map<std::string, std::string, IgnoringCase>;

/// Reads a whole compiled help file. Throws HelpFileError when it cannot be opened, is not such a
/// file, is cut short, or holds more than 64 MiB.
ChmContents ReadChm(const std::string& path);

}  // namespace qarn
