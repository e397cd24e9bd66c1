#include "ui/code_layout.h"

#include <QFontMetricsF>
#include <algorithm>

namespace qarn {
namespace {

constexpr double margin = 0.05;  // by the width of the square
constexpr double gap = 0.3;      // by the size of the font
constexpr int smallestFont = 5;  // pixels

using Widths = std::vector<double>;
using Row = Widths;

Widths WidthsOf(const QStringList& codes, const QFont& font, const CodeRoom& each) {
    const QFontMetricsF metrics(font);
    const double aside = 2 * each.aside * font.pixelSize();
    Widths widths;
    for (const QString& code : codes) {
        const double width = metrics.horizontalAdvance(code) + aside;
        widths.push_back(std::max(width, each.least * font.pixelSize()));
    }
    return widths;
}

Widths Scaled(Widths widths, double factor) {
    for (double& width : widths) width *= factor;
    return widths;
}

double WidthOf(const Row& row, double between) {
    double width = -between;
    for (const double cell : row) width += between + cell;
    return width;
}

std::vector<Row> Stacked(const Widths& widths) {
    std::vector<Row> rows;
    for (const double width : widths) rows.push_back({width});
    return rows;
}

std::vector<Row> Wrapped(const Widths& widths, double between, double room) {
    std::vector<Row> rows;
    for (const double width : widths) {
        if (rows.empty() || WidthOf(rows.back(), between) + between + width > room) {
            rows.emplace_back();
        }
        rows.back().push_back(width);
    }
    return rows;
}

bool Fit(const std::vector<Row>& rows, int fontSize, double height, const QRectF& room) {
    return static_cast<double>(rows.size()) * height <= room.height() &&
           std::all_of(rows.begin(), rows.end(), [&](const Row& row) {
               return WidthOf(row, fontSize * gap) <= room.width();
           });
}

std::vector<QRectF> Centred(const std::vector<Row>& rows, int fontSize, double height,
                            const QRectF& room) {
    const double between = fontSize * gap;
    double top = room.center().y() - height * static_cast<double>(rows.size()) / 2;
    std::vector<QRectF> cells;
    for (const Row& row : rows) {
        double left = room.center().x() - WidthOf(row, between) / 2;
        for (const double width : row) {
            cells.emplace_back(left, top, width, height);
            left += width + between;
        }
        top += height;
    }
    return cells;
}

}  // namespace

CodeLayout LayOutCodes(const QStringList& codes, const QRectF& square, QFont font,
                       const CodeRoom& each) {
    const double inset = square.width() * margin;
    const QRectF room = square.adjusted(inset, inset, -inset, -inset);
    const auto sizeOf = [&](double part) {
        return std::max(smallestFont, static_cast<int>(square.width() * part));
    };
    const int largest = sizeOf(each.largestFont);
    font.setBold(true);
    for (int size = largest; size >= std::min(largest, sizeOf(CodeRoom().largestFont)); --size) {
        font.setPixelSize(size);
        const std::vector<Row> rows = Stacked(WidthsOf(codes, font, each));
        const double height = size * each.height;
        if (Fit(rows, size, height, room)) return {font, Centred(rows, size, height, room)};
    }

    font.setBold(false);  // is read better when it is small
    font.setPixelSize(largest);
    const Widths widths = WidthsOf(codes, font, each);
    std::vector<Row> rows;
    int size = largest;
    double height = 0;
    do {
        height = size * each.height;
        rows = Wrapped(Scaled(widths, double(size) / largest), size * gap, room.width());
    } while (!Fit(rows, size, height, room) && --size >= smallestFont);
    font.setPixelSize(size);
    return {font, Centred(rows, size, height, room)};
}

}  // namespace qarn
