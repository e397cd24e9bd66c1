#pragma once

#include <map>
#include <stdexcept>
#include <string>
#include <string_view>

namespace qarn {

/// The help can not be used. what() says why.
class HelpFileError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// The order of names that differ in more than the case of their ASCII letters.
struct IgnoringCase {
    using is_transparent = void;
    bool operator()(std::string_view left, std::string_view right) const;
};

/// What a help holds, whether compiled into one file or lying in a folder as pages.
struct HelpContents {
    /// Bytes by name ("pictures/board.png"), in which case does not count.
    std::map<std::string, std::string, IgnoringCase> files;
    std::string startPage;
    std::string contentsName;  ///< of the table of contents; empty when there is none
};

}  // namespace qarn
