#include "core/captions.h"

#include <array>

namespace qarn {
namespace {

// The captions that texts of the game speak of. No other ampersand in a text is a mark.
constexpr std::array<std::string_view, 2> spokenOf{"Done &Moving", "&Details"};

}  // namespace

std::string PlainCaption(std::string_view caption) {
    std::string plain(caption);
    const std::size_t mark = plain.find('&');
    if (mark != std::string::npos) plain.erase(mark, 1);
    return plain;
}

std::string PlainText(std::string_view text) {
    std::string plain(text);
    for (const std::string_view caption : spokenOf) {
        const std::string shown = PlainCaption(caption);
        for (std::size_t at = plain.find(caption); at != std::string::npos;
             at = plain.find(caption, at)) {
            plain.replace(at, caption.size(), shown);
        }
    }
    return plain;
}

}  // namespace qarn
