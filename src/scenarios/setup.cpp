#include "scenarios/setup.h"

#include "scenarios/catalogue.h"
#include "scenarios/data/ambermoor.h"
#include "scenarios/data/cinderfell.h"
#include "scenarios/data/duskwater.h"
#include "scenarios/data/exiles_road.h"
#include "scenarios/data/hollowmere.h"
#include "scenarios/data/jade_circlet.h"
#include "scenarios/data/quiet_marches.h"
#include "scenarios/data/saltbrook.h"
#include "scenarios/data/song_of_kestrel_ford.h"
#include "scenarios/data/stonemantle.h"
#include "scenarios/data/varrowdene.h"
#include "scenarios/data/wrens_return.h"

namespace qarn {
namespace {

constexpr std::array<const ScenarioData*, scenarioCount> scenarios{
    &saltbrook,  &songOfKestrelFord, &duskwater,   &quietMarches, &cinderfell, &wrensReturn,
    &hollowmere, &exilesRoad,        &jadeCirclet, &stonemantle,  &varrowdene, &ambermoor};

std::string PaddedCode(std::string_view code) {
    std::string padded(code);
    padded.resize(3, ' ');
    return padded;
}

void WriteRoster(const ScenarioData& data, GameRecord& record) {
    for (std::size_t i = 1; i <= peopleCount; ++i) {
        const RosterEntry& entry = data.Roster[i - 1];
        record.People[i] = {.Name = std::string(entry.Name),
                            .Code = PaddedCode(entry.Code),
                            .Side = entry.Side,
                            .LocationX = entry.LocationX,
                            .LocationY = entry.LocationY,
                            .Mobility = entry.Mobility,
                            .Attack = entry.Attack,
                            .Defense = entry.Defense,
                            .Ability1 = entry.Ability1,
                            .Ability2 = entry.Ability2};
    }
}

void WriteTerrain(const ScenarioData& data, GameRecord& record) {
    for (std::size_t Y = 1; Y <= rowCount; ++Y) {
        for (std::size_t X = 1; X <= columnCount; ++X) {
            record.bytTerrain[X][Y] = static_cast<std::uint8_t>(data.Board[Y - 1][X - 1] - '0');
        }
    }
}

TerrainKindRecord LandmarkKind(std::uint8_t defense, std::string_view comments) {
    return {.Mobility = 1,
            .Attack = 0,
            .Defense = defense,
            .DirectAttack = true,
            .IndirectAttack = true,
            .NeedsBoat = false,
            .Comments = std::string(comments)};
}

void ShowKey(Controls& controls, Terrain code, bool visible) {
    controls.lblTerrKey[code].Visible = visible;
    controls.cmdSeeTerDet[code].Visible = visible;
}

void SetFortress(Game& game, std::string_view name, const TerrainKindRecord& kind) {
    game.record.TerrainKinds[Fortress] = kind;
    game.controls.lblTerrKey[Fortress].Caption = name;
    ShowKey(game.controls, Fortress, true);
}

void SetLandmarks(Game& game, LandmarkSteps steps) {
    switch (steps) {
        case LandmarkSteps::None:
            break;
        case LandmarkSteps::CastleVennick:
            SetFortress(game, "Castle Vennick", LandmarkKind(4, "1 to move and 4 defense units"));
            ShowKey(game.controls, Abbey, false);
            break;
        case LandmarkSteps::Abbey:
            SetAbbeyTerrain(game, true);
            break;
        case LandmarkSteps::Stonemantle:
            SetStonemantleTerrain(game, true);
            break;
        case LandmarkSteps::Gallowrock:
            SetFortress(game, "Gallowrock", LandmarkKind(3, "1 to move and 3 defense"));
            ShowKey(game.controls, Abbey, false);
            break;
        case LandmarkSteps::StonemantleAndAbbey:
            SetStonemantleTerrain(game, false);
            SetAbbeyTerrain(game, false);
            break;
        case LandmarkSteps::OstrelleAndAbbey:
            SetAbbeyTerrain(game, false);
            SetFortress(game, "Ostrelle", LandmarkKind(4, "1 to move and 4 defense units"));
            break;
    }
}

}  // namespace

const ScenarioData& DataOfScenario(int scenario) {
    return *scenarios.at(static_cast<std::size_t>(scenario) - 1);
}

void SetupScenario(Game& game) {
    GameRecord& record = game.record;
    if (record.bytScenario < 1 || record.bytScenario > scenarioCount) return;

    const ScenarioData& data = DataOfScenario(record.bytScenario);
    WriteRoster(data, record);
    WriteTerrain(data, record);
    SetLandmarks(game, data.landmarkSteps);
    for (std::size_t side = 1; side <= 2; ++side) {
        record.bytPeopleLeft[side] = data.PeopleLeft[side - 1];
        record.strVictoryText[side] = data.VictoryText[side - 1];
    }
}

void SetStonemantleTerrain(Game& game, bool blnOnly) {
    SetFortress(game, "Stonemantle", LandmarkKind(4, "1 to move and 4 for defense"));
    ShowKey(game.controls, Abbey, !blnOnly);
}

void SetAbbeyTerrain(Game& game, bool blnOnly) {
    Controls& controls = game.controls;
    game.record.TerrainKinds[Abbey] = LandmarkKind(4, "1 to move and 4 for defense");
    ShowKey(controls, Abbey, true);
    if (blnOnly) {
        controls.lblTerrKey[Abbey].Top = TerrKeyTop(Fortress);
        controls.cmdSeeTerDet[Abbey].Top = TerrKeyTop(Fortress);
    }
    ShowKey(controls, Fortress, !blnOnly);
}

}  // namespace qarn
