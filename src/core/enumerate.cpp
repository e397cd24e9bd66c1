#include "core/enumerate.h"

namespace qarn {

std::string Enumerate(const std::vector<std::string_view>& names) {
    std::string text;
    for (std::size_t first = 0; first < names.size();) {
        std::size_t next = first + 1;
        while (next < names.size() && names[next] == names[first]) ++next;
        if (first > 0) text += ", ";
        text += names[first];
        if (next - first > 1) text += " (" + std::to_string(next - first) + ")";
        first = next;
    }
    return text;
}

}  // namespace qarn
