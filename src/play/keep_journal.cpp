#include "play/keep_journal.h"

#include <filesystem>
#include <system_error>

#include "core/file_store.h"
#include "core/fingerprint.h"
#include "core/game.h"
#include "core/player_error.h"
#include "play/journal.h"
#include "play/journal_lines.h"
#include "play/tell_journal.h"
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

Journal JournalOf(const Game& game) {
    Journal journal;
    const KeptJournal kept = ReadKeptJournal(game.ports, game.record.strGamePath);
    if (kept.position == Fingerprint(PositionText(game.record))) {
        journal = ReadJournal(kept.text);
    }
    NoteRules(journal, game.record.house);
    AddEvent(journal, game);
    return journal;
}

void FollowEvent(Journal& journal, const Game& game) {
    const HouseRules& rules = game.record.house;
    if (rules != game.beforeEvent.record.house) NoteRules(journal, rules);
    AddEvent(journal, game);
    if (!game.blnEnded) return;
    std::error_code none;
    const std::string& path = game.record.strGamePath;
    if (!std::filesystem::exists(path, none)) ForgetJournal(game.ports, path);
}

void KeepJournal(const Journal& journal, const Game& game) {
    const std::string& path = game.record.strGamePath;
    try {
        KeepJournalText(game.ports, path,
                        {Fingerprint(PositionText(game.record)), JournalLines(journal)});
    } catch (const std::system_error&) {
        // The game itself is saved; its journal is not worth a box.
    }
}

void ExportJournal(const std::string& path, const Journal& journal, const Game& game) {
    std::string text = game.controls.Caption + "\n\n";
    for (const std::string& line : TellJournal(journal, game)) text += line + "\n";
    try {
        ReplaceFile(path, text);
    } catch (const std::system_error& error) {
        throw PlayerError("The journal can not be written. " + error.code().message() + ".\n" +
                          path);
    }
}

}  // namespace qarn
