#pragma once

#include <QPointer>
#include <QWidget>
#include <vector>

namespace qarn {

inline constexpr int twipsPerPixel = 15;

/// The client area of a window whose design is given in twips. Everything placed on it grows and
/// shrinks together with it, fonts too; what is left over at two sides stays empty.
class ScaledArea : public QWidget {
public:
    /// `design` is the size in twips at which one pixel is 15 twips, `fontSize` the height of its
    /// font in such pixels.
    ScaledArea(QSize design, double fontSize);

    /// Gives a widget its place in twips, counted from its parent: this area or one placed on it.
    /// A widget that has a place already moves; one that goes gives its place up.
    void Place(QWidget* widget, const QRect& twips);

    QSize sizeHint() const override { return design_ / twipsPerPixel; }
    QSize minimumSizeHint() const override { return sizeHint() * 3 / 4; }

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    struct Placed {
        QPointer<QWidget> widget;  // null once it has gone
        QRect twips;
    };

    void ScaleFont();
    void Apply(const Placed& placed) const;

    QSize design_;
    double fontSize_;
    double scale_ = 1;  // pixels of the screen for one pixel of the design
    QPoint origin_;
    std::vector<Placed> placed_;
};

}  // namespace qarn
