#include "help/help_file.h"

#include <algorithm>

namespace qarn {
namespace {

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

}  // namespace

HelpFile::HelpFile(const std::string& path) : files_(ReadChm(path)) { ReadSystem(); }

void HelpFile::ReadSystem() {
    const std::string* system = Find("#SYSTEM");
    if (system != nullptr) {
        startPage_ = ReadSystemEntry(*system, StartPageName);
        const std::string* contents = Find(ReadSystemEntry(*system, ContentsName));
        if (contents != nullptr) contents_ = ParseContents(*contents);
    }
    if (Find(startPage_) == nullptr) throw HelpFileError("Its start page is missing.");
}

const std::string* HelpFile::Find(std::string_view name) const {
    const auto found = files_.find(name);
    return found == files_.end() ? nullptr : &found->second;
}

std::vector<std::string> HelpFile::PageNames() const {
    const IgnoringCase before;
    const auto isPage = [&](std::string_view name) {
        const std::string_view ending =
            name.substr(name.size() - std::min<std::size_t>(name.size(), 4));
        return !before(ending, ".htm") && !before(".htm", ending);
    };
    std::vector<std::string> names;
    for (const auto& [name, bytes] : files_) {
        if (isPage(name)) names.push_back(name);
    }
    return names;
}

}  // namespace qarn
