#include "ui/board_accessible.h"

#include <QAccessibleWidget>
#include <QTimer>
#include <array>

#include "play/square_text.h"
#include "ui/board_widget.h"
#include "ui/text.h"

namespace qarn {
namespace {

constexpr int squareCount = columnCount * rowCount;

int IndexOf(QPoint square) { return (square.y() - 1) * columnCount + square.x() - 1; }
QPoint SquareOf(int index) { return QPoint(index % columnCount + 1, index / columnCount + 1); }

class AccessibleSquare : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    AccessibleSquare(BoardWidget* board, QPoint square) : board_(board), square_(square) {}

    QPoint Square() const { return square_; }

    bool isValid() const override { return board_ != nullptr; }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return board_->window()->windowHandle(); }

    QAccessibleInterface* parent() const override {
        return QAccessible::queryAccessibleInterface(board_);
    }
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }

    QString text(QAccessible::Text kind) const override {
        if (kind != QAccessible::Name) return {};
        return ToQt(NameOfSquare(board_->ShownGame(), square_.x(), square_.y()));
    }
    void setText(QAccessible::Text, const QString&) override {}

    QRect rect() const override {
        const QRect place = board_->PlaceOfSquare(square_);
        return QRect(board_->mapToGlobal(place.topLeft()), place.size());
    }

    QAccessible::Role role() const override { return QAccessible::PushButton; }
    QAccessible::State state() const override {
        QAccessible::State state;
        state.focusable = true;
        state.focused = board_->hasFocus() && board_->Cursor() == square_;
        return state;
    }

    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type != QAccessible::ActionInterface) return nullptr;
        return static_cast<QAccessibleActionInterface*>(this);
    }
    QStringList actionNames() const override { return {pressAction(), setFocusAction()}; }
    void doAction(const QString& action) override {
        if (action == pressAction()) {
            // The caller gets its answer before a box that the click may bring up.
            QTimer::singleShot(0, board_,
                               [board = board_, square = square_] { board->Click(square); });
        } else if (action == setFocusAction()) {
            board_->setFocus();
            board_->MoveCursor(square_);
        }
    }
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

private:
    BoardWidget* board_;
    QPoint square_;
};

class AccessibleBoard : public QAccessibleWidget {
public:
    explicit AccessibleBoard(BoardWidget* board)
        : QAccessibleWidget(board, QAccessible::Grouping), board_(board) {}

    // The squares belong to QAccessible's own registry.
    ~AccessibleBoard() override {
        for (const QAccessible::Id id : squares_) {
            if (id != 0) QAccessible::deleteAccessibleInterface(id);
        }
    }

    int childCount() const override { return squareCount; }
    QAccessibleInterface* child(int index) const override {
        if (index < 0 || index >= squareCount) return nullptr;
        QAccessible::Id& id = squares_[static_cast<std::size_t>(index)];
        if (id == 0) {
            id = QAccessible::registerAccessibleInterface(
                new AccessibleSquare(board_, SquareOf(index)));
        }
        return QAccessible::accessibleInterface(id);
    }
    int indexOfChild(const QAccessibleInterface* child) const override {
        const auto* square = dynamic_cast<const AccessibleSquare*>(child);
        return square == nullptr ? -1 : IndexOf(square->Square());
    }
    QAccessibleInterface* childAt(int x, int y) const override {
        const QPoint place = board_->mapFromGlobal(QPoint(x, y));
        if (!board_->rect().contains(place)) return nullptr;
        return child(IndexOf(board_->SquareAt(place)));
    }
    QAccessibleInterface* focusChild() const override {
        return board_->hasFocus() ? child(IndexOf(board_->Cursor())) : nullptr;
    }

private:
    BoardWidget* board_;
    mutable std::array<QAccessible::Id, squareCount> squares_{};
};

void Tell(BoardWidget* board, QPoint square, QAccessible::Event what) {
    if (!QAccessible::isActive()) return;
    QAccessibleEvent event(board, what);
    event.setChild(IndexOf(square));
    QAccessible::updateAccessibility(&event);
}

}  // namespace

QAccessibleInterface* MakeAccessibleBoard(const QString&, QObject* object) {
    auto* board = qobject_cast<BoardWidget*>(object);
    return board == nullptr ? nullptr : new AccessibleBoard(board);
}

void TellFocusedSquare(BoardWidget* board) { Tell(board, board->Cursor(), QAccessible::Focus); }

void TellChangedSquare(BoardWidget* board, QPoint square) {
    Tell(board, square, QAccessible::NameChanged);
}

}  // namespace qarn
