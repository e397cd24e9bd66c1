// The game window at work, at 1024 x 768 on whatever display Qt finds: a repaint of the whole
// board, and a click from the mouse's event until everything it changed is painted.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QTemporaryDir>
#include <QTest>
#include <cstdlib>

#include "core/file_store.h"
#include "core/game_file.h"
#include "desktop/linux_desktop.h"
#include "ui/frm_game.h"

namespace qarn {
namespace {

class OpenWindow {
public:
    OpenWindow() : window_(random_, desktop_.Ports()) {
        const std::string path = folder_.filePath("game.tgf").toStdString();
        ReplaceFile(path, NewGameText("HM", {{{"Red", false}, {"Blue", false}}}));
        window_.Open(path);
        window_.resize(1024, 768);
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

BENCHMARK(RepaintBoard)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(ClickSquare)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
}  // namespace qarn

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
