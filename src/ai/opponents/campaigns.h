#pragma once

#include "ai/opponents/armies.h"

namespace qarn {

/// What the best strike is worth that a side could march for, with a stack as it stands or with a
/// team that has yet to gather: the strength that falls by expectation, less what it costs, as a
/// share of the strengths of both sides, a tenth less for each turn until then. 0 when the side
/// could beat nobody.
float CampaignOf(const Armies& armies, std::uint8_t side, const Distances& distances);

}  // namespace qarn
