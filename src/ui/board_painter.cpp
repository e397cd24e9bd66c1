#include "ui/board_painter.h"

#include <algorithm>
#include <cmath>

#include "ui/color.h"
#include "ui/paint_codes.h"
#include "ui/paint_coordinates.h"
#include "ui/paint_hint.h"
#include "ui/paint_last_move.h"
#include "ui/paint_reach.h"
#include "ui/paint_square_role.h"

namespace qarn {
namespace {

constexpr QColor lineColor(0x40, 0x40, 0x40);
constexpr QColor cursorColor(0x00, 0x00, 0x00);
constexpr QColor cursorRimColor(0xFF, 0xFF, 0xFF);
constexpr QColor highlightColor(0xFF, 0x00, 0xC8);

// An outline inside a rectangle, `width` thick.
void PaintOutline(QPainter& painter, const QRectF& rect, double width, QColor color) {
    painter.fillRect(QRectF(rect.left(), rect.top(), rect.width(), width), color);
    painter.fillRect(QRectF(rect.left(), rect.bottom() - width, rect.width(), width), color);
    painter.fillRect(QRectF(rect.left(), rect.top(), width, rect.height()), color);
    painter.fillRect(QRectF(rect.right() - width, rect.top(), width, rect.height()), color);
}

}  // namespace

void BoardPainter::Paint(const QRegion& region) {
    const auto forEachShown = [&](auto paint) {
        ForEachSquare([&](QPoint square) {
            if (region.intersects(places_.Whole(square))) paint(square);
        });
    };
    PaintLines();
    forEachShown([&](QPoint square) { PaintGround(square); });
    PaintLastMove();
    PaintHint();
    forEachShown([&](QPoint square) { PaintMarked(square); });
    PaintOutlines();
    PaintCaptionOfHint();
}

void BoardPainter::PaintLines() {
    const QSize size = places_.Size();
    for (const double x : places_.ColumnLines()) {
        painter_.fillRect(QRectF(x, 0, places_.LineWidth(), size.height()), lineColor);
    }
    for (const double y : places_.RowLines()) {
        painter_.fillRect(QRectF(0, y, size.width(), places_.LineWidth()), lineColor);
    }
}

void BoardPainter::PaintGround(QPoint square) {
    const QRectF inner = places_.Inner(square);
    const ShownSquare& shown = SquareOf(board_.squares, square);
    if (board_.view.terrainPatterns) {
        terrain_.Paint(painter_, inner, shown.terrain);
    } else {
        painter_.fillRect(inner, ToQt(shown.BackColor));
    }
    const ReachMark& mark = SquareOf(board_.reach, square);
    if (mark.square != Square{}) PaintReachFrame(painter_, inner, mark.kind);
    PaintRole(square);
}

// Below the codes, which stay readable, and within the outline that the square may have.
void BoardPainter::PaintRole(QPoint square) {
    const bool outlined = square == board_.highlight || (square == board_.cursor && board_.focused);
    const double inset = outlined ? 2 * Thick() : 0;
    const QRectF room = places_.Inner(square).adjusted(inset, inset, -inset, -inset);
    for (const MarkedSquare& mark : board_.roles) {
        if (QPoint(mark.X, mark.Y) == square) PaintSquareRole(painter_, room, mark.Role);
    }
}

std::vector<QRectF> BoardPainter::PlacesOf(const Path& path) const {
    std::vector<QRectF> places;
    for (const Square square : path) places.push_back(places_.Inner({square.X, square.Y}));
    return places;
}

void BoardPainter::PaintLastMove() {
    const auto& [path, fight] = board_.lastMove;
    if (fight != Square{}) PaintBurst(painter_, places_.Inner({fight.X, fight.Y}));
    if (path.size() > 1) PaintLastPath(painter_, PlacesOf(path));
}

// Below the codes, which stay readable.
void BoardPainter::PaintHint() {
    if (!board_.hintWay.empty()) PaintHintArrow(painter_, PlacesOf(board_.hintWay));
}

void BoardPainter::PaintCaptionOfHint() {
    if (board_.hintCaption.isEmpty()) return;
    PaintHintCaption(painter_, places_.Inner(board_.hintPlace.square), board_.hintPlace.where,
                     board_.hintCaption);
}

// The codes, and what stands at the edges of the square, out of their way.
void BoardPainter::PaintMarked(QPoint square) {
    const ShownSquare& shown = SquareOf(board_.squares, square);
    const ReachMark& mark = SquareOf(board_.reach, square);
    const QRectF inner = places_.Inner(square);
    const QColor ground = ToQt(shown.BackColor);
    QRectF room = inner;
    if (board_.view.coordinates) {
        PaintCoordinates(painter_, inner, square, ground);
        room = BesideCoordinates(inner, square);
    }
    if (mark.square != Square{}) room = room.intersected(BesideReachLabel(inner));
    PaintCodes(painter_, room, shown.codes, font_,
               {.ink = ToQt(shown.ForeColor),
                .ground = ground,
                .plates = board_.view.sides,
                .large = board_.view.largeCodes});
    if (mark.square != Square{}) PaintReachLabel(painter_, inner, mark);
}

double BoardPainter::Thick() const {
    return std::max(1.0, std::round(places_.Size().width() / 430.0));
}

void BoardPainter::PaintOutlines() {
    const double thick = Thick();
    if (board_.hovered != nowhere) {
        PaintOutline(painter_, places_.Inner(board_.hovered), places_.LineWidth(),
                     ToQt(SquareOf(board_.squares, board_.hovered).ForeColor));
    }
    const QRectF inner = places_.Inner(board_.cursor);
    if (board_.focused) {
        PaintOutline(painter_, inner, 2 * thick, cursorRimColor);
        PaintOutline(painter_, inner, thick, cursorColor);
    }
    if (board_.highlight != nowhere) {
        PaintOutline(painter_, places_.Inner(board_.highlight), 2 * thick, highlightColor);
    }
}

}  // namespace qarn
