#include "help/help_file.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <map>
#include <utility>

#include "help/page_folder.h"

namespace qarn {
namespace {

// Elements within elements take a text browser the square of their number.
constexpr int mostOpenTags = 5000;

// The letters that a text goes on with.
std::string WordAt(std::string_view text, std::size_t at) {
    std::string word;
    for (; at < text.size() && std::isalpha(static_cast<unsigned char>(text[at])) != 0; ++at) {
        word += static_cast<char>(std::tolower(static_cast<unsigned char>(text[at])));
    }
    return word;
}

// The most that are open at once, those that are never closed included.
int OpenTagsOf(std::string_view page) {
    std::map<std::string, int> openOf;
    int open = 0;
    int most = 0;
    for (std::size_t at = page.find('<'); at != page.npos; at = page.find('<', at + 1)) {
        const bool closes = page.substr(at + 1).starts_with('/');
        const std::string name = WordAt(page, at + (closes ? 2 : 1));
        if (name.empty() || (closes && openOf[name] == 0)) continue;
        openOf[name] += closes ? -1 : 1;
        open += closes ? -1 : 1;
        most = std::max(most, open);
    }
    return most;
}

HelpContents ReadHelp(const std::string& path, HelpReader reader) {
    std::error_code none;
    return std::filesystem::is_directory(path, none) ? ReadPageFolder(path) : reader.Read(path);
}

}  // namespace

HelpFile::HelpFile(const std::string& path, HelpReader reader)
    : help_(ReadHelp(path, std::move(reader))) {
    const std::string* contents = Find(help_.contentsName);
    if (contents != nullptr) contents_ = ParseContents(*contents);
    if (Find(StartPage()) == nullptr) throw HelpFileError("Its start page is missing.");
    for (const std::string& name : PageNames()) {
        if (OpenTagsOf(*Find(name)) > mostOpenTags) {
            throw HelpFileError("Its page " + name + " has too many open tags.");
        }
    }
}

const std::string* HelpFile::Find(std::string_view name) const {
    const auto found = help_.files.find(name);
    return found == help_.files.end() ? nullptr : &found->second;
}

std::vector<std::string> HelpFile::PageNames() const {
    const IgnoringCase before;
    const auto isPage = [&](std::string_view name) {
        const std::string_view ending =
            name.substr(name.size() - std::min<std::size_t>(name.size(), 4));
        return !before(ending, ".htm") && !before(".htm", ending);
    };
    std::vector<std::string> names;
    for (const auto& [name, bytes] : help_.files) {
        if (isPage(name)) names.push_back(name);
    }
    return names;
}

}  // namespace qarn
