#include "shell/command_line.h"

#include <algorithm>
#include <filesystem>

namespace qarn {
namespace {

namespace fs = std::filesystem;

bool Exists(const std::string& path) {
    std::error_code none;
    return fs::exists(path, none);
}

std::string WithoutQuotes(const std::string& text) {
    if (!text.starts_with('"')) return text;
    return text.size() < 2 ? "" : text.substr(1, text.size() - 2);
}

std::string WithSlashes(std::string path) {
    std::replace(path.begin(), path.end(), '\\', '/');
    return path;
}

std::string PathIn(const std::string& strCommandLine) {
    if (Exists(strCommandLine)) return strCommandLine;
    const std::string path = WithoutQuotes(strCommandLine);
    return Exists(path) ? path : WithSlashes(path);
}

}  // namespace

std::string CommandLine(std::span<char*> arguments) {
    std::string text;
    for (const char* argument : arguments) {
        if (!text.empty()) text += ' ';
        text += argument;
    }
    return text;
}

std::string GamePathOf(const std::string& strCommandLine) {
    const std::string path = PathIn(strCommandLine);
    return path.empty() ? path : fs::absolute(path).string();
}

}  // namespace qarn
