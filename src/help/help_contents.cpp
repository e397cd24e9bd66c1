#include "help/help_contents.h"

#include <algorithm>
#include <cctype>

namespace qarn {

bool IgnoringCase::operator()(std::string_view left, std::string_view right) const {
    return std::lexicographical_compare(
        left.begin(), left.end(), right.begin(), right.end(),
        [](unsigned char a, unsigned char b) { return std::tolower(a) < std::tolower(b); });
}

}  // namespace qarn
