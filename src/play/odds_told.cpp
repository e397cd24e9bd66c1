#include "play/odds_told.h"

#include "play/stacks.h"
#include "rules/questions/attack.h"
#include "rules/questions/start.h"

namespace qarn {
namespace {

bool CanAttackDirectly(const Position& position, Square from, Square to) {
    return AskStart(position, from) == StartRefusal::None &&
           AskStep(position, WholeStack(position, from), to).result == StepResult::DirectAttack;
}

std::string Percent(int numbersOfTheDie) {
    return std::to_string(100 * numbersOfTheDie / dieSides) + " %";
}

}  // namespace

AttackOdds OddsOfUnits(std::uint8_t attack, std::uint8_t defense, bool burns) {
    const Odds certain{.win = dieSides};
    return {.attack = attack,
            .defense = defense,
            .odds = burns ? certain : OddsOf(attack, defense),
            .burns = burns};
}

std::optional<AttackOdds> OddsOfAttack(const Position& position, Square from, Square to,
                                       bool blnDirect) {
    const AttackAnswer attack = AskAttack(position, from, to, blnDirect);
    if (attack.refusal != AttackRefusal::None) return std::nullopt;
    return OddsOfUnits(attack.attackUnits, attack.defenseUnits, attack.burns);
}

OddsAnswer OddsOfStack(const GameRecord& record, Square from, Square to) {
    const Position position = PositionInTurnOf(record, from);
    OddsAnswer answer;
    answer.command = OddsOfAttack(position, from, to, false);
    if (CanAttackDirectly(position, from, to)) {
        answer.direct = OddsOfAttack(position, from, to, true);
    }
    return answer;
}

std::string TextOf(const Odds& odds) {
    return "wins " + Percent(odds.win) + ", ties " + Percent(odds.tie) + ", loses " +
           Percent(odds.lose);
}

std::string TextOf(const AttackOdds& attack) {
    const std::string units =
        std::to_string(attack.attack) + " against " + std::to_string(attack.defense) + ": ";
    if (attack.burns) return units + "burns it down";
    return units + TextOf(attack.odds) +
           (attack.odds.lossAfterWin > 0 ? "; after a win one in five costs a character" : "");
}

}  // namespace qarn
