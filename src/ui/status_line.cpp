#include "ui/status_line.h"

#include <QAccessibleWidget>

namespace qarn {
namespace {

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

StatusLine::StatusLine(QWidget* parent) : FittedLabel(parent) {
    QAccessible::installFactory(MakeAccessible);
}

void StatusLine::Tell(const QString& text) {
    if (text == this->text()) return;
    ShowText(text);  // tells that the name changes
    QAccessibleEvent comesUp(this, QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&comesUp);
}

}  // namespace qarn
