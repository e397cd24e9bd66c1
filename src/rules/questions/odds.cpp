#include "rules/questions/odds.h"

namespace qarn {

Odds OddsOf(int attack, int defense) {
    const int threshold = ThresholdOf(attack, defense);
    Odds odds;
    for (int roll = 1; roll <= dieSides; ++roll) {
        switch (ResultOfRoll(roll, threshold)) {
            case AttackResult::Won:
                ++odds.win;
                break;
            case AttackResult::Tie:
                ++odds.tie;
                break;
            default:
                ++odds.lose;
        }
    }
    if (odds.win > 0) odds.lossAfterWin = 1;
    return odds;
}

}  // namespace qarn
