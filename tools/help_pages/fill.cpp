#include "help_pages/fill.h"

namespace qarn {

std::string Fill(const std::string& page, const std::string& text, const Fillers& fillers) {
    std::string filled;
    std::size_t at = 0;
    for (std::size_t open = text.find("{{"); open != text.npos; open = text.find("{{", at)) {
        const std::size_t close = text.find("}}", open);
        if (close == text.npos) throw PageError(page + ": a {{ without its }}");
        const std::string mark = text.substr(open + 2, close - open - 2);
        const std::size_t colon = std::min(mark.find(':'), mark.size());
        const auto filler = fillers.find(mark.substr(0, colon));
        if (filler == fillers.end()) throw PageError(page + ": nothing fills {{" + mark + "}}");
        filled += text.substr(at, open - at);
        filled += filler->second(colon < mark.size() ? mark.substr(colon + 1) : "");
        at = close + 2;
    }
    return filled + text.substr(at);
}

}  // namespace qarn
