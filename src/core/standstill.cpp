#include "core/standstill.h"

#include <variant>

namespace qarn {

void CountTurns(Standstill& standstill, const Happenings& happenings) {
    for (const Happening& happening : happenings) {
        if (std::holds_alternative<Lost>(happening) || std::holds_alternative<Burned>(happening)) {
            standstill = {};
        } else if (std::holds_alternative<TurnCame>(happening)) {
            ++standstill.turns;
            standstill.drawn = false;
        }
    }
}

}  // namespace qarn
