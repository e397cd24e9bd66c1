#include "core/code_page.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>

namespace qarn {
namespace {

// The characters of the bytes 0x80 to 0x9F; every other byte is the character of its own number.
constexpr std::array<char32_t, 32> upperControls{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char32_t CharacterOf(std::uint8_t byte) {
    return byte >= 0x80 && byte <= 0x9F ? upperControls[byte - 0x80u] : byte;
}

std::optional<std::uint8_t> ByteOf(char32_t character) {
    if (character < 0x80 || (character >= 0xA0 && character <= 0xFF)) {
        return static_cast<std::uint8_t>(character);
    }
    const auto found = std::find(upperControls.begin(), upperControls.end(), character);
    if (found == upperControls.end()) return std::nullopt;
    return static_cast<std::uint8_t>(0x80 + (found - upperControls.begin()));
}

// How many bytes a UTF-8 character takes that begins with `first`; 0 when none does.
std::size_t LengthInUtf8(std::uint8_t first) {
    if (first < 0x80) return 1;
    if (first >= 0xC2 && first <= 0xDF) return 2;
    if (first >= 0xE0 && first <= 0xEF) return 3;
    if (first >= 0xF0 && first <= 0xF4) return 4;
    return 0;
}

char32_t DecodeUtf8(std::string_view character) {
    const auto first = static_cast<std::uint8_t>(character[0]);
    if (character.size() == 1) return first;
    char32_t value = first & (0x7Fu >> character.size());
    for (const char next : character.substr(1)) {
        if ((static_cast<std::uint8_t>(next) & 0xC0) != 0x80) {
            throw CodePageError("The text is not valid UTF-8.");
        }
        value = (value << 6) | (static_cast<std::uint8_t>(next) & 0x3Fu);
    }
    const bool longerThanNeeded = character.size() == 3 && value < 0x800;
    if (longerThanNeeded) throw CodePageError("The text is not valid UTF-8.");
    return value;
}

// The code page holds nothing beyond three bytes of UTF-8.
void AppendUtf8(std::string& text, char32_t character) {
    if (character < 0x80) {
        text += static_cast<char>(character);
    } else if (character < 0x800) {
        text += static_cast<char>(0xC0 | (character >> 6));
        text += static_cast<char>(0x80 | (character & 0x3F));
    } else {
        text += static_cast<char>(0xE0 | (character >> 12));
        text += static_cast<char>(0x80 | ((character >> 6) & 0x3F));
        text += static_cast<char>(0x80 | (character & 0x3F));
    }
}

}  // namespace

std::string EncodeCodePage(std::string_view utf8) {
    std::string bytes;
    while (!utf8.empty()) {
        const std::size_t length = LengthInUtf8(static_cast<std::uint8_t>(utf8[0]));
        if (length == 0 || length > utf8.size()) {
            throw CodePageError("The text is not valid UTF-8.");
        }
        const std::string_view character = utf8.substr(0, length);
        const std::optional<std::uint8_t> byte = ByteOf(DecodeUtf8(character));
        if (!byte) {
            throw CodePageError("The character \"" + std::string(character) +
                                "\" can not be stored in a game file.");
        }
        bytes += static_cast<char>(*byte);
        utf8.remove_prefix(length);
    }
    return bytes;
}

bool CanStore(std::string_view utf8) {
    const auto isControl = [](char character) {
        return static_cast<std::uint8_t>(character) < 0x20 || character == 0x7F;
    };
    if (std::any_of(utf8.begin(), utf8.end(), isControl)) return false;
    try {
        EncodeCodePage(utf8);
        return true;
    } catch (const CodePageError&) {
        return false;
    }
}

std::string DecodeCodePage(std::string_view bytes) {
    std::string utf8;
    for (const char byte : bytes) AppendUtf8(utf8, CharacterOf(static_cast<std::uint8_t>(byte)));
    return utf8;
}

}  // namespace qarn
