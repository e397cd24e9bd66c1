// The game window at work, on whatever display Qt finds: at 1024 x 768 a repaint of the whole
// board, and a click from the mouse's event until everything it changed is painted; at 2560 x 1440
// the same repaint and the way of the pointer from square to square, with all that the menu View
// can show.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QTemporaryDir>
#include <QTest>
#include <cstdlib>

#include "core/file_store.h"
#include "core/game_file.h"
#include "desktop/linux_desktop.h"
#include "ui/frm_game.h"
#include "window/view_choices.h"

namespace qarn {
namespace {

class OpenWindow {
public:
    explicit OpenWindow(QSize size = {1024, 768}) : window_(random_, desktop_.Ports()) {
        const std::string path = folder_.filePath("game.tgf").toStdString();
        ReplaceFile(path, NewGameText("HM", {{{"Red", false}, {"Blue", false}}}));
        window_.Open(path);
        window_.resize(size);
        if (!QTest::qWaitForWindowExposed(&window_)) std::abort();
    }

    BoardWidget& Board() { return *window_.findChild<BoardWidget*>(); }
    template <typename Widget>
    Widget& Find(const char* name) {
        return *window_.findChild<Widget*>(name);
    }

private:
    QTemporaryDir folder_;
    LinuxDesktop desktop_;
    ClockSeededNumbers random_;
    FrmGame window_;
};

void RepaintBoard(benchmark::State& state) {
    OpenWindow window;
    for (auto _ : state) window.Board().repaint();
}

// Square information changes the most: the text beside the board and the frame that moves over it.
void ClickSquare(benchmark::State& state) {
    OpenWindow window;
    QTest::mouseClick(&window.Find<QPushButton>("cmdSquareDetails"), Qt::LeftButton);
    const QPoint places[] = {window.Board().PlaceOfSquare({14, 7}).center(),
                             window.Board().PlaceOfSquare({3, 2}).center()};
    std::size_t click = 0;
    for (auto _ : state) {
        QTest::mouseClick(&window.Board(), Qt::LeftButton, {}, places[click++ % 2]);
        QApplication::processEvents();
    }
    if (!window.Find<QFrame>("fraQuickDetails").isVisible()) state.SkipWithError("Nothing shown");
}

class WindowWithAids : public OpenWindow {
public:
    WindowWithAids() : OpenWindow({2560, 1440}) { ToggleAids(); }
    ~WindowWithAids() { ToggleAids(); }  // the settings are kept

private:
    void ToggleAids() {
        for (const ViewChoice& choice : AllViewChoices()) {
            if (choice.Chosen == &ViewChoices::fullScreen) continue;
            Find<QAction>(std::string(choice.Item).c_str()).trigger();
        }
    }
};

void RepaintBoardWithAids(benchmark::State& state) {
    WindowWithAids window;
    for (auto _ : state) window.Board().repaint();
}

// From a stack to another one, so that all that can be reached from both is painted anew.
void HoverWithAids(benchmark::State& state) {
    WindowWithAids window;
    const QPoint places[] = {window.Board().PlaceOfSquare({14, 7}).center(),
                             window.Board().PlaceOfSquare({9, 5}).center()};
    std::size_t move = 0;
    for (auto _ : state) {
        QTest::mouseMove(&window.Board(), places[move++ % 2]);
        QApplication::processEvents();
    }
}

BENCHMARK(RepaintBoard)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(ClickSquare)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(RepaintBoardWithAids)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(HoverWithAids)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
}  // namespace qarn

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
