#include "desktop/help_program.h"

#include <filesystem>
#include <utility>

#include "desktop/glib_error.h"

namespace qarn {

std::string HelpPathIn(const std::string& folder) {
    const std::string pages = folder + "/Help";
    const std::string compiled = pages + ".chm";
    std::error_code none;
    const bool onlyPages =
        !std::filesystem::exists(compiled, none) && std::filesystem::is_directory(pages, none);
    return onlyPages ? pages : compiled;
}

HelpProgram::HelpProgram(std::string folder, Dialogs& dialogs)
    : folder_(std::move(folder)), dialogs_(dialogs) {}

void HelpProgram::ShowHelp(const std::string& strTopic) {
    std::string viewer = folder_ + "/qarn-help";
    std::string help = HelpPathIn(folder_);
    std::string topic = strTopic;
    char* arguments[] = {viewer.data(), help.data(), topic.data(), nullptr};
    GlibError error;
    if (!g_spawn_async(nullptr, arguments, nullptr, G_SPAWN_DEFAULT, nullptr, nullptr, nullptr,
                       error.Out())) {
        dialogs_.Tell("The help viewer can not be started: " + error.Reason());
    }
}

}  // namespace qarn
