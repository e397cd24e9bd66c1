#include "help/page_folder.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>

namespace qarn {
namespace {

namespace fs = std::filesystem;

std::string ReadBytes(const fs::path& path) {
    std::ifstream stream(path, std::ios::binary);
    if (!stream) throw HelpFileError("Its file " + path.filename().string() + " can not be read.");
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
    try {
        for (const fs::directory_entry& entry : fs::recursive_directory_iterator(path)) {
            if (!entry.is_regular_file()) continue;
            const std::string name = fs::relative(entry.path(), path).generic_string();
            contents.files[name] = ReadBytes(entry.path());
        }
    } catch (const fs::filesystem_error& error) {
        throw HelpFileError(error.code().message() + ".");
    }
    return contents;
}

}  // namespace qarn
