#include "ui/board_widget.h"

#include <QAccessible>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>
#include <utility>

#include "core/board_geometry.h"
#include "play/square_text.h"
#include "ui/board_accessible.h"
#include "ui/hint_caption.h"
#include "ui/paint_codes.h"
#include "ui/paint_hint.h"
#include "ui/paint_square_role.h"
#include "ui/text.h"

namespace qarn {
namespace {

constexpr QPoint nowhere;

constexpr QColor lineColor(0x40, 0x40, 0x40);
constexpr QColor cursorColor(0x00, 0x00, 0x00);
constexpr QColor cursorRimColor(0xFF, 0xFF, 0xFF);
constexpr QColor highlightColor(0xFF, 0x00, 0xC8);

QColor ToQt(Color color) { return QColor::fromRgb(color.rgb); }

template <typename Squares>
auto& SquareOf(Squares& squares, QPoint square) {
    return squares[static_cast<std::size_t>(square.x())][static_cast<std::size_t>(square.y())];
}

template <typename Function>
void ForEachSquare(Function function) {
    for (int Y = 1; Y <= rowCount; ++Y) {
        for (int X = 1; X <= columnCount; ++X) function(QPoint(X, Y));
    }
}

// An outline inside a rectangle, `width` thick.
void PaintOutline(QPainter& painter, const QRectF& rect, double width, QColor color) {
    painter.fillRect(QRectF(rect.left(), rect.top(), rect.width(), width), color);
    painter.fillRect(QRectF(rect.left(), rect.bottom() - width, rect.width(), width), color);
    painter.fillRect(QRectF(rect.left(), rect.top(), width, rect.height()), color);
    painter.fillRect(QRectF(rect.right() - width, rect.top(), width, rect.height()), color);
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

BoardWidget::ShownSquare BoardWidget::SquareOfGame(QPoint square) const {
    const SquareLabel& label = SquareOf(game_.controls.lbl, square);
    return {CodesOfSquare(game_, square.x(), square.y()), label.BackColor, label.ForeColor};
}

void BoardWidget::BringUpToDate() {
    ShowView();
    ForEachSquare([&](QPoint square) {
        const ShownSquare now = SquareOfGame(square);
        ShownSquare& shown = SquareOf(shown_, square);
        if (now == shown) return;
        shown = now;
        UpdateSquare(square);
        TellChangedSquare(this, square);
    });
    ShowRoles();
    ShowHighlight();
    ShowHint();
}

void BoardWidget::ShowView() {
    if (view_ == game_.view) return;
    view_ = game_.view;
    update();
}

void BoardWidget::ShowRoles() {
    std::vector<MarkedSquare> roles = MarkedSquares(game_.record);
    if (roles == roles_) return;
    roles_.swap(roles);
    for (const MarkedSquare& mark : roles) UpdateSquare({mark.X, mark.Y});
    for (const MarkedSquare& mark : roles_) UpdateSquare({mark.X, mark.Y});
}

// The mark comes with a place in twips; it always stands over a whole square.
void BoardWidget::ShowHighlight() {
    const Marker& mark = game_.controls.shpHighlight;
    QPoint square = nowhere;
    if (mark.Visible) {
        square = QPoint((mark.Left + squareWidthTwips / 2 - boardLeftTwips) / columnTwips + 1,
                        (mark.Top + squareHeightTwips / 2 - boardTopTwips) / rowTwips + 1);
    }
    if (square == highlight_) return;
    UpdateSquare(highlight_);
    highlight_ = square;
    UpdateSquare(highlight_);
}

void BoardWidget::ShowHint() {
    const HintMark& hint = game_.controls.Hint;
    const QString caption = ToQt(hint.Caption);
    if (hint.Way == hintWay_ && caption == hintCaption_) return;
    hintWay_ = hint.Way;
    hintCaption_ = caption;
    update();
}

void BoardWidget::UpdateSquare(QPoint square) {
    if (square != nowhere) update(PlaceOfSquare(square));
}

// ---- Places ----

void BoardWidget::resizeEvent(QResizeEvent*) { PlaceLines(); }

// ---- Painting ----

void BoardWidget::paintEvent(QPaintEvent* event) {
    PlaceLines();  // the window may have come to a screen of another pixel ratio
    QPainter painter(this);
    PaintLines(painter);
    const auto forEachShown = [&](auto paint) {
        ForEachSquare([&](QPoint square) {
            if (event->region().intersects(PlaceOfSquare(square))) paint(square);
        });
    };
    forEachShown([&](QPoint square) { PaintGround(painter, square); });
    PaintHint(painter);
    forEachShown([&](QPoint square) { PaintCodes(painter, square); });
    PaintOutlines(painter);
    PaintCaptionOfHint(painter);
}

void BoardWidget::PaintLines(QPainter& painter) const {
    for (const double x : places_.ColumnLines()) {
        painter.fillRect(QRectF(x, 0, places_.LineWidth(), height()), lineColor);
    }
    for (const double y : places_.RowLines()) {
        painter.fillRect(QRectF(0, y, width(), places_.LineWidth()), lineColor);
    }
}

void BoardWidget::PaintGround(QPainter& painter, QPoint square) const {
    painter.fillRect(places_.Inner(square), ToQt(SquareOf(shown_, square).BackColor));
    PaintRole(painter, square);
}

// Below the codes, which stay readable.
void BoardWidget::PaintHint(QPainter& painter) const {
    if (hintWay_.empty()) return;
    std::vector<QRectF> squares;
    for (const Square square : hintWay_) squares.push_back(places_.Inner({square.X, square.Y}));
    PaintHintArrow(painter, squares);
}

void BoardWidget::PaintCaptionOfHint(QPainter& painter) const {
    if (hintCaption_.isEmpty()) return;
    const CaptionPlace place = PlaceOfCaption(game_.controls, hintWay_);
    PaintHintCaption(painter, places_.Inner(place.square), place.where, hintCaption_);
}

void BoardWidget::PaintCodes(QPainter& painter, QPoint square) const {
    const ShownSquare& shown = SquareOf(shown_, square);
    qarn::PaintCodes(painter, places_.Inner(square), shown.codes, font(),
                     {.ink = ToQt(shown.ForeColor), .plates = view_.sides});
}

// Below the codes, which stay readable, and within the outline that the square may have.
void BoardWidget::PaintRole(QPainter& painter, QPoint square) const {
    const bool outlined = square == highlight_ || (square == cursor_ && hasFocus());
    const double inset = outlined ? 2 * Thick() : 0;
    const QRectF room = places_.Inner(square).adjusted(inset, inset, -inset, -inset);
    for (const MarkedSquare& mark : roles_) {
        if (QPoint(mark.X, mark.Y) == square) PaintSquareRole(painter, room, mark.Role);
    }
}

double BoardWidget::Thick() const { return std::max(1.0, std::round(width() / 430.0)); }

void BoardWidget::PaintOutlines(QPainter& painter) const {
    const double thick = Thick();
    if (hovered_ != nowhere) {
        PaintOutline(painter, places_.Inner(hovered_), places_.LineWidth(),
                     ToQt(SquareOf(shown_, hovered_).ForeColor));
    }
    const QRectF inner = places_.Inner(cursor_);
    if (hasFocus()) {
        PaintOutline(painter, inner, 2 * thick, cursorRimColor);
        PaintOutline(painter, inner, thick, cursorColor);
    }
    if (highlight_ != nowhere) {
        PaintOutline(painter, places_.Inner(highlight_), 2 * thick, highlightColor);
    }
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

void BoardWidget::mouseMoveEvent(QMouseEvent* event) { Hover(SquareAt(event->position())); }

void BoardWidget::leaveEvent(QEvent*) { Hover(nowhere); }

void BoardWidget::Hover(QPoint square) {
    if (square == hovered_) return;
    UpdateSquare(hovered_);
    hovered_ = square;
    UpdateSquare(hovered_);
}

void BoardWidget::Click(QPoint square) {
    MoveCursor(square);
    emit SquareClicked(square.x(), square.y());
}

void BoardWidget::MoveCursor(QPoint square) {
    const QPoint onBoard(std::clamp(square.x(), 1, columnCount),
                         std::clamp(square.y(), 1, rowCount));
    if (onBoard == cursor_) return;
    UpdateSquare(cursor_);
    cursor_ = onBoard;
    UpdateSquare(cursor_);
    if (hasFocus()) TellCursor();
}

void BoardWidget::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Left:
            MoveCursor(cursor_ + QPoint(-1, 0));
            break;
        case Qt::Key_Right:
            MoveCursor(cursor_ + QPoint(1, 0));
            break;
        case Qt::Key_Up:
            MoveCursor(cursor_ + QPoint(0, -1));
            break;
        case Qt::Key_Down:
            MoveCursor(cursor_ + QPoint(0, 1));
            break;
        case Qt::Key_Space:
        case Qt::Key_Return:
        case Qt::Key_Enter:
            if (!event->isAutoRepeat()) Click(cursor_);
            break;
        default:
            QWidget::keyPressEvent(event);
    }
}

void BoardWidget::focusInEvent(QFocusEvent*) {
    UpdateSquare(cursor_);
    TellCursor();
}

void BoardWidget::focusOutEvent(QFocusEvent*) { UpdateSquare(cursor_); }

void BoardWidget::TellCursor() { TellFocusedSquare(this); }

bool BoardWidget::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return QWidget::event(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    const QPoint square = SquareAt(help->pos());
    QToolTip::showText(help->globalPos(), ToQt(TipOfSquare(game_, square.x(), square.y())), this,
                       PlaceOfSquare(square));
    return true;
}

}  // namespace qarn
