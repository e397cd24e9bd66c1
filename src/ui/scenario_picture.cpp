#include "ui/scenario_picture.h"

#include <QPainter>

#include "rules/terrain.h"
#include "scenarios/setup.h"
#include "ui/color.h"
#include "ui/side_plate.h"

namespace qarn {
namespace {

QRectF PlateOf(const RosterEntry& entry, int square) {
    const double edge = square / 6.0;
    return QRectF((entry.LocationX - 1) * square + 1, (entry.LocationY - 1) * square + 1,
                  square - 1, square - 1)
        .adjusted(edge, edge, -edge, -edge);
}

// Where groups stand; a boat or the cart only where nobody does.
void PaintGroups(QPainter& painter, const ScenarioData& data, int square) {
    for (auto entry = data.Roster.rbegin(); entry != data.Roster.rend(); ++entry) {
        PaintPlate(painter, PlateOf(*entry, square), entry->Side, "");
    }
}

}  // namespace

QPixmap ScenarioPicture(int scenario, int square, qreal devicePixelRatio) {
    const ScenarioData& data = DataOfScenario(scenario);
    const QSize size(columnCount * square + 1, rowCount * square + 1);
    QPixmap picture(size * devicePixelRatio);
    picture.setDevicePixelRatio(devicePixelRatio);
    picture.fill(QColor(0x40, 0x40, 0x40));
    QPainter painter(&picture);
    for (int row = 0; row < rowCount; ++row) {
        for (int column = 0; column < columnCount; ++column) {
            const char code =
                data.Board[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)];
            const Color color = ColorsOfTerrain(static_cast<std::uint8_t>(code - '0')).BackColor;
            painter.fillRect(column * square + 1, row * square + 1, square - 1, square - 1,
                             ToQt(color));
        }
    }
    PaintGroups(painter, data, square);
    return picture;
}

}  // namespace qarn
