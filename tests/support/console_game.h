#pragma once

#include <nlohmann/json.hpp>
#include <sstream>
#include <string>
#include <vector>

#include "console/front_end.h"
#include "support/fake_ports.h"
#include "support/temp_folder.h"
#include "support/text.h"

namespace qarn {

/// Both front ends over a game file, fed with commands that are separated by "; ".
struct ConsoleGame {
    explicit ConsoleGame(const std::string& contents) { WriteFile(path, contents); }

    /// The objects that the commands give.
    std::vector<nlohmann::json> ForProgram(const std::string& commands) {
        std::vector<nlohmann::json> objects;
        std::istringstream in(Replaced(commands, "; ", "\n"));
        std::stringstream out;
        status = RunForProgram({in}, out, errors, {settings, *fileTypes, {}}, path);
        for (std::string line; std::getline(out, line);) {
            objects.push_back(nlohmann::json::parse(line));
        }
        return objects;
    }

    /// What a person reads in a terminal.
    std::string ForPerson(const std::string& commands, bool colors = false) {
        std::istringstream in(Replaced(commands, "; ", "\n"));
        std::ostringstream out;
        status = RunForPerson({in}, out, {settings, *fileTypes, {}}, path, colors);
        return out.str();
    }

    TempFolder folder;
    std::string path = folder / "game.tgf";
    FakeSettings settings;
    FakeFileTypes knownFileTypes;
    FileTypeRegistry* fileTypes = &knownFileTypes;
    std::ostringstream errors;
    int status = -1;
};

}  // namespace qarn
