#include "ui/side_dock.h"

#include <QCloseEvent>

namespace qarn {
namespace {

// To read well, and at the least.
constexpr int lettersOfALine = 48;
constexpr int lettersOfAShortLine = 32;

}  // namespace

SideDock::SideDock(const char* name, const QString& title, QWidget* content) : QDockWidget(title) {
    setObjectName(name);
    setAllowedAreas(Qt::LeftDockWidgetArea | Qt::RightDockWidgetArea);
    setWidget(content);
    content->setMinimumWidth(lettersOfAShortLine * fontMetrics().averageCharWidth());
}

QSize SideDock::sizeHint() const {
    const int width = lettersOfALine * fontMetrics().averageCharWidth();
    return QSize(width, QDockWidget::sizeHint().height());
}

void SideDock::closeEvent(QCloseEvent* event) {
    event->ignore();
    emit CloseWanted();
}

}  // namespace qarn
