// Any bytes as the commands that a program, and then a person, gives the console: every object is
// JSON in one line, and no answer reports a fault of the program.

#include <unistd.h>

#include <sstream>
#include <string>

#include <nlohmann/json.hpp>

#include "console/front_end.h"
#include "fuzzed_game.h"
#include "target.h"

namespace qarn {
namespace {

// Asks to end after so many commands and ticks of the timer.
class Patience {
public:
    bool IsOver() { return ++asked_ > 60; }

private:
    int asked_ = 0;
};

void EnterFolder(const FuzzedDesktop& desktop) {
    Require(chdir((desktop / ".").c_str()) == 0, "the folder can be entered");
}

void PlayAsProgram(const std::string& commands) {
    FuzzedDesktop desktop;
    EnterFolder(desktop);
    Patience patience;
    std::istringstream in(commands);
    std::stringstream out;
    std::ostringstream errors;
    RunForProgram({in, [&] { return patience.IsOver(); }}, out, errors, desktop.Ports(), "");
    for (std::string line; std::getline(out, line);) {
        const auto object = nlohmann::json::parse(line);
        Require(object["ok"] == (object["error"] == ""), "a refusal has a reason");
        Require(!IsFaultOfProgram(object["error"].get<std::string>()), line.c_str());
        for (const auto& box : object["boxes"]) {
            Require(!IsFaultOfProgram(box["text"].get<std::string>()), line.c_str());
        }
    }
}

void PlayAsPerson(const std::string& commands) {
    FuzzedDesktop desktop;
    EnterFolder(desktop);
    Patience patience;
    std::istringstream in(commands);
    std::ostringstream out;
    RunForPerson({in, [&] { return patience.IsOver(); }}, out, desktop.Ports(), "", true);
}

}  // namespace
}  // namespace qarn

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string commands(reinterpret_cast<const char*>(data), size);
    // No path may lead out of the folder.
    if (commands.find('/') != commands.npos || commands.find("..") != commands.npos) return 0;
    qarn::PlayAsProgram(commands);
    qarn::PlayAsPerson(commands);
    return 0;
}
