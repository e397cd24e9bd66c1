// Any bytes as what the process sends that reads the help file: it may have come to harm.

#include "help/sent_help.h"

#include <string>

#include "help/help_file.h"
#include "target.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace qarn;
    try {
        const std::string sent(reinterpret_cast<const char*>(data), size);
        const HelpContents help = ContentsOfSentHelp(sent);
        std::size_t bytes = 0;
        for (const auto& [name, content] : help.files) bytes += name.size() + content.size();
        Require(bytes <= size, "no file holds more than was sent");
        const auto contents = help.files.find(help.contentsName);
        if (contents != help.files.end()) ParseContents(contents->second);
    } catch (const HelpFileError&) {
    }
    return 0;
}
