#include "desktop/xdg_file_types.h"

#include <gio/gdesktopappinfo.h>
#include <gio/gio.h>

#include <algorithm>
#include <filesystem>
#include <system_error>

#include "core/file_store.h"
#include "desktop/glib_owned.h"

namespace qarn {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view openCommandKey = "\\shell\\open\\command";
constexpr auto mimeType = "application/x-qarn-game";

// One file type as its entries describe it.
struct FileType {
    std::string extension;  // with its point
    std::string className;
    std::string description;
    std::string iconPath;
    std::string program;
};

fs::path DataFolder() { return g_get_user_data_dir(); }

std::string NameOfFiles(const FileType& type) { return "qarn-" + type.className; }

std::string WithoutQuotes(const std::string& command) {
    const bool quoted = command.size() >= 2 && command.front() == '"' && command.back() == '"';
    return quoted ? command.substr(1, command.size() - 2) : command;
}

std::string MimeXml(const FileType& type) {
    const GlibText text(g_markup_printf_escaped(
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
        "<mime-info xmlns=\"http://www.freedesktop.org/standards/shared-mime-info\">\n"
        "  <mime-type type=\"%s\">\n"
        "    <comment>%s</comment>\n"
        "    <glob pattern=\"*%s\"/>\n"
        "  </mime-type>\n"
        "</mime-info>\n",
        mimeType, type.description.c_str(), type.extension.c_str()));
    return text.get();
}

// A program's path as the command line of a desktop entry has it.
std::string QuotedForExec(const std::string& path) {
    std::string quoted = "\"";
    for (const char character : path) {
        if (std::string_view("\"`$\\").find(character) != std::string_view::npos) quoted += '\\';
        if (character == '%') quoted += '%';
        quoted += character;
    }
    return quoted + '"';
}

std::string DesktopEntry(const FileType& type) {
    const GlibKeyFile file(g_key_file_new());
    const auto set = [&](const char* key, const std::string& value) {
        g_key_file_set_string(file.get(), G_KEY_FILE_DESKTOP_GROUP, key, value.c_str());
    };
    set(G_KEY_FILE_DESKTOP_KEY_TYPE, G_KEY_FILE_DESKTOP_TYPE_APPLICATION);
    set(G_KEY_FILE_DESKTOP_KEY_NAME, "Thornmere Series Tactical Game");
    set(G_KEY_FILE_DESKTOP_KEY_EXEC, QuotedForExec(type.program) + " %f");
    if (!type.iconPath.empty()) set(G_KEY_FILE_DESKTOP_KEY_ICON, type.iconPath);
    set(G_KEY_FILE_DESKTOP_KEY_MIME_TYPE, std::string(mimeType) + ";");
    set(G_KEY_FILE_DESKTOP_KEY_NO_DISPLAY, "true");
    const GlibText contents(g_key_file_to_data(file.get(), nullptr, nullptr));
    return contents.get();
}

void WriteInto(const fs::path& folder, const std::string& name, const std::string& contents) {
    fs::create_directories(folder);
    ReplaceFile((folder / name).string(), contents);
}

// Runs one of the desktop's tools on a folder. Gives false when it is missing or fails.
bool Update(std::string tool, std::string folder) {
    char* arguments[] = {tool.data(), folder.data(), nullptr};
    const auto flags = static_cast<GSpawnFlags>(G_SPAWN_SEARCH_PATH | G_SPAWN_STDOUT_TO_DEV_NULL |
                                                G_SPAWN_STDERR_TO_DEV_NULL);
    int status = 0;
    return g_spawn_sync(nullptr, arguments, nullptr, flags, nullptr, nullptr, nullptr, nullptr,
                        &status, nullptr) &&
           g_spawn_check_wait_status(status, nullptr);
}

bool MakeMimeType(const FileType& type) {
    const fs::path folder = DataFolder() / "mime";
    WriteInto(folder / "packages", NameOfFiles(type) + ".xml", MimeXml(type));
    return Update("update-mime-database", folder.string());
}

bool MakeDefaultProgram(const FileType& type) {
    const fs::path folder = DataFolder() / "applications";
    const std::string name = NameOfFiles(type) + ".desktop";
    WriteInto(folder, name, DesktopEntry(type));
    // Where this tool is missing, the default set below still opens the files.
    Update("update-desktop-database", folder.string());

    const fs::path path = folder / name;
    GDesktopAppInfo* program = g_desktop_app_info_new_from_filename(path.c_str());
    if (program == nullptr) return false;
    const GlibObject<GAppInfo> info(G_APP_INFO(program));
    return g_app_info_set_as_default_for_type(info.get(), mimeType, nullptr);
}

bool Register(const FileType& type) {
    try {
        const bool registered = MakeMimeType(type) && MakeDefaultProgram(type);
        // GIO looks for new types only now and then, unless it is made to forget what it has read.
        g_content_type_set_mime_dirs(nullptr);
        return registered;
    } catch (const std::system_error&) {
        return false;
    }
}

FileType TypeOf(std::map<std::string, std::string>& values, const std::string& className) {
    const auto extension = std::find_if(values.begin(), values.end(), [&](const auto& entry) {
        return entry.first.starts_with('.') && entry.second == className;
    });
    return {.extension = extension == values.end() ? "" : extension->first,
            .className = className,
            .description = values[className],
            .iconPath = values[className + "\\DefaultIcon"],
            .program = WithoutQuotes(values[className + std::string(openCommandKey)])};
}

}  // namespace

// The values are what counts on such a desktop; a key without one leaves no trace.
bool XdgFileTypes::CreateKey(const std::string&) { return true; }

bool XdgFileTypes::SetDefaultValue(const std::string& key, const std::string& value) {
    values_[key] = value;
    if (!key.ends_with(openCommandKey)) return true;
    const FileType type = TypeOf(values_, key.substr(0, key.size() - openCommandKey.size()));
    return !type.extension.empty() && Register(type);
}

std::optional<std::string> XdgFileTypes::DefaultValue(const std::string& key) {
    if (!key.starts_with('.')) return std::nullopt;
    const std::string file = "game" + key;
    const GlibText type(g_content_type_guess(file.c_str(), nullptr, 0, nullptr));
    if (g_content_type_is_unknown(type.get())) return std::nullopt;
    const GlibObject<GAppInfo> program(g_app_info_get_default_for_type(type.get(), FALSE));
    if (!program) return std::nullopt;
    const char* id = g_app_info_get_id(program.get());
    return id != nullptr ? id : "";
}

}  // namespace qarn
