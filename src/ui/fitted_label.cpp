#include "ui/fitted_label.h"

#include <QFontMetrics>

namespace qarn {
namespace {

constexpr int smallestFont = 7;  // pixels

}  // namespace

FittedLabel::FittedLabel(QWidget* parent, double relativeSize)
    : QLabel(parent), relativeSize_(relativeSize) {
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    setAlignment(Qt::AlignLeft | Qt::AlignTop);
}

void FittedLabel::ShowText(const QString& text) {
    if (text == this->text()) return;
    setText(text);
    if (isVisible()) Fit();
}

void FittedLabel::resizeEvent(QResizeEvent* event) {
    QLabel::resizeEvent(event);
    if (isVisible()) Fit();
}

void FittedLabel::showEvent(QShowEvent* event) {
    QLabel::showEvent(event);
    Fit();
}

bool FittedLabel::Fits(const QFont& font) const {
    const QSize room = contentsRect().size() - QSize(2 * margin(), 2 * margin());
    const QRect unlimited(0, 0, room.width(), QWIDGETSIZE_MAX);
    const QSize needed =
        QFontMetrics(font).boundingRect(unlimited, Qt::TextWordWrap, text()).size();
    return needed.width() <= room.width() && needed.height() <= room.height();
}

double FittedLabel::LargestFont() const {
    return parentWidget()->font().pixelSize() * relativeSize_;
}

void FittedLabel::Fit() {
    QFont fitted = font();
    int size = static_cast<int>(LargestFont());
    do {
        fitted.setPixelSize(size);
    } while (!Fits(fitted) && --size >= smallestFont);
    setFont(fitted);
}

}  // namespace qarn
