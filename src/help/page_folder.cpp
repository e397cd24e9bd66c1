#include "help/page_folder.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>

#include "help/sent_help.h"

namespace qarn {
namespace {

namespace fs = std::filesystem;

// A pipe or a device need not come to an end.
std::string ReadBytes(const fs::path& path) {
    std::error_code none;
    std::ifstream stream;
    if (fs::is_regular_file(path, none)) stream.open(path, std::ios::binary);
    if (!stream.is_open()) {
        throw HelpFileError("Its file " + path.filename().string() + " can not be read.");
    }
    if (fs::file_size(path, none) > mostBytesOfHelpFile) {
        throw HelpFileError("Its file " + path.filename().string() + " is too large.");
    }
    return {std::istreambuf_iterator<char>(stream), {}};
}

// The value of a line such as "Default topic=index.htm".
std::string OptionOf(const std::string& project, const std::string& name) {
    std::istringstream lines(project);
    for (std::string line; std::getline(lines, line);) {
        if (line.ends_with('\r')) line.pop_back();
        if (line.starts_with(name + "=")) return line.substr(name.size() + 1);
    }
    return {};
}

}  // namespace

HelpContents ReadPageFolder(const std::string& path) {
    const std::string project = ReadBytes(fs::path(path) / "help.hhp");
    HelpContents contents;
    contents.startPage = OptionOf(project, "Default topic");
    contents.contentsName = OptionOf(project, "Contents file");
    std::size_t bytes = 0;
    try {
        for (const fs::directory_entry& entry : fs::recursive_directory_iterator(path)) {
            if (!entry.is_regular_file()) continue;
            const std::string name = fs::relative(entry.path(), path).generic_string();
            bytes += (contents.files[name] = ReadBytes(entry.path())).size();
            if (bytes > mostBytesOfHelp || contents.files.size() > mostHelpFiles) {
                throw HelpFileError("It holds too much.");
            }
        }
    } catch (const fs::filesystem_error& error) {
        throw HelpFileError(error.code().message() + ".");
    }
    return contents;
}

}  // namespace qarn
