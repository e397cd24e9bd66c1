// A game without its window: what an event costs, a load, and a save, which waits for the disk.

#include <benchmark/benchmark.h>
#include <unistd.h>

#include <filesystem>
#include <string>

#include "ai/self_play.h"
#include "ai/self_play_ports.h"
#include "core/file_store.h"
#include "core/game_file.h"
#include "window/load_game.h"
#include "window/run_event.h"
#include "window/save_game.h"

namespace qarn {
namespace {

namespace fs = std::filesystem;

// An event that changes nothing.
void EmptyEvent(benchmark::State& state) {
    SelfPlayedGame played(1, 1);
    for (auto _ : state) RunEvent(played.CurrentGame(), "nothing", [](Game&) {});
}

// A game in a file of a folder of its own.
class GameOnDisk {
public:
    GameOnDisk() {
        fs::create_directories(folder_);
        ReplaceFile(path_, NewGameText("HM", {{{"Red", false}, {"Blue", false}}}));
    }
    ~GameOnDisk() { fs::remove_all(folder_); }

    void Load() {
        game_.blnOpen = false;
        RunEvent(game_, "Form_Load", [this](Game& game) { Form_Load(game, path_); });
    }
    void Save() { RunEvent(game_, "Save", SaveGame); }

private:
    fs::path folder_ = fs::temp_directory_path() / ("qarn-bench-" + std::to_string(getpid()));
    std::string path_ = folder_ / "game.tgf";
    SelfPlayPorts ports_{1};
    Game game_{.record = {}, .controls = {}, .ports = ports_.All()};
};

void Load(benchmark::State& state) {
    GameOnDisk game;
    for (auto _ : state) game.Load();
}

void Save(benchmark::State& state) {
    GameOnDisk game;
    game.Load();
    for (auto _ : state) game.Save();
}

BENCHMARK(EmptyEvent);
BENCHMARK(Load)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(Save)->Unit(benchmark::kMicrosecond)->UseRealTime();

}  // namespace
}  // namespace qarn
