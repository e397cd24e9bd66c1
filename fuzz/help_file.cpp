// Any bytes as a help file: it is read, or refused with a reason.

#include "help/help_file.h"

#include <string>

#include "support/temp_folder.h"
#include "target.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace qarn;
    static const TempFolder folder;
    WriteFile(folder / "help.chm", std::string(reinterpret_cast<const char*>(data), size));
    try {
        const HelpFile help(folder / "help.chm", HelpReader());
        Require(help.Find(help.StartPage()) != nullptr, "a help that was read has its start page");
    } catch (const HelpFileError&) {
    }
    return 0;
}
