#include "play/journal_lines.h"

#include <optional>
#include <sstream>
#include <stdexcept>

#include "core/group.h"
#include "core/opponents.h"
#include "play/journal.h"
#include "play/journal_words.h"
#include "rules/questions/odds.h"
#include "window/house_rules.h"

namespace qarn {
namespace {

constexpr int mostUnits = 255;

// The words of one line. Throws std::invalid_argument for what nobody can have written.
class Reader {
public:
    explicit Reader(const std::string& line) : words_(line) {}

    std::string Word() {
        std::string word;
        if (!(words_ >> word)) Refuse();
        return word;
    }
    std::optional<std::string> NextWord() {
        std::string word;
        return words_ >> word ? std::optional(word) : std::nullopt;
    }
    std::string Rest() {
        std::string rest;
        std::getline(words_ >> std::ws, rest);
        return rest;
    }

    std::uint8_t Number(int least, int most) {
        return Within(std::istringstream(Word()), least, most);
    }
    std::uint8_t Side() { return Number(1, 2); }
    Square SquareAt() { return ParseSquare(Word()); }
    PeopleSet People() {
        PeopleSet people;
        std::string word = Word();
        if (word == nobodyWord) return people;
        std::istringstream numbers(word);
        for (std::string number; std::getline(numbers, number, ',');) {
            people.Add(Within(std::istringstream(number), 1, peopleCount));
        }
        return people;
    }

    static Square ParseSquare(const std::string& word) {
        const std::size_t comma = word.find(',');
        if (comma == word.npos) Refuse();
        return {Within(std::istringstream(word.substr(0, comma)), 1, columnCount),
                Within(std::istringstream(word.substr(comma + 1)), 1, rowCount)};
    }
    [[noreturn]] static void Refuse() { throw std::invalid_argument("no journal"); }

private:
    static std::uint8_t Within(std::istringstream digits, int least, int most) {
        int number = -1;
        if (!(digits >> number) || !digits.eof() || number < least || number > most) Refuse();
        return static_cast<std::uint8_t>(number);
    }

    std::istringstream words_;
};

TurnBegun ReadTurn(Reader& reader) {
    TurnBegun turn{reader.Side(), {}};
    const std::string opponent = reader.Word();
    if (opponent == personWord) return turn;
    const OpponentChoice* choice = FindOpponentChoice(opponent);
    if (choice == nullptr) Reader::Refuse();
    turn.opponent = choice->Name;
    return turn;
}

Moved ReadMove(Reader& reader) {
    Moved moved{reader.Side(), reader.People(), {}};
    while (const auto word = reader.NextWord()) moved.path.push_back(Reader::ParseSquare(*word));
    if (moved.path.size() < 2) Reader::Refuse();
    return moved;
}

// What follows from the units and the roll is not written.
Fight ReadFight(Reader& reader) {
    Fight fight;
    Attacked& attack = fight.attack;
    attack.side = reader.Side();
    attack.from = reader.SquareAt();
    attack.to = reader.SquareAt();
    attack.direct = reader.Number(0, 1) == 1;
    attack.attack = reader.Number(0, mostUnits);
    attack.defense = reader.Number(0, mostUnits);
    attack.threshold = static_cast<std::uint8_t>(ThresholdOf(attack.attack, attack.defense));
    if (const int roll = reader.Number(0, dieSides)) {
        attack.roll = roll;
        attack.result = ResultOfRoll(roll, attack.threshold);
    }
    if (const int roll = reader.Number(0, dieSides)) attack.secondRoll = roll;
    fight.terrain = reader.Number(0, terrainKindCount - 1);
    fight.attackers = reader.People();
    fight.defenders = reader.People();
    return fight;
}

Lost ReadLost(Reader& reader) {
    const std::uint8_t side = reader.Side();
    const PeopleSet people = reader.People();
    return {people, side, reader.SquareAt()};
}

Burned ReadBurned(Reader& reader) {
    const Square at = reader.SquareAt();
    return {at, reader.Number(0, terrainKindCount - 1)};
}

Returned ReadReturn(Reader& reader) {
    const PeopleSet people = reader.People();
    return {people, reader.SquareAt()};
}

Ended ReadEnd(Reader& reader) {
    const std::uint8_t winner = reader.Number(0, 2);
    return {winner, reader.NextWord() == "resigned"};
}

RulesChosen ReadRules(Reader& reader) {
    RulesChosen rules;
    while (const auto name = reader.NextWord()) {
        for (const HouseRule& rule : AllHouseRules()) {
            if (rule.Name == *name) rules.*rule.Chosen = true;
        }
    }
    return rules;
}

JournalEntry ReadEntry(Reader& reader) {
    const std::string what = reader.Word();
    if (what == "turn") return ReadTurn(reader);
    if (what == "move") return ReadMove(reader);
    if (what == "fight") return ReadFight(reader);
    if (what == "lost") return ReadLost(reader);
    if (what == "burned") return ReadBurned(reader);
    if (what == "return") return ReadReturn(reader);
    if (what == "end") return ReadEnd(reader);
    if (what == "rules") return ReadRules(reader);
    if (what == "said") return Said{reader.Rest()};
    Reader::Refuse();
}

}  // namespace

Journal ReadJournal(const std::string& lines) {
    Journal journal;
    std::istringstream text(lines);
    for (std::string line; std::getline(text, line);) {
        try {
            Reader reader(line);
            journal.entries.push_back(ReadEntry(reader));
        } catch (const std::logic_error&) {
            continue;  // of the reader, or of a path that is too long
        }
    }
    return journal;
}

}  // namespace qarn
