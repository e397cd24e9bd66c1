#include "help/help_file.h"

#include <algorithm>
#include <filesystem>
#include <utility>

#include "help/page_folder.h"

namespace qarn {
namespace {

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
