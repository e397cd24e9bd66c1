#include "console/printable.h"

namespace qarn {
namespace {

constexpr char hexDigits[] = "0123456789abcdef";

bool IsControl(unsigned code) {
    return (code < 0x20 && code != '\n') || (code >= 0x7F && code < 0xA0);
}

// The first character's bytes in UTF-8; of what is none, a byte for its own.
std::string_view FirstOf(std::string_view text) {
    const auto first = static_cast<unsigned char>(text[0]);
    const std::size_t length = first < 0xC0 ? 1 : first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
    for (std::size_t at = 1; at < length; ++at) {
        if (at == text.size() || (text[at] & 0xC0) != 0x80) return text.substr(0, 1);
    }
    return text.substr(0, length);
}

}  // namespace

std::string Printable(std::string_view text) {
    std::string printable;
    while (!text.empty()) {
        const std::string_view whole = FirstOf(text);
        const bool mayBeControl = whole.size() == 1 || (whole.size() == 2 && whole[0] == '\xC2');
        const auto code = static_cast<unsigned char>(whole.back());
        if (mayBeControl && IsControl(code)) {
            printable += {'\\', 'x', hexDigits[code / 16], hexDigits[code % 16]};
        } else {
            printable += whole;
        }
        text.remove_prefix(whole.size());
    }
    return printable;
}

}  // namespace qarn
