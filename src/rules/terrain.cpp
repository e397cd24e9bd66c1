#include "rules/terrain.h"

#include <array>

#include "core/eight_bit.h"

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

std::string DescribeTerrainKind(const std::string& name, const TerrainKindRecord& kind) {
    return name + "\nMobility: " + std::to_string(kind.Mobility) +
           "\nAttack: " + std::to_string(kind.Attack) +
           "\nDefense: " + std::to_string(kind.Defense) + "\nComments: " + kind.Comments;
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
    record.TerrainKinds[Plain] = {1, 0, 0, true, true, false, "1 To move"};
    record.TerrainKinds[Mountain] = {
        5,
        3,
        2,
        true,
        false,
        false,
        "5 to move, no indirect attack, +3 to attack down, 2 for defense, and no indirect attack"};
    record.TerrainKinds[Ocean] = {
        1, 0, 2, true, true, true, "1 to move, 2 for defense, and requires a boat"};
    record.TerrainKinds[Stream] = {1, 0, 0, true, true, true, "1 to move and requires a boat"};
    record.TerrainKinds[Sand] = {3, 0, 1, true, true, false, "3 to move and 1 for defense"};
    record.TerrainKinds[Swamp] = {2, 0, 0, true, true, false, "2 to move"};
    record.TerrainKinds[Forest] = {2, 0, 2, true, true, false, "2 to move and 2 for defense"};
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

TerrainEffect TerrainModifiers(const GameRecord& record, int X, int Y, bool blnDefending,
                               std::uint8_t bytAttack, std::uint8_t bytDefense, bool blnDirect) {
    const std::uint8_t T =
        record.bytTerrain.at(static_cast<std::size_t>(X)).at(static_cast<std::size_t>(Y));
    const TerrainKindRecord& kind = record.TerrainKinds.at(T);
    TerrainEffect effect{.bytAttackOut = bytAttack, .bytDefenseOut = bytDefense};
    const auto addAttack = [&] {
        effect.bytAttackOut = EightBit(bytAttack + kind.Attack, "sum of the attack units");
    };
    const auto addDefense = [&] {
        effect.bytDefenseOut = EightBit(bytDefense + kind.Defense, "sum of the defense units");
    };

    switch (T) {
        case Mountain:
            if (!blnDirect && blnDefending) {
                effect.blnAllowed = false;
            } else if (blnDirect && !blnDefending) {
                addAttack();
            } else if (blnDefending) {
                addDefense();
            }
            break;
        case Ocean:
            if (blnDirect && blnDefending) addDefense();
            break;
        case Sand:
        case Forest:
            if (blnDefending) addDefense();
            break;
        case Fortress:
        case Abbey:
            if (!kind.DirectAttack && blnDirect) {
                effect.blnAllowed = false;
            } else {
                addDefense();
            }
            break;
        default:
            break;
    }
    return effect;
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
