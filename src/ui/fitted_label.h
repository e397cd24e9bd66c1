#pragma once

#include <QLabel>

namespace qarn {

/// A label that always shows its whole text: where this does not fit, its font shrinks. Finding the
/// font takes time, so a label has none of its own until it is on the screen.
class FittedLabel : public QLabel {
public:
    /// `relativeSize` is the size of its font where there is room, measured by its parent's font.
    explicit FittedLabel(QWidget* parent, double relativeSize = 1);

    /// Shows a text, in the largest font up to its usual one in which all of it fits. Does nothing
    /// when it stands there already.
    void ShowText(const QString& text);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

    /// The size of its font where there is room, in pixels.
    virtual double LargestFont() const;

    /// Fits the font to the room that there is now.
    void Fit();

private:
    bool Fits(const QFont& font) const;

    double relativeSize_;
};

}  // namespace qarn
