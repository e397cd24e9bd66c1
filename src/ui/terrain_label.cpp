#include "ui/terrain_label.h"

#include <QPainter>

#include "rules/terrain.h"
#include "ui/color.h"
#include "ui/terrain_pattern.h"

namespace qarn {
namespace {

constexpr double cell = 0.18;  // by the width of the label: as large as on the board

QPalette TerrainPalette(std::uint8_t code) {
    const TerrainColors colors = ColorsOfTerrain(code);
    QPalette palette;
    palette.setColor(QPalette::Window, ToQt(colors.BackColor));
    palette.setColor(QPalette::WindowText, ToQt(colors.ForeColor));
    return palette;
}

}  // namespace

TerrainLabel::TerrainLabel(QWidget* parent, std::uint8_t code, double relativeSize)
    : FittedLabel(parent, relativeSize), code_(code) {
    setAlignment(Qt::AlignCenter);
    setPalette(TerrainPalette(code));
    setAutoFillBackground(true);
}

void TerrainLabel::ShowPattern(bool shown) {
    if (shown == patterned_) return;
    patterned_ = shown;
    update();
}

void TerrainLabel::paintEvent(QPaintEvent* event) {
    if (patterned_) {
        QPainter painter(this);
        PaintTerrainPattern(painter, rect(), code_, width() * cell);
    }
    FittedLabel::paintEvent(event);
}

}  // namespace qarn
