#include "scenarios/setup.h"

#include "core/game.h"
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

GroupKind KindOf(const RosterEntry& entry) {
    if (entry.Name == "Boat") return GroupKind::Boat;
    if (entry.Name == "Cart") return GroupKind::Cart;
    if (entry.Code.Text() == "J") return GroupKind::LoneBird;
    if (entry.Code.Text() == "SK") return GroupKind::LeadingBird;
    return GroupKind::Ordinary;
}

void WriteRoster(const ScenarioData& data, GameRecord& record) {
    for (std::size_t i = 1; i <= peopleCount; ++i) {
        const RosterEntry& entry = data.Roster[i - 1];
        PeopleRecord& people = record.People[i];
        people.Name = entry.Name;
        people.Code = entry.Code.Padded();
        people.Side = entry.Side;
        people.LocationX = entry.LocationX;
        people.LocationY = entry.LocationY;
        people.Mobility = entry.Mobility;
        people.Attack = entry.Attack;
        people.Defense = entry.Defense;
        people.Ability1 = entry.Ability1;
        people.Ability2 = entry.Ability2;
        people.Kind = KindOf(entry);
    }
}

void WriteTerrain(const ScenarioData& data, GameRecord& record) {
    for (std::size_t Y = 1; Y <= rowCount; ++Y) {
        for (std::size_t X = 1; X <= columnCount; ++X) {
            record.bytTerrain[X][Y] = static_cast<std::uint8_t>(data.Board[Y - 1][X - 1] - '0');
        }
    }
}

TerrainKindRecord KindOf(const Landmark& landmark) {
    TerrainKindRecord kind;
    kind.Mobility = 1;
    kind.Defense = landmark.Defense;
    kind.DirectAttack = true;
    kind.IndirectAttack = true;
    kind.Comments = landmark.Comments;
    return kind;
}

void ShowKey(Controls& controls, Terrain code, bool visible) {
    controls.lblTerrKey[code].Visible = visible;
    controls.cmdSeeTerDet[code].Visible = visible;
}

void SetFortress(Game& game, const Landmark& landmark) {
    game.record.TerrainKinds[Fortress] = KindOf(landmark);
    game.record.blnFortressBurns = landmark.BurnsDown;
    game.controls.lblTerrKey[Fortress].Caption = landmark.Caption;
    ShowKey(game.controls, Fortress, true);
}

void SetLandmarks(Game& game, LandmarkSteps steps) {
    switch (steps) {
        case LandmarkSteps::None:
            break;
        case LandmarkSteps::CastleVennick:
            SetFortress(game, castleVennick);
            ShowKey(game.controls, Abbey, false);
            break;
        case LandmarkSteps::Abbey:
            SetAbbeyTerrain(game, true);
            break;
        case LandmarkSteps::Stonemantle:
            SetStonemantleTerrain(game, true);
            break;
        case LandmarkSteps::Gallowrock:
            SetFortress(game, gallowrock);
            ShowKey(game.controls, Abbey, false);
            break;
        case LandmarkSteps::StonemantleAndAbbey:
            SetStonemantleTerrain(game, false);
            SetAbbeyTerrain(game, false);
            break;
        case LandmarkSteps::OstrelleAndAbbey:
            SetAbbeyTerrain(game, false);
            SetFortress(game, ostrelle);
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
    SetFortress(game, stonemantleFortress);
    ShowKey(game.controls, Abbey, !blnOnly);
}

void SetAbbeyTerrain(Game& game, bool blnOnly) {
    Controls& controls = game.controls;
    game.record.TerrainKinds[Abbey] = KindOf(abbey);
    ShowKey(controls, Abbey, true);
    if (blnOnly) {
        controls.lblTerrKey[Abbey].Top = TerrKeyTop(Fortress);
        controls.cmdSeeTerDet[Abbey].Top = TerrKeyTop(Fortress);
    }
    ShowKey(controls, Fortress, !blnOnly);
}

}  // namespace qarn
