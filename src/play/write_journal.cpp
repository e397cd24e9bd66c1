#include "play/journal_lines.h"

#include <sstream>

#include "play/journal.h"
#include "play/journal_words.h"
#include "window/house_rules.h"

namespace qarn {
namespace {

std::ostream& operator<<(std::ostream& out, Square square) {
    return out << int{square.X} << ',' << int{square.Y};
}

std::ostream& operator<<(std::ostream& out, PeopleSet people) {
    if (people.Empty()) return out << nobodyWord;
    std::string_view comma;
    for (const std::uint8_t i : people) {
        out << comma << int{i};
        comma = ",";
    }
    return out;
}

class Writer {
public:
    std::string Text() const { return out_.str(); }

    void operator()(const TurnBegun& turn) {
        out_ << "turn " << int{turn.side} << ' '
             << (turn.opponent.empty() ? personWord : turn.opponent) << '\n';
    }
    void operator()(const Moved& moved) {
        out_ << "move " << int{moved.side} << ' ' << moved.people;
        for (const Square square : moved.path) out_ << ' ' << square;
        out_ << '\n';
    }
    void operator()(const Fight& fight) {
        const Attacked& attack = fight.attack;
        out_ << "fight " << int{attack.side} << ' ' << attack.from << ' ' << attack.to << ' '
             << attack.direct << ' ' << int{attack.attack} << ' ' << int{attack.defense} << ' '
             << attack.roll.value_or(0) << ' ' << attack.secondRoll.value_or(0) << ' '
             << int{fight.terrain} << ' ' << fight.attackers << ' ' << fight.defenders << '\n';
    }
    void operator()(const Lost& lost) {
        out_ << "lost " << int{lost.side} << ' ' << lost.people << ' ' << lost.at << '\n';
    }
    void operator()(const Burned& burned) {
        out_ << "burned " << burned.at << ' ' << int{burned.terrain} << '\n';
    }
    void operator()(const Returned& back) {
        out_ << "return " << back.people << ' ' << back.at << '\n';
    }
    void operator()(const Ended& end) {
        out_ << "end " << int{end.winner} << (end.resigned ? " resigned" : "") << '\n';
    }
    void operator()(const RulesChosen& rules) {
        out_ << "rules";
        for (const HouseRule& rule : AllHouseRules()) {
            if (rules.*rule.Chosen) out_ << ' ' << rule.Name;
        }
        out_ << '\n';
    }
    void operator()(const Said& said) {
        std::string line = said.text;
        for (char& character : line) {
            if (character == '\n') character = ' ';
        }
        out_ << "said " << line << '\n';
    }

private:
    std::ostringstream out_;
};

}  // namespace

std::string JournalLines(const Journal& journal) {
    Writer writer;
    for (const JournalEntry& entry : journal.entries) std::visit(writer, entry);
    return writer.Text();
}

}  // namespace qarn
