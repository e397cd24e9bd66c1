#include "support/played_game.h"

#include <cstdio>
#include <sstream>
#include <utility>

#include "core/board_display.h"
#include "rules/terrain.h"
#include "scenarios/catalogue.h"
#include "scenarios/setup.h"
#include "window/board_clicks.h"
#include "window/buttons.h"
#include "window/load_game.h"
#include "window/menu_commands.h"
#include "window/run_event.h"
#include "window/save_game.h"

namespace qarn {
namespace {

// One thing that a transcript tells when it has changed.
struct Fact {
    const char* sign;
    std::string name;
    std::string value;
};

std::string Pair(int first, int second) {
    return std::to_string(first) + "," + std::to_string(second);
}

std::string OnOff(bool on) { return on ? "on" : "off"; }

std::string ButtonFact(const Button& button) {
    const std::string caption(button.Caption);
    if (!button.Visible) return "hidden";
    return button.Enabled ? "[" + caption + "]" : "(" + caption + ")";
}

std::string ItemsFact(const Controls& controls) {
    std::string items;
    for (const CheckBox& box : controls.chkItems) {
        const std::string mark = box.Value ? "x" : " ";
        if (!box.Visible) continue;
        items += (box.Enabled ? "[" + mark + "]" : "(" + mark + ")").append(box.Caption);
    }
    return items.empty() ? "none" : "<" + items + ">";
}

std::string ModesFact(const GameRecord& record) {
    const std::string modes = std::string(record.blnDetailsMode ? "+details" : "") +
                              (record.blnMoveMode ? "+move" : "") +
                              (record.blnAttackMode ? "+attack" : "");
    return modes.empty() ? "none" : modes.substr(1);
}

std::string WindowFact(const Game& game) {
    if (game.blnEnded) return "ended with " + std::to_string(game.exitStatus);
    return game.blnOpen ? "open" : "closed";
}

// Scenario and side to move.
std::string FileFact(const std::string& path) {
    std::istringstream file(ReadFile(path));
    std::string code, player, turn;
    file >> code;
    for (int line = 1; line <= 3; ++line) std::getline(file, player);
    file >> turn;
    return code.empty() ? "none" : code + turn;
}

std::vector<Fact> FactsOf(const Game& game) {
    const GameRecord& record = game.record;
    const Controls& controls = game.controls;
    const Marker& frame = controls.fraQuickDetails;
    std::vector<Fact> facts;
    for (std::uint8_t X = 1; X <= columnCount; ++X) {
        for (std::uint8_t Y = 1; Y <= rowCount; ++Y) {
            const std::string square = Pair(X, Y);
            facts.push_back({"@", square, '"' + CaptionOfSquare(game, X, Y) + '"'});
            facts.push_back({"@", "terrain of " + square, std::to_string(record.bytTerrain[X][Y])});
        }
    }
    const char* focus[] = {"-", "cmdMove", "chkFirst"};
    for (const Fact& fact : {
             Fact{"@", "turn", std::to_string(record.bytTurn)},
             Fact{"@", "left", Pair(record.bytPeopleLeft[1], record.bytPeopleLeft[2])},
             Fact{"@", "scenario", std::to_string(record.bytScenario)},
             Fact{"@", "name", record.strGameName},
             Fact{"@", "file", FileFact(record.strGamePath)},
             Fact{"#", "window", WindowFact(game)},
             Fact{"#", "caption", controls.Caption},
             Fact{"#", "mode", ModesFact(record)},
             Fact{"#", "cmdMove", ButtonFact(controls.cmdMove)},
             Fact{"#", "cmdAttack", ButtonFact(controls.cmdAttack)},
             Fact{"#", "cmdDoneSel", ButtonFact(controls.cmdDoneSel)},
             Fact{"#", "items", ItemsFact(controls)},
             Fact{"#", "File", OnOff(controls.File.Enabled)},
             Fact{"#", "Details", controls.mnuPeopleDetails.Checked ? "checked" : "unchecked"},
             Fact{"#", "mnuSummary", controls.mnuSummary.Checked ? "checked" : "unchecked"},
             Fact{"#", "mnuConvertFile", OnOff(controls.mnuConvertFile.Visible)},
             Fact{"#", "info", controls.lblDetailMore.Caption},
             Fact{"#", "summary", Replaced(controls.lblSummary.Caption, "\n", " / ")},
             Fact{"#", "frame", frame.Visible ? Pair(frame.Left, frame.Top) : "hidden"},
             Fact{"#", "focus", focus[static_cast<int>(controls.SetFocus)]},
         }) {
        facts.push_back(fact);
    }
    return facts;
}

std::string Changes(const std::string& sign, const std::vector<Fact>& before,
                    const std::vector<Fact>& after) {
    std::string text;
    for (std::size_t i = 0; i < after.size(); ++i) {
        if (after[i].sign != sign || after[i].value == before[i].value) continue;
        text += " " + after[i].name + "=" + after[i].value;
    }
    return text.empty() ? text : sign + text + "\n";
}

std::string Shown(const MessageBox& box, Answer answer) {
    const std::string title = box.Title.empty() ? "" : box.Title + ": ";
    const std::string text = title + Replaced(box.Text, "\n", "\n  ");
    if (box.Offered == Buttons::OK) return "! " + text + "\n";
    return "? " + text + (answer == Answer::Yes ? " -> yes\n" : " -> no\n");
}

const std::map<std::string, std::uint8_t PeopleRecord::*> strengths{
    {"Mobility", &PeopleRecord::Mobility},
    {"Attack", &PeopleRecord::Attack},
    {"Side", &PeopleRecord::Side}};

}  // namespace

std::string Replaced(std::string text, const std::string& what, const std::string& with) {
    for (std::size_t at = text.find(what); at != text.npos; at = text.find(what, at)) {
        text.replace(at, what.size(), with);
        at += with.size();
    }
    return text;
}

std::string SavedGame(const std::string& position) {
    std::istringstream words(position);
    std::string code = "HM";
    int scenario = 7, turn = 1, x = 0, y = 0, terrain = 0;
    std::vector<int> places(2 * peopleCount), landmarks;
    char group[4];
    for (std::string word; words >> word;) {
        if (ScenarioNumber(word) != 0) {
            code = word;
            scenario = ScenarioNumber(word);
        } else if (std::sscanf(word.c_str(), "older%d", &scenario) == 1) {
            code = word.substr(5);
        } else if (std::sscanf(word.c_str(), "%3[^@]@%d,%d", group, &x, &y) == 3) {
            const auto& roster = DataOfScenario(scenario).Roster;
            std::size_t i = 0;
            while (roster.at(i).Code.Text() != group || places[2 * i] != 0) ++i;
            places[2 * i] = x;
            places[2 * i + 1] = y;
        } else if (std::sscanf(word.c_str(), "%d,%d=%d", &x, &y, &terrain) == 3) {
            landmarks.insert(landmarks.end(), {x, y, terrain});
        } else {
            std::sscanf(word.c_str(), "turn%d", &turn);
        }
    }
    std::string text = code + "\r\nRed" + std::string(51, ' ') + "False\r\nBlue" +
                       std::string(50, ' ') + "False\r\n";
    std::vector<int> numbers{turn};
    if (position.find_first_of("@=") != position.npos) {
        numbers.insert(numbers.end(), {9, 8});
        numbers.insert(numbers.end(), places.begin(), places.end());
        numbers.push_back(static_cast<int>(landmarks.size() / 3));
        numbers.insert(numbers.end(), landmarks.begin(), landmarks.end());
    }
    for (const int number : numbers) text += " " + std::to_string(number) + " \r\n";
    return text;
}

PlayedGame::PlayedGame() {
    dialogs.whileShown = [this] { statuses.push_back(game.controls.lblStatus.Caption); };
}

void PlayedGame::Open(const std::string& contents) {
    WriteFile(path, contents);
    Open();
}

void PlayedGame::Open() {
    game.blnOpen = game.blnEnded = false;
    RunEvent(game, "Form_Load", [&](Game& g) { Form_Load(g, path); });
}

void PlayedGame::Load(const std::string& position) {
    Open(SavedGame(position));
    std::istringstream words(position);
    char code[4], strength[9];
    int value = 0;
    for (std::string word; words >> word;) {
        if (word == "abbey") SetAbbeyTerrain(game, false);
        if (word == "stonemantle") SetStonemantleTerrain(game, true);
        if (std::sscanf(word.c_str(), "%3[^.].%8[^=]=%d", code, strength, &value) != 3) continue;
        for (PeopleRecord& people : game.record.People) {
            if (people.Code.find(code) != 0) continue;
            people.*strengths.at(strength) = static_cast<std::uint8_t>(value);
        }
    }
}

std::string PlayedGame::Play(const std::string& script) {
    std::string transcript;
    std::istringstream lines(script);
    for (std::string line; std::getline(lines, line);) {
        if (!line.starts_with("> ")) continue;
        const std::vector<Fact> before = FactsOf(game);
        std::string status = game.controls.lblStatus.Caption;
        const auto noteStatus = [&](const std::string& now) {
            if (now == std::exchange(status, now)) return;
            transcript += "= " + Replaced(now, "\n", "\n  ") + "\n";
        };
        std::size_t box = dialogs.boxes.size();
        transcript += line + "\n";
        std::istringstream commands(line.substr(2));
        for (std::string command; std::getline(commands >> std::ws, command, ';');) {
            if (!Do(command)) transcript += "refused\n";
        }
        for (; box < dialogs.boxes.size(); ++box) {
            noteStatus(statuses.at(box));
            transcript += Shown(dialogs.boxes[box], dialogs.answers[box]);
        }
        noteStatus(game.controls.lblStatus.Caption);
        const std::vector<Fact> after = FactsOf(game);
        transcript += Changes("@", before, after) + Changes("#", before, after);
        game.controls.SetFocus = Control::None;
        ExpectBoardShown();
    }
    EXPECT_TRUE(dialogs.queued.empty() && random.queued.empty()) << "More was expected to happen.";
    return Replaced(transcript, folder.Path(), "DIR");
}

bool PlayedGame::Do(const std::string& command) {
    std::istringstream words(command);
    std::string verb, name;
    int X = 0, Y = 0;
    words >> verb;
    if (verb == "click") {
        words >> X >> Y;
        RunEvent(game, "lblX_Click", [&](Game& g) { lblX_Click(g, X, Y); });
    } else if (verb == "press") {
        words >> name;
        const WindowButton* button = FindButton(name);
        if (button == nullptr) throw std::invalid_argument("There is no button " + name);
        const Button& state = game.controls.*button->State;
        if (!state.Visible || !state.Enabled) return false;
        RunEvent(game, name, button->Click);
    } else if (verb == "tick" || verb == "untick") {
        words >> X;
        CheckBox& box = game.controls.chkItems.at(static_cast<std::size_t>(X));
        if (!box.Visible || !box.Enabled) return false;
        box.Value = verb == "tick";
    } else if (verb == "menu") {
        words >> name;
        const MenuCommand* item = FindMenuCommand(name);
        if (item == nullptr || !CanChoose(game.controls, *item)) return false;
        RunEvent(game, name, item->Click);
    } else if (verb == "saveas") {
        words >> name;
        dialogs.saveFileName = name.empty() ? "" : folder / name;
        return Do("menu mnuSaveAs");
    } else if (verb == "close") {
        RunEvent(game, "Form_Unload", Form_Unload);
    } else if (verb == "answer") {
        while (words >> name) dialogs.queued.push_back(name == "yes" ? Answer::Yes : Answer::No);
    } else if (verb == "roll") {
        while (words >> X) random.QueueRoll(X);
    } else if (verb == "rename") {
        words >> game.record.strPlayerName[2];
    } else if (verb == "breakdisk") {
        std::filesystem::remove_all(folder.Path());
        settings.writeError = "No space left on device";
    } else {
        throw std::invalid_argument("There is no command " + command);
    }
    return true;
}

void PlayedGame::ExpectBoardShown() const {
    std::array<std::array<std::string, rowCount + 1>, columnCount + 1> codes;
    for (const PeopleRecord& people : game.record.People) {
        codes.at(people.LocationX).at(people.LocationY).append(people.Code).append("  ");
    }
    for (std::size_t X = 1; X <= columnCount; ++X) {
        for (std::size_t Y = 1; Y <= rowCount; ++Y) {
            const SquareLabel& label = game.controls.lbl[X][Y];
            const TerrainColors colors = ColorsOfTerrain(game.record.bytTerrain[X][Y]);
            const std::string caption =
                CaptionOfSquare(game, static_cast<int>(X), static_cast<int>(Y));
            EXPECT_TRUE(caption == codes[X][Y] && label.BackColor == colors.BackColor &&
                        label.ForeColor == colors.ForeColor)
                << X << "," << Y << " shows " << caption << " instead of " << codes[X][Y];
        }
    }
}

}  // namespace qarn
