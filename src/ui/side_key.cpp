#include "ui/side_key.h"

#include <QHBoxLayout>
#include <QPainter>

#include "play/square_text.h"
#include "ui/side_plate.h"
#include "ui/text.h"

namespace qarn {
namespace {

constexpr int gap = 6;
constexpr int lettersOfAName = 16;

QPixmap PictureOfPlate(std::uint8_t side, QSize size, double ratio) {
    QPixmap picture(size * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    PaintPlate(painter, QRectF(QPointF(1, 1), size - QSizeF(2, 2)), side, {});
    return picture;
}

}  // namespace

SideKey::SideKey() {
    setObjectName("sideKey");
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, gap, 0);
    row->setSpacing(gap);
    const int height = fontMetrics().height();
    for (const std::uint8_t side : {std::uint8_t{1}, std::uint8_t{2}}) {
        auto* plate = new QLabel;
        plate->setPixmap(PictureOfPlate(side, QSize(2 * height, height), devicePixelRatioF()));
        names_[side] = new QLabel;
        names_[side]->setTextFormat(Qt::PlainText);
        row->addWidget(plate);
        row->addWidget(names_[side]);
    }
    setFixedHeight(height + 2);
    hide();
}

void SideKey::Show(const Game& game) {
    for (const std::uint8_t side : {std::uint8_t{1}, std::uint8_t{2}}) {
        QLabel& name = *names_[side];
        const QString whole = ToQt(NameOfSide(game.record, side));
        QFont font = name.font();
        font.setBold(game.record.bytTurn == side);
        name.setFont(font);
        const int width = lettersOfAName * name.fontMetrics().averageCharWidth();
        name.setText(name.fontMetrics().elidedText(whole, Qt::ElideRight, width));
        name.setToolTip(whole + (side == 1 ? ", the goodbeasts" : ", the badbeasts"));
    }
    setVisible(game.view.sides);
}

}  // namespace qarn
