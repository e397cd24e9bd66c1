#include "ui/status_line.h"

#include <QAccessibleWidget>
#include <algorithm>
#include <cmath>

namespace qarn {
namespace {

constexpr double mostGrowth = 1.5;  // beyond that of the window

// Of all that can happen to a widget without the focus, screen readers only speak of a notification
// that comes up.
class AccessibleStatusLine : public QAccessibleWidget {
public:
    explicit AccessibleStatusLine(StatusLine* line)
        : QAccessibleWidget(line, QAccessible::Notification), line_(line) {}

    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Name ? line_->text() : QAccessibleWidget::text(kind);
    }

private:
    StatusLine* line_;
};

QAccessibleInterface* MakeAccessible(const QString&, QObject* object) {
    auto* line = qobject_cast<StatusLine*>(object);
    return line == nullptr ? nullptr : new AccessibleStatusLine(line);
}

}  // namespace

StatusLine::StatusLine(QWidget* parent, double designHeight)
    : FittedLabel(parent), designHeight_(designHeight) {
    QAccessible::installFactory(MakeAccessible);
}

double StatusLine::LargestFont() const {
    const double growth = designHeight_ > 0 ? height() / designHeight_ : 1;
    return FittedLabel::LargestFont() * std::clamp(growth, 1.0, mostGrowth);
}

void StatusLine::StandBelow(double covered) {
    if (covered == covered_) return;
    covered_ = covered;
    setContentsMargins(0, CoveredPixels(), 0, 0);
    Fit();
}

void StatusLine::resizeEvent(QResizeEvent* event) {
    if (covered_ > 0) setContentsMargins(0, CoveredPixels(), 0, 0);
    FittedLabel::resizeEvent(event);
}

int StatusLine::CoveredPixels() const { return static_cast<int>(std::ceil(height() * covered_)); }

void StatusLine::Tell(const QString& text) {
    if (text == this->text()) return;
    ShowText(text);  // tells that the name changes
    QAccessibleEvent comesUp(this, QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&comesUp);
}

}  // namespace qarn
