#include "console/session.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>
#include <optional>

#include "ai/turn_driver.h"
#include "console/words.h"
#include "core/failure_text.h"
#include "core/opponents.h"
#include "core/player_error.h"
#include "play/play_menu.h"
#include "play/tell_journal.h"
#include "rules/terrain.h"
#include "window/board_clicks.h"
#include "window/buttons.h"
#include "window/house_rules.h"
#include "window/menu_commands.h"
#include "window/opponents_turn.h"

namespace qarn {
namespace {

constexpr std::size_t anyNumber = std::numeric_limits<std::size_t>::max();

Square ParseSquare(const std::string& column, const std::string& row) {
    return {static_cast<std::uint8_t>(ParseNumber<int>(column, 1, columnCount)),
            static_cast<std::uint8_t>(ParseNumber<int>(row, 1, rowCount))};
}

double ParseUniform(const std::string& word) {
    double number = 0;
    const char* end = word.data() + word.size();
    const auto [stop, error] = std::from_chars(word.data(), end, number);
    if (error != std::errc() || stop != end || !(number >= 0 && number < 1)) {
        throw Refusal("\"" + word + "\" should be a number of at least 0 and below 1.");
    }
    return number;
}

void RequireUsable(bool enabled, bool visible, std::string_view name) {
    if (!visible) throw Refusal(std::string(name) + " is hidden.");
    if (!enabled) throw Refusal(std::string(name) + " is disabled.");
}

void RequireTaken(bool taken) {
    if (!taken) throw Refusal("The opponent acts: board and buttons wait for it.");
}

const MenuCommand& RequireChoosable(const Game& game, const std::string& name) {
    const MenuCommand* command = FindMenuCommand(name);
    if (command == nullptr) throw Refusal("There is no menu item \"" + name + "\".");
    if (!CanChoose(game, *command)) throw Refusal(name + " can not be chosen now.");
    return *command;
}

// The code in "cmdSeeTerDet(code)"; none when the name is another.
std::optional<int> CodeOfTerrainDetails(std::string_view name) {
    constexpr std::string_view head = "cmdSeeTerDet(";
    if (!name.starts_with(head) || !name.ends_with(')')) return std::nullopt;
    name.remove_prefix(head.size());
    name.remove_suffix(1);
    return ParseNumber<int>(std::string(name), 0, terrainKindCount - 1);
}

}  // namespace

Session::Session(const DesktopPorts& desktop, std::function<bool()> isAskedToEnd)
    : isAskedToEnd_(std::move(isAskedToEnd)),
      game_{.record = {},
            .controls = {},
            .ports = {dialogs_, random_, help_, desktop.settings, desktop.fileTypes,
                      desktop.folders}} {
    LoadHouseRules(game_);
    game_.afterSave = [this] { journal_.Keep(game_); };
    dialogs_.SetNoteAnswered(
        [this](const MessageBox& box, Answer answer) { NoteAnswered(box, answer); });
}

std::span<const Session::Command> Session::Commands() {
    static constexpr std::array<Command, 25> commands{{
        {"new", 6, 6, false, &Session::New},
        {"open", 1, 1, false, &Session::Open},
        {"click", 2, 2, true, &Session::Click},
        {"press", 1, 1, true, &Session::Press},
        {"tick", 1, 1, true, &Session::Tick},
        {"untick", 1, 1, true, &Session::Untick},
        {"menu", 1, 1, true, &Session::ChooseMenu},
        {"timer", 0, 1, true, &Session::PassTime},
        {"answer", 1, anyNumber, false, &Session::QueueAnswers},
        {"random", 1, anyNumber, false, &Session::QueueNumbers},
        {"seed", 1, 1, false, &Session::Seed},
        {"level", 1, 2, false, &Session::ChooseLevel},
        {"house", 2, 2, false, &Session::ChooseHouseRule},
        {"saveas", 1, 1, true, &Session::SaveAs},
        {"state", 0, 0, false, &Session::ShowState},
        {"reach", 0, 2, true, &Session::AskReach},
        {"odds", 4, 4, true, &Session::AskOdds},
        {"hint", 0, 0, true, &Session::AskHint},
        {"undo", 0, 0, true, &Session::ChooseInMenuPlay},
        {"cancel", 0, 0, true, &Session::ChooseInMenuPlay},
        {"pass", 0, 0, true, &Session::ChooseInMenuPlay},
        {"resign", 0, 0, true, &Session::ChooseInMenuPlay},
        {"draw", 0, 0, true, &Session::ChooseInMenuPlay},
        {"journal", 0, 0, true, &Session::AskJournal},
        {"close", 0, 0, true, &Session::Close},
    }};
    return commands;
}

void Session::Execute(const Words& words) {
    try {
        ExecuteOrThrow(words);
    } catch (const Refusal&) {
        throw;
    } catch (...) {
        throw Refusal(FailureText(std::current_exception(), words.front()));
    }
}

void Session::ExecuteOrThrow(const Words& words) {
    const auto commands = Commands();
    const auto command = std::find_if(commands.begin(), commands.end(), [&](const Command& one) {
        return one.name == words.front();
    });
    if (command == commands.end()) throw Refusal("There is no command \"" + words.front() + "\".");
    const std::size_t count = words.size() - 1;
    if (count < command->fewestWords || count > command->mostWords) {
        throw Refusal("The command \"" + words.front() + "\" has too few or too many words.");
    }
    if (command->needsGame && !game_.blnOpen) {
        throw Refusal(game_.blnEnded ? "The program has ended." : "No game is open.");
    }
    (this->*command->run)(words);
}

void Session::RequireRunning() const {
    if (game_.blnEnded) throw Refusal("The program has ended.");
}

void Session::Click(const Words& words) {
    const Square square = ParseSquare(words[1], words[2]);
    RequireTaken(TakesClicks(game_));
    Run("lblX_Click", [&](Game& game) { lblX_Click(game, square.X, square.Y); });
}

void Session::Press(const Words& words) {
    const std::string& name = words[1];
    const WindowButton* found = FindButton(name);
    if (found == nullptr) {
        PressTerrainDetails(name);
        return;
    }
    const Button& button = game_.controls.*found->State;
    RequireTaken(TakesPress(game_, *found));
    RequireUsable(button.Enabled, button.Visible, name);
    Run(std::string(found->Name) + "_Click", found->Click);
}

void Session::PressTerrainDetails(std::string_view name) {
    const std::optional<int> code = CodeOfTerrainDetails(name);
    if (!code) throw Refusal("There is no button \"" + std::string(name) + "\".");
    const Button& button = game_.controls.cmdSeeTerDet[static_cast<std::size_t>(*code)];
    RequireUsable(button.Enabled, button.Visible, name);
    Run("cmdSeeTerDet_Click", [&](Game& game) { cmdSeeTerDet_Click(game, *code); });
}

void Session::Tick(const Words& words) { SetTick(words[1], true); }

void Session::Untick(const Words& words) { SetTick(words[1], false); }

void Session::SetTick(const std::string& word, bool ticked) {
    const auto i = ParseNumber<std::size_t>(word, 1, checkBoxCount);
    const CheckBox& box = game_.controls.chkItems[i];
    RequireTaken(!OpponentActs(game_));
    RequireUsable(box.Enabled, box.Visible, "chkItems(" + word + ")");
    Run("chkItems_Click", [=](Game& game) { game.controls.chkItems[i].Value = ticked; });
}

void Session::ChooseMenu(const Words& words) {
    const MenuCommand& command = RequireChoosable(game_, words[1]);
    Run(std::string(command.Name) + "_Click", HandlerOf(command, history_));
    if (std::exchange(game_.blnHintWanted, false)) {
        Run("ShowHint",
            [&](Game& game) { answers_.hint = ShowHint(game, ChooseAtOnce(ChoiceOfHint(game))); });
    }
}

void Session::PassTime(const Words& words) {
    const long times =
        words.size() > 1 ? ParseNumber<long>(words[1], 1, std::numeric_limits<long>::max()) : 1;
    const auto goesOn = [&] {
        return game_.blnOpen && game_.controls.tmrAI.Enabled && !isAskedToEnd_();
    };
    for (long time = 0; time < times && goesOn(); ++time) {
        qarn::Tick(game_);
        history_.NoteTick(game_);
        NoteHappenings();
    }
}

void Session::QueueAnswers(const Words& words) {
    std::vector<Answer> answers;
    for (std::size_t i = 1; i < words.size(); ++i) {
        const std::optional<Answer> answer = AnswerOf(words[i]);
        if (!answer || *answer == Answer::OK) {
            throw Refusal("An answer is yes, no, retry or cancel, not \"" + words[i] + "\".");
        }
        answers.push_back(*answer);
    }
    for (const Answer answer : answers) dialogs_.QueueAnswer(answer);
}

void Session::QueueNumbers(const Words& words) {
    std::vector<double> numbers;
    for (std::size_t i = 1; i < words.size(); ++i) numbers.push_back(ParseUniform(words[i]));
    for (const double number : numbers) random_.QueueNumber(number);
}

void Session::Seed(const Words& words) {
    random_.SetSeed(
        ParseNumber<std::uint64_t>(words[1], 0, std::numeric_limits<std::uint64_t>::max()));
}

void Session::ChooseLevel(const Words& words) {
    const OpponentChoice* opponent = FindOpponentChoice(words[1]);
    if (opponent == nullptr) throw Refusal("There is no opponent \"" + words[1] + "\".");
    const int side = words.size() > 2 ? ParseNumber<int>(words[2], 1, 2) : 0;
    if (side != 2) ChooseOpponent(game_, 1, *opponent);
    if (side != 1) ChooseOpponent(game_, 2, *opponent);
}

void Session::ChooseHouseRule(const Words& words) {
    RequireRunning();
    const auto rules = AllHouseRules();
    const auto rule = std::find_if(rules.begin(), rules.end(),
                                   [&](const HouseRule& one) { return one.Name == words[1]; });
    if (rule == rules.end()) throw Refusal("There is no house rule \"" + words[1] + "\".");
    if (words[2] != "on" && words[2] != "off") {
        throw Refusal("A house rule is on or off, not \"" + words[2] + "\".");
    }
    const MenuCommand& item = RequireChoosable(game_, std::string(rule->Item));
    Run(std::string(item.Name) + "_Click",
        [&](Game& game) { qarn::ChooseHouseRule(game, *rule, words[2] == "on"); });
}

void Session::SaveAs(const Words& words) {
    const std::string path = ParsePath(words[1]);
    const MenuCommand& mnuSaveAs = RequireChoosable(game_, "mnuSaveAs");
    dialogs_.SetSaveFileName(path);
    Run("mnuSaveAs_Click", mnuSaveAs.Click);
}

// The front end shows the state after every command.
void Session::ShowState(const Words&) {}

void Session::AskReach(const Words& words) {
    if (words.size() == 2) throw Refusal("A square has a column and a row.");
    answers_.reach = words.size() == 1
                         ? ReachOfGroupInMove(game_.record)
                         : ReachOfStack(game_.record, ParseSquare(words[1], words[2]));
}

void Session::AskOdds(const Words& words) {
    answers_.odds =
        OddsOfStack(game_.record, ParseSquare(words[1], words[2]), ParseSquare(words[3], words[4]));
}

void Session::AskHint(const Words&) { ChooseMenu({"menu", "mnuHint"}); }

void Session::ChooseInMenuPlay(const Words& words) {
    static constexpr std::array<std::pair<std::string_view, const char*>, 5> items{{
        {"undo", "mnuTakeBack"},
        {"cancel", "mnuCancelMove"},
        {"pass", "mnuPassTurn"},
        {"resign", "mnuResign"},
        {"draw", "mnuOfferDraw"},
    }};
    const auto item = std::find_if(items.begin(), items.end(),
                                   [&](const auto& one) { return one.first == words.front(); });
    ChooseMenu({"menu", item->second});
}

void Session::AskJournal(const Words&) { answers_.journal = TellJournal(journal_.Told(), game_); }

// ---- Events ----

void Session::Run(std::string_view name, const std::function<void(Game&)>& handler) {
    std::string unanswered;
    history_.Run(game_, name, [&](Game& game) {
        try {
            handler(game);
        } catch (const NobodyAnswers& question) {
            unanswered = question.what();
            throw;
        }
    });
    NoteHappenings();
    if (!unanswered.empty()) throw Refusal(unanswered);
}

void Session::NoteHappenings() {
    happenings_.insert(happenings_.end(), game_.happenings.begin(), game_.happenings.end());
    journal_.Follow(game_, history_);
}

void Session::NoteAnswered(const MessageBox& box, Answer answer) {
    journal_.NoteSaid(game_.opponent.at(game_.record.bytTurn), box, answer);
}

}  // namespace qarn
