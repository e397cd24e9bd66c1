#include "rules/terrain.h"

#include <algorithm>
#include <array>

namespace qarn {
namespace {

constexpr std::array<TerrainColors, terrainKindCount> terrainColors{{
    {{0xFFFFFF}, {0x000080}},
    {{0x808000}, {0xFFFF80}},
    {{0x0000FF}, {0xFFFFFF}},
    {{0x00FFFF}, {0x404000}},
    {{0xFFFF00}, {0x400000}},
    {{0x404000}, {0xFF8000}},
    {{0x008000}, {0x000080}},
    {{0x800000}, {0xFFE0C0}},
    {{0xC00000}, {0xFFFFFF}},
}};

std::string DescribeTerrainKind(std::string_view name, const TerrainKindRecord& kind) {
    std::string text(name);
    text += "\nMobility: " + std::to_string(kind.Mobility);
    text += "\nAttack: " + std::to_string(kind.Attack);
    text += "\nDefense: " + std::to_string(kind.Defense) + "\nComments: ";
    return text.append(kind.Comments);
}

void ShowDescription(Game& game, std::size_t code) {
    Controls& controls = game.controls;
    for (Button& button : controls.cmdSeeTerDet) button.Enabled = false;
    controls.cmdSeeTerDet[code].Enabled = true;
    controls.cmdSeeTerDet[code].Caption = "&X";
    controls.lblTerrainDescription = {
        .Caption =
            DescribeTerrainKind(controls.lblTerrKey[code].Caption, game.record.TerrainKinds[code]),
        .Visible = true,
        .Top = controls.lblTerrKey[code].Top};
}

void HideDescription(Controls& controls, std::size_t code) {
    controls.cmdSeeTerDet[code].Caption = "...";
    controls.lblTerrainDescription.Caption.clear();
    controls.lblTerrainDescription.Visible = false;
    for (Button& button : controls.cmdSeeTerDet) button.Enabled = true;
}

}  // namespace

void InitTerrainKinds(GameRecord& record) {
    constexpr std::array<TerrainKindRecord, Fortress> kinds{{
        {{1, 0, 0, true, true, false}, "1 To move"},
        {{5, 3, 2, true, false, false},
         "5 to move, no indirect attack, +3 to attack down, 2 for defense, and no indirect attack"},
        {{1, 0, 2, true, true, true}, "1 to move, 2 for defense, and requires a boat"},
        {{1, 0, 0, true, true, true}, "1 to move and requires a boat"},
        {{3, 0, 1, true, true, false}, "3 to move and 1 for defense"},
        {{2, 0, 0, true, true, false}, "2 to move"},
        {{2, 0, 2, true, true, false}, "2 to move and 2 for defense"},
    }};
    std::copy(kinds.begin(), kinds.end(), record.TerrainKinds.begin());
}

TerrainColors ColorsOfTerrain(std::uint8_t code) { return terrainColors.at(code); }

void PaintSquare(Game& game, int X, int Y) {
    const auto x = static_cast<std::size_t>(X);
    const auto y = static_cast<std::size_t>(Y);
    const TerrainColors colors = ColorsOfTerrain(game.record.bytTerrain.at(x).at(y));
    game.controls.lbl[x][y].BackColor = colors.BackColor;
    game.controls.lbl[x][y].ForeColor = colors.ForeColor;
}

void ClearBoard(Game& game) {
    game.record.bytTerrain = {};
    for (int X = 1; X <= columnCount; ++X) {
        for (int Y = 1; Y <= rowCount; ++Y) PaintSquare(game, X, Y);
    }
}

void cmdSeeTerDet_Click(Game& game, int code) {
    const auto i = static_cast<std::size_t>(code);
    if (game.controls.cmdSeeTerDet.at(i).Caption == "...") {
        ShowDescription(game, i);
    } else {
        HideDescription(game.controls, i);
    }
}

}  // namespace qarn
