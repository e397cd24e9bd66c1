#include "desktop/settings_file.h"

#include <pwd.h>
#include <unistd.h>

#include <filesystem>
#include <iostream>
#include <sstream>
#include <stdexcept>
#include <utility>

#include "core/file_mark.h"
#include "core/file_store.h"
#include "desktop/glib_owned.h"

namespace qarn {
namespace {

namespace fs = std::filesystem;

fs::path FileOf(const std::string& application) {
    return fs::path(g_get_user_config_dir()) / (application + ".ini");
}

std::string Reason(const std::system_error& error, const fs::path& path) {
    return error.code().message() + ".\n" + path.string();
}

bool CanBeRead(std::string_view line) {
    const std::size_t first = line.find_first_not_of(" \t\r");
    if (first == line.npos || line[first] == '#') return true;
    if (line[first] == '[') return line.find(']') != line.npos;
    return line[first] != '=' && line.find('=') != line.npos;
}

// A line that cannot be read would take with it all that follow.
std::string WithoutDamagedLines(const std::string& text) {
    std::istringstream lines(text);
    std::string readable;
    for (std::string line; std::getline(lines, line);) {
        if (CanBeRead(line)) readable += line + '\n';
    }
    return readable;
}

// A file that is not there yet counts as one without settings. Throws
// std::system_error for one that is there and cannot be read.
GlibKeyFile LoadKeyFile(const std::string& application) {
    GlibKeyFile file(g_key_file_new());
    try {
        const std::string text = WithoutDamagedLines(ReadWholeFile(FileOf(application).string()));
        g_key_file_load_from_data(file.get(), text.c_str(), text.size(), G_KEY_FILE_KEEP_COMMENTS,
                                  nullptr);
    } catch (const std::system_error& error) {
        if (error.code() != std::errc::no_such_file_or_directory) throw;
    }
    return file;
}

// An empty key can not be written in such a file.
std::string StoredKey(const std::string& key) { return key.empty() ? "default" : key; }

}  // namespace

struct SettingsFile::Kept {
    std::string application;
    std::optional<FileMark> mark;  // from before it was read
    GlibKeyFile file;
};

SettingsFile::SettingsFile() = default;
SettingsFile::~SettingsFile() = default;

// The start of a game asks for some twenty settings.
const SettingsFile::Kept& SettingsFile::Load(const std::string& application) {
    const std::optional<FileMark> mark = MarkOf(FileOf(application).string());
    if (!kept_ || kept_->application != application || kept_->mark != mark) {
        kept_.reset(new Kept{application, mark, LoadKeyFile(application)});
    }
    return *kept_;
}

std::string SettingsFile::Read(const std::string& application, const std::string& section,
                               const std::string& key, const std::string& defaultValue) {
    try {
        GKeyFile* file = Load(application).file.get();
        const GlibText value(
            g_key_file_get_string(file, section.c_str(), StoredKey(key).c_str(), nullptr));
        return value ? value.get() : defaultValue;
    } catch (const std::system_error& error) {
        TellOnce("The settings are passed over: " + Reason(error, FileOf(application)));
        return defaultValue;
    }
}

void SettingsFile::TellOnce(const std::string& text) {
    if (!std::exchange(told_, true)) std::cerr << text << std::endl;
}

void SettingsFile::Write(const std::string& application, const std::string& section,
                         const std::string& key, const std::string& value) {
    const fs::path path = FileOf(application);
    try {
        const GlibKeyFile file = LoadKeyFile(application);
        g_key_file_set_string(file.get(), section.c_str(), StoredKey(key).c_str(), value.c_str());
        gsize length = 0;
        const GlibText contents(g_key_file_to_data(file.get(), &length, nullptr));
        fs::create_directories(path.parent_path());
        ReplaceFile(path.string(), {contents.get(), length});
    } catch (const std::system_error& error) {
        throw std::runtime_error(Reason(error, path));
    }
}

// Looked up once: it is a part of the keys, and the look-up reads several files.
std::string SettingsFile::LoginName() {
    static const std::string name = [] {
        const passwd* entry = getpwuid(getuid());
        return entry != nullptr ? entry->pw_name : "";
    }();
    return name;
}

}  // namespace qarn
