#include "support/played_game.h"

#include <algorithm>
#include <cstdio>
#include <map>
#include <sstream>
#include <utility>

#include "ai/turn_driver.h"
#include "core/board_display.h"
#include "play/play_menu.h"
#include "rules/terrain.h"
#include "scenarios/setup.h"
#include "shell/file_commands.h"
#include "support/facts.h"
#include "window/board_clicks.h"
#include "window/buttons.h"
#include "window/load_game.h"
#include "window/menu_commands.h"
#include "window/save_game.h"

namespace qarn {
namespace {

const std::map<std::string, Answer> answersByName{
    {"yes", Answer::Yes}, {"no", Answer::No}, {"retry", Answer::Retry}, {"cancel", Answer::Cancel}};

std::string Shown(const MessageBox& box, Answer answer) {
    const std::string title = box.Title.empty() ? "" : box.Title + ": ";
    const std::string text = title + Replaced(box.Text, "\n", "\n  ");
    if (box.Offered == Buttons::OK) return "! " + text + "\n";
    const auto answered = std::find_if(answersByName.begin(), answersByName.end(),
                                       [&](const auto& one) { return one.second == answer; });
    return "? " + text + (box.DeclinedByDefault ? " [No]" : "") + " -> " + answered->first + "\n";
}

// Gives false when the button can not be pressed.
bool Press(Game& game, TurnHistory& history, const std::string& name) {
    int code = 0;
    const bool ofKey = std::sscanf(name.c_str(), "cmdSeeTerDet(%d)", &code) == 1;
    const WindowButton* found = FindButton(name);
    if (!ofKey && found == nullptr) throw std::invalid_argument("There is no button " + name);
    const Button& button = ofKey ? game.controls.cmdSeeTerDet.at(static_cast<std::size_t>(code))
                                 : game.controls.*found->State;
    if (!button.Visible || !button.Enabled) return false;
    history.Run(game, ofKey ? "cmdSeeTerDet_Click" : name + "_Click",
                [&](Game& g) { ofKey ? cmdSeeTerDet_Click(g, code) : found->Click(g); });
    return true;
}

}  // namespace

PlayedGame::PlayedGame() {
    dialogs.whileShown = [this] { statuses.push_back(game.controls.lblStatus.Caption); };
}

void PlayedGame::Open(const std::string& contents) {
    WriteFile(path, contents);
    Open();
}

void PlayedGame::Open() {
    game.blnOpen = game.blnEnded = false;
    history.Run(game, "Form_Load", [&](Game& g) {
        Form_Load(g, path);
        LoadFileTypeMark(g);
    });
}

void PlayedGame::Load(const std::string& position) {
    Open(SavedGame(position));
    const PositionWords words(position);
    if (words.abbey) SetAbbeyTerrain(game, false);
    if (words.stonemantle) SetStonemantleTerrain(game, true);
    for (const auto& [group, strength, value] : words.changed) {
        game.record.People[group].*strength = value;
    }
}

std::string PlayedGame::Play(const std::string& script) {
    const std::string transcript = PlayLines(script, [&](const std::string& commands) {
        std::string text;
        const std::vector<Fact> before = FactsOf(game);
        std::string status = game.controls.lblStatus.Caption;
        const auto noteStatus = [&](const std::string& now) {
            if (now == std::exchange(status, now)) return;
            text += now.empty() ? "=\n" : "= " + Replaced(now, "\n", "\n  ") + "\n";
        };
        std::size_t box = dialogs.boxes.size();
        for (const std::string& command : Parts(commands)) {
            if (!Do(command)) text += "refused\n";
        }
        for (const auto& prompt : std::exchange(dialogs.prompts, {})) {
            text += "? " + prompt[0] + ": " + prompt[1] + " (" + prompt[2] + ")\n";
        }
        for (const std::string& topic : std::exchange(help.topics, {})) {
            text += "help (" + topic + ")\n";
        }
        for (; box < dialogs.boxes.size(); ++box) {
            noteStatus(statuses.at(box));
            text += Shown(dialogs.boxes[box], dialogs.answers[box]);
        }
        noteStatus(game.controls.lblStatus.Caption);
        const std::vector<Fact> after = FactsOf(game);
        game.controls.SetFocus = Control::None;
        if (game.exitStatus == 0) ExpectBoardShown();  // else it has never opened
        return text + Changes("@", before, after) + Changes("#", before, after);
    });
    EXPECT_TRUE(dialogs.queued.empty() && random.queued.empty()) << "More was expected to happen.";
    return Replaced(transcript, folder.Path(), "DIR");
}

void PlayedGame::DoAll(const std::string& commands) {
    for (const std::string& command : Parts(commands)) EXPECT_TRUE(Do(command)) << command;
}

bool PlayedGame::Do(const std::string& command) {
    std::istringstream words(command);
    std::string verb, name, text;
    int X = 0, Y = 0;
    words >> verb;
    if (verb == "click") {
        words >> X >> Y;
        history.Run(game, "lblX_Click", [&](Game& g) { lblX_Click(g, X, Y); });
    } else if (verb == "press") {
        words >> name;
        return Press(game, history, name);
    } else if (verb == "tick" || verb == "untick") {
        words >> X;
        const auto box = static_cast<std::size_t>(X);
        const CheckBox& chkItem = game.controls.chkItems.at(box);
        if (!chkItem.Visible || !chkItem.Enabled) return false;
        history.Run(game, "chkItems_Click",
                    [&](Game& g) { g.controls.chkItems[box].Value = verb == "tick"; });
    } else if (verb == "menu") {
        words >> name;
        const MenuCommand* item = FindMenuCommand(name);
        if (item == nullptr || !CanChoose(game, *item)) return false;
        history.Run(game, name + "_Click", HandlerOf(*item, history));
    } else if (verb == "saveas") {
        words >> name;
        dialogs.saveFileName = name.empty() ? "" : folder / name;
        return Do("menu mnuSaveAs");
    } else if (verb == "close") {
        history.Run(game, "Form_Unload", Form_Unload);
    } else if (verb == "answer") {
        while (words >> name) dialogs.queued.push_back(answersByName.at(name));
    } else if (verb == "roll") {
        while (words >> X) random.QueueRoll(X);
    } else if (verb == "type") {
        std::getline(words >> std::ws, text);
        dialogs.typedText = text;
    } else if (verb == "write") {
        words >> name;
        std::getline(words >> std::ws, text);
        WriteFile(folder / name, text);
    } else if (verb == "line") {
        words >> X;
        std::getline(words.ignore(), text);
        WriteFile(path, WithLine(ReadFile(path), X, text));
    } else if (verb == "erase") {
        words >> name;
        std::filesystem::remove(folder / name);
    } else if (verb == "rename") {
        words >> name;
        game.record.strPlayerName[2] = name;
    } else if (verb == "timer") {
        int ticks = 1;
        words >> ticks;
        if (!game.controls.tmrAI.Enabled) return false;
        for (; ticks > 0 && game.controls.tmrAI.Enabled; --ticks) {
            Tick(game);
            history.NoteTick(game);
        }
    } else if (verb == "still") {
        words >> game.record.Standstill.turns;
    } else if (verb == "reopen") {
        Open();
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
