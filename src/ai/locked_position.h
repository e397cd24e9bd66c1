#pragma once

#include "core/position.h"
#include "core/standstill.h"

namespace qarn {

/// A standstill of so many turns of both sides together is locked.
inline constexpr int turnsOfALock = 30;

/// How far the evaluation of a side may move in a standstill. Where Captains shuffle for good, it
/// stays within 0.02 in four of five stretches of 30 turns; in four of five stretches of Scouts out
/// of which one of them still came to fight, it moves farther.
inline constexpr float evaluationAtRest = 0.02F;

/// Notes how both sides stand in a position in which a turn begins. Where an evaluation has moved,
/// the standstill begins anew.
void NoteEvaluations(Standstill& standstill, const Position& position);

/// True when the sides have stood still so long that they can not hurt each other any more.
bool IsLocked(const Standstill& standstill);

}  // namespace qarn
