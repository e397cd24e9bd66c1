#include "rules/questions/terrain_effect.h"

#include "core/eight_bit.h"

namespace qarn {

TerrainEffect TerrainModifiers(const Position& position, Square square, bool blnDefending,
                               std::uint8_t bytAttack, std::uint8_t bytDefense, bool blnDirect) {
    const std::uint8_t T = TerrainOf(position, square);
    const TerrainValues& kind = position.TerrainKinds.at(T);
    TerrainEffect effect{.bytAttackOut = bytAttack, .bytDefenseOut = bytDefense};
    const auto addAttack = [&] {
        effect.bytAttackOut = EightBit(bytAttack + kind.Attack, "sum of the attack units");
    };
    const auto addDefense = [&] {
        effect.bytDefenseOut = EightBit(bytDefense + kind.Defense, "sum of the defense units");
    };

    switch (T) {
        case Mountain:
            if (!blnDirect && blnDefending) {
                effect.blnAllowed = false;
            } else if (blnDirect && !blnDefending) {
                addAttack();
            } else if (blnDefending) {
                addDefense();
            }
            break;
        case Ocean:
            if (blnDirect && blnDefending) addDefense();
            break;
        case Sand:
        case Forest:
            if (blnDefending) addDefense();
            break;
        case Fortress:
        case Abbey:
            if (!kind.DirectAttack && blnDirect) {
                effect.blnAllowed = false;
            } else {
                addDefense();
            }
            break;
        default:
            break;
    }
    return effect;
}

}  // namespace qarn
