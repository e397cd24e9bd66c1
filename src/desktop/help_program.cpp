#include "desktop/help_program.h"

#include <utility>

#include "desktop/glib_error.h"

namespace qarn {

HelpProgram::HelpProgram(std::string folder, Dialogs& dialogs)
    : folder_(std::move(folder)), dialogs_(dialogs) {}

void HelpProgram::ShowHelp(const std::string& strTopic) {
    std::string viewer = folder_ + "/qarn-help";
    std::string file = folder_ + "/Help.chm";
    std::string topic = strTopic;
    char* arguments[] = {viewer.data(), file.data(), topic.data(), nullptr};
    GlibError error;
    if (!g_spawn_async(nullptr, arguments, nullptr, G_SPAWN_DEFAULT, nullptr, nullptr, nullptr,
                       error.Out())) {
        dialogs_.Tell("The help viewer can not be started: " + error.Reason());
    }
}

}  // namespace qarn
