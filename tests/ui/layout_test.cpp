#include <gtest/gtest.h>

#include <QFontMetricsF>

#include "core/game_record.h"
#include "ui/code_layout.h"
#include "ui/fitted_label.h"
#include "ui/text.h"

namespace qarn {
namespace {

TEST(CodeLayout, KeepsEveryCodeWholeInItsSquare) {
    const QRectF square(3, 5, 47, 63);
    QStringList codes;
    for (int count = 1; count <= peopleCount; ++count) {
        codes << (count <= 4 ? "WA" + QString::number(count) : "BT");
        const CodeLayout layout = LayOutCodes(codes, square, QFont());
        ASSERT_EQ(layout.cells.size(), static_cast<std::size_t>(count));
        const QFontMetricsF metrics(layout.font);
        for (int i = 0; i < count; ++i) {
            const QRectF cell = layout.cells[static_cast<std::size_t>(i)];
            EXPECT_TRUE(square.contains(cell)) << count;
            EXPECT_LE(metrics.horizontalAdvance(codes[i]), cell.width() + 1) << count;
            for (int j = 0; j < i; ++j) {
                EXPECT_FALSE(cell.intersects(layout.cells[static_cast<std::size_t>(j)])) << count;
            }
        }
        EXPECT_GE(layout.font.pixelSize(), count <= 4 ? 13 : count <= 11 ? 8 : 5) << count;
    }
}

// Boats are folded where more than six stand there.
TEST(CodeLayout, KeepsPlatesWholeAndLargeCodesLarge) {
    const QRectF square(3, 5, 47, 63);
    CodeRoom largePlates = plateRoom;
    largePlates.largestFont = 0.4;
    for (const CodeRoom& each : {plateRoom, largePlates}) {
        QStringList codes;
        for (int count = 1; count <= 10; ++count) {
            codes << (count % 4 == 0 ? QString::fromUtf8("BT\u00D77") : "WA1");
            for (const QRectF& cell : LayOutCodes(codes, square, QFont(), each).cells) {
                EXPECT_TRUE(square.contains(cell)) << count;
            }
        }
    }
    const auto sizeOf = [&](const QStringList& codes) {
        return LayOutCodes(codes, square, QFont(), {.largestFont = 0.4}).font.pixelSize();
    };
    EXPECT_EQ(sizeOf({"Q"}), 18);
    EXPECT_EQ(sizeOf({"Q", "LS"}), 18);
    EXPECT_GE(sizeOf({"WA1", "WA2", "ZA3"}), 13);
}

TEST(FittedLabel, ShrinksItsFontUntilTheTextFits) {
    QWidget parent;
    QFont font = parent.font();
    font.setPixelSize(12);
    parent.setFont(font);
    FittedLabel label(&parent);
    label.resize(120, 60);
    parent.show();

    label.ShowText("Short");
    EXPECT_EQ(label.font().pixelSize(), 12);
    label.ShowText(
        "Current Items: Warlord, Warlords's Army (2), Warlord's Misc. Helpers, Boat (7)");
    EXPECT_LT(label.font().pixelSize(), 12);
    EXPECT_LE(label.heightForWidth(label.width()), label.height());
    label.resize(400, 60);
    EXPECT_EQ(label.font().pixelSize(), 12);
}

TEST(LabelText, LeavesOutTheMarksOfAccessKeysOnly) {
    EXPECT_EQ(ToLabelText("You have 0 mobility units left.\nClick Done &Moving"),
              "You have 0 mobility units left.\nClick Done Moving");
    EXPECT_EQ(ToLabelText("select &Details from the &Details menu."),
              "select Details from the Details menu.");
    EXPECT_EQ(ToLabelText("It is Rock & Roll's, R&B's, &'s turn."),
              "It is Rock & Roll's, R&B's, &'s turn.");
    EXPECT_EQ(ToLabelText("It is &Bob's turn."), "It is &Bob's turn.");
}

}  // namespace
}  // namespace qarn
