#include "ui/choice_list.h"

#include <QKeyEvent>
#include <QPainter>
#include <QSignalBlocker>
#include <algorithm>
#include <array>

namespace qarn {
namespace {

constexpr int faintAlpha = 128;  // of 255

bool IsStep(int key) { return key == Qt::Key_Up || key == Qt::Key_Down; }

bool ComesToARow(int key) {
    constexpr std::array keys{Qt::Key_Home,   Qt::Key_End,      Qt::Key_Left, Qt::Key_Right,
                              Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Space};
    return IsStep(key) || std::find(keys.begin(), keys.end(), key) != keys.end();
}

}  // namespace

ChoiceList::ChoiceList() {
    connect(this, &QListWidget::itemClicked, this,
            [this](QListWidgetItem* item) { emit Chosen(row(item)); });
    connect(this, &QListWidget::itemSelectionChanged, this, [this] {
        if (!selectedItems().isEmpty()) emit Chosen(row(selectedItems().constFirst()));
    });
}

void ChoiceList::ShowChosen(int row) {
    const QSignalBlocker nobodyChooses(this);
    if (row < 0) {
        clearSelection();
    } else {
        setCurrentRow(row);
    }
}

// Qt neither selects a row that is marked already nor reports one that is selected already.
void ChoiceList::keyPressEvent(QKeyEvent* event) {
    const bool stopsAtMark = selectedItems().isEmpty() && IsStep(event->key());
    if (!stopsAtMark) QListWidget::keyPressEvent(event);
    if (count() > 0 && ComesToARow(event->key())) {
        ShowChosen(std::max(currentRow(), 0));
        emit Chosen(currentRow());
    }
}

void ChoiceList::paintEvent(QPaintEvent* event) {
    QListWidget::paintEvent(event);
    if (count() > 0 || whileEmpty_.isEmpty()) return;
    QPainter painter(viewport());
    // Not the colour for such texts, which some dark desktops leave as it is on light ones.
    QColor faint = palette().color(QPalette::Text);
    faint.setAlpha(faintAlpha);
    painter.setPen(faint);
    painter.drawText(viewport()->rect(), Qt::AlignCenter | Qt::TextWordWrap, whileEmpty_);
}

}  // namespace qarn
