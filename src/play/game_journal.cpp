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

}  // namespace

void GameJournal::Open(const Game& game) {
    const KeptJournal kept = ReadKeptJournal(game.ports, game.record.strGamePath);
    const bool same = kept.position == Fingerprint(PositionText(game.record));
    journal_ = same ? ReadJournal(kept.text) : Journal{};
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
    if (events > sizes_.size()) sizes_.push_back(size_);
    sizes_.resize(events);
    size_ = journal_.entries.size();

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

void GameJournal::Keep(const Game& game) const {
    try {
        KeepJournalText(game.ports, game.record.strGamePath,
                        {Fingerprint(PositionText(game.record)), JournalLines(journal_)});
    } catch (const std::system_error&) {
        // The game itself is saved; its journal is not worth a box.
    }
}

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
