#include "help/sent_help.h"

#include <cstring>

namespace qarn {
namespace {

// Takes the next bytes of a text that must have as many.
std::string_view Take(std::string_view& text, std::size_t count) {
    if (text.size() < count) throw HelpFileError("It has not been read to its end.");
    const std::string_view taken = text.substr(0, count);
    text.remove_prefix(count);
    return taken;
}

std::size_t TakeNumber(std::string_view& text) {
    std::size_t number = 0;
    std::memcpy(&number, Take(text, sizeof number).data(), sizeof number);
    return number;
}

// The entries of the file "#SYSTEM" that are read here, by their codes.
enum SystemEntry { ContentsName = 0, StartPageName = 2 };
constexpr std::size_t systemHeaderSize = 4;

unsigned WordAt(std::string_view bytes, std::size_t at) {
    return static_cast<unsigned char>(bytes[at]) |
           static_cast<unsigned>(static_cast<unsigned char>(bytes[at + 1])) << 8;
}

// An entry is its code, its length and its text, which ends at a zero.
std::string ReadSystemEntry(std::string_view system, SystemEntry wanted) {
    std::size_t at = systemHeaderSize;
    while (at + 4 <= system.size()) {
        const unsigned code = WordAt(system, at);
        const std::string_view text = system.substr(at + 4, WordAt(system, at + 2));
        if (code == wanted) return std::string(text.substr(0, text.find('\0')));
        at += 4 + text.size();
    }
    return {};
}

void ReadSystem(HelpContents& contents) {
    const auto system = contents.files.find("#SYSTEM");
    if (system == contents.files.end()) return;
    contents.startPage = ReadSystemEntry(system->second, StartPageName);
    contents.contentsName = ReadSystemEntry(system->second, ContentsName);
}

}  // namespace

std::string HeadOfSentFile(std::size_t nameLength, std::size_t byteCount) {
    const std::size_t numbers[]{nameLength, byteCount};
    std::string head(sizeof numbers, '\0');
    std::memcpy(head.data(), numbers, sizeof numbers);
    return head;
}

HelpContents ContentsOfSentHelp(std::string_view sent) {
    HelpContents contents;
    while (!sent.empty()) {
        const std::size_t nameLength = TakeNumber(sent);
        const std::size_t byteCount = TakeNumber(sent);
        const std::string name(Take(sent, nameLength));
        contents.files[name] = Take(sent, byteCount);
    }
    ReadSystem(contents);
    return contents;
}

}  // namespace qarn
