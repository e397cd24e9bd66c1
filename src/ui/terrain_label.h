#pragma once

#include <cstdint>

#include "ui/fitted_label.h"

namespace qarn {

/// A label of the terrain key, in the colours of its terrain and, if wished, with its strokes.
class TerrainLabel : public FittedLabel {
public:
    TerrainLabel(QWidget* parent, std::uint8_t code, double relativeSize);

    /// Shows the strokes of the terrain, or no longer.
    void ShowPattern(bool shown);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    std::uint8_t code_;
    bool patterned_ = false;
};

}  // namespace qarn
