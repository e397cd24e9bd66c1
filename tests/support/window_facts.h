#pragma once

#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <map>
#include <string>

#include "support/text.h"

namespace qarn {

/// What can be seen, by names.
using WindowFacts = std::map<std::string, std::string>;

/// What a widget shows: a text or the row that is selected, 'the text of a field', a [button] with
/// an x while it is checked and a * while Enter presses it; (in parentheses) while it is disabled.
inline QString ShownBy(const QWidget& widget) {
    QString text;
    for (const char* property : {"text", "plainText", "currentText", "currentRow"}) {
        text += widget.property(property).toString();
    }
    if (!widget.isVisible()) return text.isEmpty() ? "" : "hidden";
    if (const auto* rows = qobject_cast<const QListWidget*>(&widget)) {
        text = "rows";
        for (const QListWidgetItem* item : rows->selectedItems()) {
            text = item->text().section('\n', 0, 0);
        }
    }
    if (widget.property("checked").toBool()) text = "x " + text;
    if (widget.property("default").toBool()) text = "*" + text;
    if (qobject_cast<const QLineEdit*>(&widget) != nullptr) {
        text = "'" + text + (widget.property("readOnly").toBool() ? "' locked" : "'");
    }
    const bool button = qobject_cast<const QAbstractButton*>(&widget) != nullptr;
    return !widget.isEnabled() ? "(" + text + ")" : button ? "[" + text + "]" : text;
}

/// All that its widgets show, and which of them has the focus. A label without a name goes by that
/// of what it stands in, or by a number.
inline WindowFacts FactsOfWindow(const QWidget& window) {
    WindowFacts facts{{"title", window.windowTitle().toStdString()}};
    const QWidget* focus = window.focusWidget();
    if (focus != nullptr) facts["focus"] = focus->objectName().toStdString();
    int number = 0;
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        const QObject* named = widget->objectName().isEmpty() ? widget->parent() : widget;
        std::string name = named->objectName().toStdString();
        if (name.starts_with("qt_")) continue;  // of Qt's own
        if (name.empty() && widget->property("text").isValid()) {
            name = "label" + std::to_string(++number);
        }
        const std::string shown = ShownBy(*widget).toStdString();
        if (name.empty() || (shown.empty() && named != widget)) continue;
        facts[name] = Replaced(shown, "\n", "\n  ");
    }
    return facts;
}

/// What has changed, on a line; nothing when nothing has.
inline std::string Changes(WindowFacts before, const WindowFacts& now) {
    std::string changes;
    for (const auto& [name, value] : now) {
        if (before[name] != value) changes += " " + name + "=" + value;
    }
    return changes.empty() ? changes : "#" + changes + "\n";
}

}  // namespace qarn
