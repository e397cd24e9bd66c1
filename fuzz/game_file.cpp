// Any bytes as a game file: it is loaded, or refused with a reason. What was loaded can be saved,
// and is the same from then on.

#include <string>

#include "console/state_json.h"
#include "fuzzed_game.h"
#include "target.h"

namespace qarn {
namespace {

void Load(const std::string& contents) {
    FuzzedDesktop desktop;
    const std::string path = desktop / "game.tgf";
    WriteFile(path, contents);

    Session session(desktop.Ports());
    Execute(session, {"seed", "1"});
    Execute(session, {"open", path});
    OneLine(StateJson({}, session.CurrentGame()));
    Execute(session, {"timer", "3"});
    // Of landmarks, a save keeps those that the scenario has.
    Execute(session, {"saveas", desktop / "saved.tgf"});
    Execute(session, {"open", desktop / "saved.tgf"});
    RequireSameAfterReload(session.CurrentGame(), desktop);
}

}  // namespace
}  // namespace qarn

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    qarn::Load(std::string(reinterpret_cast<const char*>(data), size));
    return 0;
}
