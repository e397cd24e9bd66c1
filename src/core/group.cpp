#include "core/group.h"

#include "core/eight_bit.h"

namespace qarn {

void AddStrength(Strength& totals, const Group& people) {
    totals = {EightBit(totals.Mobility + people.Mobility, "sum of the mobility units"),
              EightBit(totals.Attack + people.Attack, "sum of the attack units"),
              EightBit(totals.Defense + people.Defense, "sum of the defense units")};
}

}  // namespace qarn
