#include "ui/board_widget.h"

#include <QAccessible>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>
#include <optional>
#include <utility>

#include "core/board_geometry.h"
#include "play/square_text.h"
#include "ui/board_accessible.h"
#include "ui/board_painter.h"
#include "ui/key_deed.h"
#include "ui/text.h"

namespace qarn {
namespace {

// Where a key moves the cursor to; none for one that does not move it.
std::optional<QPoint> PlaceAfter(QPoint cursor, KeyDeed deed) {
    switch (deed) {
        case KeyDeed::Left:
            return cursor + QPoint(-1, 0);
        case KeyDeed::Right:
            return cursor + QPoint(1, 0);
        case KeyDeed::Up:
            return cursor + QPoint(0, -1);
        case KeyDeed::Down:
            return cursor + QPoint(0, 1);
        case KeyDeed::FirstColumn:
            return QPoint(1, cursor.y());
        case KeyDeed::LastColumn:
            return QPoint(columnCount, cursor.y());
        default:
            return std::nullopt;
    }
}

}  // namespace

BoardWidget::BoardWidget(const Game& game, QWidget* parent) : QWidget(parent), game_(game) {
    // First, since whatever changes while a screen reader listens asks the factory.
    QAccessible::installFactory(MakeAccessibleBoard);
    // A click on a square leaves the focus where it is, so that the buttons keep it.
    setFocusPolicy(Qt::TabFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
    setAccessibleName("Board");
}

void BoardWidget::BringUpToDate() {
    if (shown_.view != game_.view) update();
    shown_.view = game_.view;
    ForEachSquare([&](QPoint square) { ShowSquare(square); });
    ShowRoles();
    ShowHighlight();
    ShowHint();
    ShowReach();
    ShowLastMove();
    HideOldTip();
}

// What it says may hold no longer. Another widget's may have come up meanwhile.
void BoardWidget::HideOldTip() {
    if (shown_.tip.isEmpty() || shown_.tip == TipOf(shown_.tipped)) return;
    if (QToolTip::text() == shown_.tip) QToolTip::hideText();
    shown_.tip.clear();
}

QString BoardWidget::TipOf(QPoint square) const {
    return ToQt(TipOfSquare(game_, square.x(), square.y()));
}

void BoardWidget::ShowSquare(QPoint square) {
    const SquareLabel& label = SquareOf(game_.controls.lbl, square);
    const ShownSquare now{CodesOfSquare(game_, square.x(), square.y()), label.BackColor,
                          label.ForeColor, SquareOf(game_.record.bytTerrain, square)};
    ShownSquare& shown = SquareOf(shown_.squares, square);
    if (now == shown) return;
    shown = now;
    UpdateSquare(square);
    TellChangedSquare(this, square);
}

void BoardWidget::ShowRoles() {
    std::vector<MarkedSquare> roles = MarkedSquares(game_.record);
    if (roles == shown_.roles) return;
    shown_.roles.swap(roles);
    for (const MarkedSquare& mark : roles) UpdateSquare({mark.X, mark.Y});
    for (const MarkedSquare& mark : shown_.roles) UpdateSquare({mark.X, mark.Y});
}

// The mark comes with a place in twips; it always stands over a whole square.
void BoardWidget::ShowHighlight() {
    const Marker& mark = game_.controls.shpHighlight;
    QPoint square = nowhere;
    if (mark.Visible) {
        square = QPoint((mark.Left + squareWidthTwips / 2 - boardLeftTwips) / columnTwips + 1,
                        (mark.Top + squareHeightTwips / 2 - boardTopTwips) / rowTwips + 1);
    }
    MoveMark(shown_.highlight, square);
}

void BoardWidget::ShowHint() {
    const HintMark& hint = game_.controls.Hint;
    const QString caption = ToQt(hint.Caption);
    if (hint.Way == shown_.hintWay && caption == shown_.hintCaption) return;
    shown_.hintWay = hint.Way;
    shown_.hintCaption = caption;
    if (!hint.Way.empty()) shown_.hintPlace = PlaceOfCaption(game_.controls, hint.Way);
    update();
}

void BoardWidget::ShowReach() {
    OfSquares<ReachMark> marks;
    for (const ReachMark& mark : ReachMarks(game_, look_)) {
        marks[mark.square.X][mark.square.Y] = mark;
    }
    ForEachSquare([&](QPoint square) {
        if (SquareOf(marks, square) != SquareOf(shown_.reach, square)) UpdateSquare(square);
    });
    shown_.reach = marks;
}

void BoardWidget::ShowLastMove() {
    const TurnTrace trace = game_.view.lastMove ? game_.record.LastMove.shown : TurnTrace();
    if (trace == shown_.lastMove) return;
    shown_.lastMove = trace;
    update();
}

void BoardWidget::LookAt(QPoint square) {
    LookAt(Look{{static_cast<std::uint8_t>(square.x()), static_cast<std::uint8_t>(square.y())},
                look_.strikes});
}

void BoardWidget::LookAt(const Look& look) {
    if (look == look_) return;
    look_ = look;
    ShowReach();
    emit LooksElsewhere();
}

void BoardWidget::MoveMark(QPoint& mark, QPoint square) {
    if (mark == square) return;
    UpdateSquare(mark);
    mark = square;
    UpdateSquare(mark);
}

void BoardWidget::UpdateSquare(QPoint square) {
    if (square != nowhere) update(PlaceOfSquare(square));
}

std::vector<QPoint> BoardWidget::SquaresOfAction() const {
    std::vector<QPoint> squares;
    for (const MarkedSquare& mark : shown_.roles) squares.emplace_back(mark.X, mark.Y);
    const QPoint clicked(game_.record.bytClickX, game_.record.bytClickY);
    if (!squares.empty() && clicked != nowhere) squares.push_back(clicked);
    return squares;
}

// ---- Places ----

void BoardWidget::resizeEvent(QResizeEvent*) { PlaceLines(); }

void BoardWidget::PlaceLines() {
    places_.Spread(size(), devicePixelRatioF());
    terrain_.Spread(places_, devicePixelRatioF());
}

// ---- Painting ----

void BoardWidget::paintEvent(QPaintEvent* event) {
    PlaceLines();  // the window may have come to a screen of another pixel ratio
    QPainter painter(this);
    BoardPainter(painter, places_, shown_, font(), terrain_).Paint(event->region());
}

// ---- Mouse and keyboard ----

void BoardWidget::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) pressed_ = SquareAt(event->position());
}

void BoardWidget::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    const QPoint square = std::exchange(pressed_, nowhere);
    if (rect().contains(event->position().toPoint()) && SquareAt(event->position()) == square) {
        Click(square);
    }
}

void BoardWidget::mouseMoveEvent(QMouseEvent* event) {
    Hover(SquareAt(event->position()));
    AskForStrikes(event->modifiers().testFlag(Qt::ShiftModifier));
}

void BoardWidget::leaveEvent(QEvent*) { Hover(nowhere); }

void BoardWidget::Hover(QPoint square) {
    if (square == shown_.hovered) return;
    MoveMark(shown_.hovered, square);
    LookAt(square != nowhere ? square : shown_.focused ? shown_.cursor : nowhere);
}

void BoardWidget::AskForStrikes(bool asks) { LookAt(Look{look_.square, asks}); }

void BoardWidget::Click(QPoint square) {
    MoveCursor(square);
    emit SquareClicked(square.x(), square.y());
}

void BoardWidget::MoveCursor(QPoint square) {
    const QPoint onBoard(std::clamp(square.x(), 1, columnCount),
                         std::clamp(square.y(), 1, rowCount));
    if (onBoard == shown_.cursor) return;
    MoveMark(shown_.cursor, onBoard);
    LookAt(onBoard);
    if (hasFocus()) TellCursor();
}

bool BoardWidget::MovesTheCursor(const QKeyEvent& event) {
    const KeyCommand* key = KeyOf(event);
    return key != nullptr && PlaceAfter({1, 1}, key->Deed).has_value();
}

void BoardWidget::keyPressEvent(QKeyEvent* event) {
    const KeyCommand* key = KeyOf(*event);
    if (key == nullptr) return QWidget::keyPressEvent(event);
    if (const auto square = PlaceAfter(shown_.cursor, key->Deed)) {
        MoveCursor(*square);
    } else if (key->Deed == KeyDeed::ClickSquare) {
        if (!event->isAutoRepeat()) Click(shown_.cursor);
    } else {
        QWidget::keyPressEvent(event);
    }
}

void BoardWidget::focusInEvent(QFocusEvent*) {
    shown_.focused = true;
    UpdateSquare(shown_.cursor);
    LookAt(shown_.cursor);
    TellCursor();
}

void BoardWidget::focusOutEvent(QFocusEvent*) {
    shown_.focused = false;
    UpdateSquare(shown_.cursor);
    LookAt(shown_.hovered);
}

void BoardWidget::TellCursor() { TellFocusedSquare(this); }

bool BoardWidget::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return QWidget::event(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    const QPoint square = SquareAt(help->pos());
    shown_.tipped = square;
    shown_.tip = TipOf(square);
    QToolTip::showText(help->globalPos(), shown_.tip, this, PlaceOfSquare(square));
    return true;
}

}  // namespace qarn
