#pragma once

#include <QRect>

#include "core/board_geometry.h"
#include "core/game_record.h"

namespace qarn {

// The design of the game window: where its controls stand, in twips (15 to a pixel) of its client
// area. Controls inside a frame are counted from the frame's corner.

inline constexpr QSize designTwips(15240, 10440);

inline constexpr QRect boardTwips(boardLeftTwips, boardTopTwips,
                                  LeftOfColumn(columnCount) + squareWidthTwips - boardLeftTwips,
                                  TopOfRow(rowCount) + squareHeightTwips - boardTopTwips);

inline constexpr QRect cmdSquareDetailsTwips(13320, 3360, 1695, 375);
inline constexpr QRect lblDetailMoreTwips(13200, 3840, 1815, 1335);
inline constexpr QRect fraCheckBoxesTwips(13200, 5400, 1935, 3255);
inline constexpr QRect cmdDoneSelTwips(120, 2760, 1695, 375);
inline constexpr QRect cmdAttackTwips(13320, 8880, 1695, 375);
inline constexpr QRect cmdMoveTwips(13320, 9360, 1695, 375);
inline constexpr QRect lblStatusTwips(120, 9840, 8895, 495);
// The status line gives room for the strip beside it.
inline constexpr QRect lblStatusBesideStripTwips(120, 9840, 6300, 495);
inline constexpr QRect opponentStripTwips(6480, 9810, 6720, 540);
// Inside the strip, which makes the offer of a first game too.
inline constexpr QRect offerTextTwips(90, 60, 4050, 420);
inline constexpr QRect takeOfferTwips(4200, 75, 1290, 390);
inline constexpr QRect declineOfferTwips(5550, 75, 1095, 390);
// Between the status line and the panel.
inline constexpr QRect oddsNoteTwips(9090, 9810, 4110, 540);
// On the strip, where the computer has found no move.
inline constexpr QRect noMoveTextTwips(90, 30, 2850, 480);
inline constexpr QRect cmdPassItsTurnTwips(2985, 83, 1650, 375);
inline constexpr QRect cmdOtherOpponentTwips(4755, 83, 1875, 375);
inline constexpr QRect quickInfoTitleTwips(90, 60, 1395, 240);
inline constexpr QRect lblSummaryTwips(90, 315, 1395, 855);

/// Check box 1 to 11: two columns of five, and the last below them.
constexpr QRect ChkItemsTwips(int i) {
    constexpr int width = 732;
    constexpr int height = 312;
    if (i == checkBoxCount) return QRect(600, 2400, width, height);
    return QRect(i <= 5 ? 120 : 1080, 120 + 480 * ((i - 1) % 5), width, height);
}

/// What belongs to one kind of terrain stands as far down as the controls say.
constexpr QRect LblTerrKeyTwips(int top) { return QRect(13320, top, 1335, 255); }
constexpr QRect CmdSeeTerDetTwips(int top) { return QRect(14760, top - 30, 375, 315); }
constexpr QRect LblTerrainDescriptionTwips(int top) { return QRect(10320, top, 2895, 1575); }

/// The quick information stands where the controls say.
constexpr QRect FraQuickDetailsTwips(int left, int top) {
    return QRect(left, top, quickInfoWidthTwips, quickInfoHeightTwips);
}

}  // namespace qarn
