#include "play/journal.h"

#include <algorithm>

#include "core/captions.h"
#include "core/game.h"
#include "core/opponents.h"
#include "rules/questions/sides.h"
#include "window/told_of_opponent.h"

namespace qarn {
namespace {

// The last entry of a kind; null when there is none.
template <typename Kind>
const Kind* LastOf(const Journal& journal) {
    for (auto entry = journal.entries.rbegin(); entry != journal.entries.rend(); ++entry) {
        if (const Kind* found = std::get_if<Kind>(&*entry)) return found;
    }
    return nullptr;
}

// The turn that has just begun; null once more than words came about in it.
TurnBegun* UntouchedTurn(Journal& journal) {
    const auto last = std::find_if_not(
        journal.entries.rbegin(), journal.entries.rend(),
        [](const JournalEntry& entry) { return std::holds_alternative<Said>(entry); });
    return last == journal.entries.rend() ? nullptr : std::get_if<TurnBegun>(&*last);
}

std::string_view OpponentOf(const Game& game, std::uint8_t side) {
    return game.record.blnComputer.at(side) ? game.opponent.at(side) : std::string_view();
}

class Writer {
public:
    Writer(Journal& journal, const Game& game) : journal_(journal), game_(game) {}

    // A game that is opened again goes on with the turn that it was in, and one that ends does so
    // in the turn that ended it.
    void operator()(const TurnCame& turn) {
        const TurnBegun* last = LastOf<TurnBegun>(journal_);
        const bool ends = std::holds_alternative<Ended>(game_.happenings.back());
        if (ends || (last != nullptr && last->side == turn.side)) return;
        journal_.entries.emplace_back(TurnBegun{turn.side, OpponentOf(game_, turn.side)});
    }

    // Who met in an attack stood there before the event: nothing comes before an attack in one.
    void operator()(const Attacked& attack) {
        const Position before = PositionOf(game_.beforeEvent.record);
        journal_.entries.emplace_back(Fight{attack, TerrainOf(before, attack.to),
                                            ActorsOf(before, PeopleOn(before, attack.from)),
                                            DefendersOf(before, PeopleOn(before, attack.to))});
    }

    template <typename Kind>
    void operator()(const Kind& happening) {
        journal_.entries.emplace_back(happening);
    }

private:
    Journal& journal_;
    const Game& game_;
};

}  // namespace

void AddEvent(Journal& journal, const Game& game) {
    if (game.happenings.empty()) return;
    // Another opponent may have been chosen since the turn began.
    if (TurnBegun* turn = UntouchedTurn(journal)) turn->opponent = OpponentOf(game, turn->side);
    Writer writer(journal, game);
    for (const Happening& happening : game.happenings) std::visit(writer, happening);
}

void NoteRules(Journal& journal, const HouseRules& rules) {
    const RulesChosen* told = LastOf<RulesChosen>(journal);
    if ((told == nullptr ? RulesChosen{} : *told) == rules) return;
    journal.entries.emplace_back(rules);
}

void NoteSaid(Journal& journal, std::string_view opponent, const MessageBox& box, Answer answer) {
    const std::string name = PlainCaption(FindOpponentChoice(opponent)->Caption);
    if (TurnBegun* turn = UntouchedTurn(journal)) turn->opponent = opponent;
    journal.entries.emplace_back(Said{ToldOfOpponent(name, box, answer)});
}

const Said& NoMoveFound() {
    static const Said said{
        ToldOfNoMove(PlainCaption(FindOpponentChoice(classicOpponent)->Caption))};
    return said;
}

void NoteNoMove(Journal& journal) {
    const JournalEntry told = NoMoveFound();
    if (journal.entries.empty() || journal.entries.back() != told) journal.entries.push_back(told);
}

int TurnsOf(const Journal& journal) {
    return static_cast<int>(std::count_if(
        journal.entries.begin(), journal.entries.end(),
        [](const JournalEntry& entry) { return std::holds_alternative<TurnBegun>(entry); }));
}

}  // namespace qarn
