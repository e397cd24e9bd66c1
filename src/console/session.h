#pragma once

#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "console/answers.h"
#include "console/console_ports.h"
#include "core/game.h"
#include "play/game_journal.h"
#include "play/turn_history.h"

namespace qarn {

/// One run of the text front end: a game window's logic, driven by commands. Each command runs the
/// handler that the matching control of the desktop window runs.
class Session {
public:
    using Words = std::vector<std::string>;

    /// A command and how many words it takes.
    struct Command {
        std::string_view name;
        std::size_t fewestWords;  ///< behind the name
        std::size_t mostWords;
        bool needsGame;
        void (Session::*run)(const Words&);
    };

    /// All commands; the front ends know some more of their own.
    static std::span<const Command> Commands();

    /// `isAskedToEnd` stops a command that goes on for long.
    explicit Session(
        const DesktopPorts& desktop, std::function<bool()> isAskedToEnd = [] { return false; });

    /// Carries out one command, taken apart into words (at least one). Throws Refusal, and nothing
    /// else, for what a person could not do and for a fault of the program; nothing has changed
    /// then.
    void Execute(const Words& words);

    /// Closes the game, if one is open, as the command does, but without asking anything.
    void CloseWithoutBoxes();

    const Game& CurrentGame() const { return game_; }
    ConsoleDialogs& Dialogs() { return dialogs_; }
    ConsoleHelp& Help() { return help_; }
    /// What has happened in the game since the last call, in order.
    Happenings TakeHappenings() { return std::exchange(happenings_, {}); }

    /// The answers given since the last call.
    Answers TakeAnswers() { return std::exchange(answers_, {}); }

private:
    void New(const Words& words);
    void Open(const Words& words);
    void Click(const Words& words);
    void Press(const Words& words);
    void Tick(const Words& words);
    void Untick(const Words& words);
    void ChooseMenu(const Words& words);
    void PassTime(const Words& words);
    void QueueAnswers(const Words& words);
    void QueueNumbers(const Words& words);
    void Seed(const Words& words);
    void ChooseLevel(const Words& words);
    void ChooseHouseRule(const Words& words);
    void SaveAs(const Words& words);
    void ShowState(const Words& words);
    void AskReach(const Words& words);
    void AskOdds(const Words& words);
    void AskHint(const Words& words);
    void ChooseInMenuPlay(const Words& words);
    void AskJournal(const Words& words);
    void Close(const Words& words);

    void ExecuteOrThrow(const Words& words);
    void Run(std::string_view name, const std::function<void(Game&)>& handler);
    void Load(const std::string& path, const std::function<void()>& prepare);
    void NoteHappenings();
    void NoteAnswered(const MessageBox& box, Answer answer);
    void PressTerrainDetails(std::string_view name);
    void SetTick(const std::string& word, bool ticked);
    void RequireRunning() const;

    std::function<bool()> isAskedToEnd_;
    ConsoleDialogs dialogs_;
    ConsoleRandomNumbers random_;
    ConsoleHelp help_;
    Game game_;
    TurnHistory history_;
    GameJournal journal_;
    Happenings happenings_;
    Answers answers_;
};

}  // namespace qarn
