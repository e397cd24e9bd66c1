#include "play/tell_journal.h"

#include <string_view>

#include "core/captions.h"
#include "core/enumerate.h"
#include "core/game.h"
#include "core/opponents.h"
#include "play/journal.h"
#include "play/odds_told.h"
#include "play/square_text.h"
#include "rules/questions/odds.h"
#include "window/house_rules.h"

namespace qarn {
namespace {

std::string TextOf(Square square) {
    return "(" + std::to_string(square.X) + ", " + std::to_string(square.Y) + ")";
}

std::string ResultText(AttackResult result) {
    if (result == AttackResult::Won) return "won";
    return result == AttackResult::Tie ? "retreated without any losses" : "lost";
}

std::string RollText(const Attacked& attack) {
    std::string text =
        "Rolled a " + std::to_string(*attack.roll) + " and " + ResultText(attack.result);
    if (attack.secondRoll) {
        text += ", then a " + std::to_string(*attack.secondRoll);
        text += *attack.secondRoll == rollThatCosts ? ", which costs a character" : "";
    }
    return text + ".";
}

// Tells entry after entry, each to the turn that it belongs to.
class Teller {
public:
    explicit Teller(const Game& game) : game_(game), turns_(1) {}

    std::vector<ToldTurn> Tell(const Journal& journal) {
        for (const JournalEntry& entry : journal.entries) {
            if (!std::holds_alternative<Moved>(entry)) FinishMove();
            std::visit(*this, entry);
        }
        FinishMove();
        FinishTurn();
        if (turns_.front().sentences.empty()) turns_.erase(turns_.begin());
        return turns_;
    }

    void operator()(const TurnBegun& turn) {
        FinishTurn();
        if (turns_.size() > 1 && turns_.back().sentences.empty()) Say("Nothing was done.");
        const std::string number = std::to_string(turns_.size());
        turns_.push_back({"Turn " + number + ": " + PlayerOf(turn.side), {}});
        if (const OpponentChoice* opponent = FindOpponentChoice(turn.opponent)) {
            turns_.back().heading += ", played by " + PlainCaption(opponent->Caption);
        }
    }

    // Steps of the same people one after the other are one way.
    void operator()(const Moved& step) {
        const bool goesOn = !way_.path.empty() && step.people == way_.people &&
                            step.path[0] == way_.path.back() &&
                            way_.path.size() + step.path.size() <= longestPath;
        if (!goesOn) {
            FinishMove();
            way_ = step;
        } else {
            for (std::size_t k = 1; k < step.path.size(); ++k) way_.path.push_back(step.path[k]);
        }
    }

    void operator()(const Fight& fight) {
        const Attacked& attack = fight.attack;
        const std::string text =
            NamesOf(fight.attackers) + " attacked " + WhatIsAttacked(fight) + " from " +
            TextOf(attack.from) + (attack.direct ? " by stepping in, " : ", ") +
            std::to_string(attack.attack) + " against " + std::to_string(attack.defense);
        if (!attack.roll) return Say(text + ".");
        Say(text + ": " + TextOf(OddsOf(attack.attack, attack.defense)) + ".");
        Say(RollText(attack));
    }

    void operator()(const Lost& lost) {
        Say(PlayerOf(lost.side) + " lost " + NamesOf(lost.people) + " on " + TextOf(lost.at) + ".");
    }

    // Only Gallowrock becomes sand.
    void operator()(const Burned& burned) {
        Say((burned.terrain == Sand ? "Gallowrock " : "The abbey ") + TextOf(burned.at) +
            " burned down.");
    }

    void operator()(const Returned& back) {
        Say(NamesOf(back.people) + " had to go back to " + TextOf(back.at) + ".");
    }

    void operator()(const Ended& end) {
        if (end.winner == 0) return Say("The game is a draw.");
        if (end.resigned) Say(PlayerOf(OtherSide(end.winner)) + " resigned.");
        Say(PlayerOf(end.winner) + " won the game.");
    }

    void operator()(const RulesChosen& rules) {
        std::string text;
        for (const HouseRule& rule : AllHouseRules()) {
            if (!(rules.*rule.Chosen)) continue;
            text += (text.empty() ? "" : ", ") + std::string(rule.Told);
        }
        Say("House rules: " + (text.empty() ? "none" : text) + ".");
    }

    // What an opponent was asked stands together behind what came of it.
    void operator()(const Said& said) {
        if (said == NoMoveFound()) return Say(said.text);
        said_ += (said_.empty() ? "" : " ") + said.text;
    }

private:
    void Say(const std::string& sentence) { turns_.back().sentences.push_back(sentence); }

    void FinishMove() {
        if (way_.path.empty()) return;
        std::string by;
        for (std::size_t k = 1; k + 1 < way_.path.size(); ++k) {
            by += (by.empty() ? " by " : ", ") + TextOf(way_.path[k]);
        }
        Say(NamesOf(way_.people) + " went from " + TextOf(way_.path[0]) + by + " to " +
            TextOf(way_.path.back()) + ".");
        way_ = {};
    }

    void FinishTurn() {
        if (!said_.empty()) Say("Told meanwhile: " + said_);
        said_.clear();
    }

    std::string PlayerOf(std::uint8_t side) const { return NameOfSide(game_.record, side); }

    std::string NamesOf(PeopleSet people) const {
        std::vector<std::string_view> names;
        for (const std::uint8_t i : people) names.push_back(game_.record.People.at(i).Name);
        return Enumerate(names);
    }

    // Nobody need stand on a landmark that is attacked.
    std::string WhatIsAttacked(const Fight& fight) const {
        const std::string place = std::string(game_.controls.lblTerrKey.at(fight.terrain).Caption) +
                                  " " + TextOf(fight.attack.to);
        if (fight.defenders.Empty()) return place;
        return NamesOf(fight.defenders) + " on " + place;
    }

    const Game& game_;
    std::vector<ToldTurn> turns_;  // the first is the start
    Moved way_;                    // that is still being told
    std::string said_;             // in this turn
};

}  // namespace

std::vector<ToldTurn> TellTurns(const Journal& journal, const Game& game) {
    return Teller(game).Tell(journal);
}

std::vector<std::string> TellJournal(const Journal& journal, const Game& game) {
    std::vector<std::string> lines;
    for (const ToldTurn& turn : TellTurns(journal, game)) {
        if (!turn.heading.empty()) lines.push_back(turn.heading);
        for (const std::string& sentence : turn.sentences) {
            lines.push_back((turn.heading.empty() ? "" : "  ") + sentence);
        }
    }
    for (const std::string& sentence : TellLuck(journal, game)) lines.push_back(sentence);
    return lines;
}

}  // namespace qarn
