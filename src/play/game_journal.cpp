#include "play/game_journal.h"

#include <filesystem>
#include <system_error>

#include "core/file_store.h"
#include "core/fingerprint.h"
#include "core/game.h"
#include "core/player_error.h"
#include "play/journal_lines.h"
#include "play/tell_journal.h"
#include "play/turn_history.h"
#include "shell/kept_journal.h"
#include "window/opponents_turn.h"

namespace qarn {
namespace {

// How the game stands, as far as its file tells.
std::string PositionText(const GameRecord& record) {
    std::string text{static_cast<char>(record.bytScenario), static_cast<char>(record.bytTurn)};
    for (const PeopleRecord& people : record.People) {
        text += static_cast<char>(people.LocationX);
        text += static_cast<char>(people.LocationY);
    }
    for (const auto& column : record.bytTerrain) {
        for (const std::uint8_t code : column) text += static_cast<char>(code);
    }
    return text;
}

// What goes with the game that a crash leaves to be recovered is kept beside what goes with its
// file: the person chooses one of them.
std::string PathOfRecovery(const Game& game) { return game.record.strGamePath + ".recovery"; }

void KeepFor(const std::string& path, const Journal& journal, const Game& game) {
    try {
        KeepJournalText(game.ports, path,
                        {Fingerprint(PositionText(game.record)), JournalLines(journal)});
    } catch (const std::system_error&) {
        // The game itself is kept; its journal is not worth a box.
    }
}

void KeepForRecovery(const Journal& journal, const Game& game) {
    if (game.ports.folders.userState.empty()) return;
    if (game.blnEnded || !game.blnOpen) {
        ForgetJournal(game.ports, PathOfRecovery(game));
    } else if (game.keeping && Brought<TurnCame>(game.happenings)) {
        KeepFor(PathOfRecovery(game), journal, game);
    }
}

}  // namespace

void GameJournal::Open(const Game& game) {
    journal_ = {};
    const std::string position = Fingerprint(PositionText(game.record));
    for (const std::string& path : {PathOfRecovery(game), game.record.strGamePath}) {
        const KeptJournal kept = ReadKeptJournal(game.ports, path);
        if (kept.position == position) journal_ = ReadJournal(kept.text);
    }
    NoteRules(journal_, game.record.house);
    AddEvent(journal_, game);
    size_ = journal_.entries.size();
    sizes_.clear();
}

void GameJournal::Follow(const Game& game, const TurnHistory& history) {
    const std::size_t events = history.Events();
    const HouseRules& rules = game.record.house;
    if (history.TookBack()) Cut(sizes_.at(events));
    if (history.TookBack() || rules != game.beforeEvent.record.house) NoteRules(journal_, rules);
    AddEvent(journal_, game);
    if (HasFoundNoMove(game)) NoteNoMove(journal_);
    if (events > sizes_.size()) sizes_.push_back(size_);
    sizes_.resize(events);
    size_ = journal_.entries.size();
    KeepForRecovery(journal_, game);

    std::error_code none;
    const std::string& path = game.record.strGamePath;
    if (game.blnEnded && !std::filesystem::exists(path, none)) ForgetJournal(game.ports, path);
}

void GameJournal::Cut(std::size_t size) {
    const auto first = journal_.entries.begin() + static_cast<std::ptrdiff_t>(size);
    journal_.entries.erase(first, journal_.entries.end());
}

void GameJournal::NoteSaid(std::string_view opponent, const MessageBox& box, Answer answer) {
    qarn::NoteSaid(journal_, opponent, box, answer);
}

void GameJournal::Keep(const Game& game) const { KeepFor(game.record.strGamePath, journal_, game); }

void GameJournal::Export(const std::string& path, const Game& game) const {
    std::string text = game.controls.Caption + "\n\n";
    for (const std::string& line : TellJournal(journal_, game)) text += line + "\n";
    try {
        ReplaceFile(path, text);
    } catch (const std::system_error& error) {
        throw PlayerError("The journal can not be written. " + error.code().message() + ".\n" +
                          path);
    }
}

}  // namespace qarn
