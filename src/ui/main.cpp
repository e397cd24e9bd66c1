#include <fontconfig/fontconfig.h>

#include <QApplication>
#include <cstdio>
#include <cstdlib>
#include <span>
#include <string>
#include <thread>

#include "desktop/process_signals.h"
#include "shell/command_line.h"
#include "ui/program.h"

namespace {

// By this status ./play knows that the game is to be played in the terminal.
constexpr int noDisplayStatus = 3;

// Qt ends the program when it finds no display; this says why in a line of our own.
void TellNoDisplay(QtMsgType type, const QMessageLogContext&, const QString&) {
    if (type != QtFatalMsg) return;
    std::fputs("qarn: there is no display to open a window on\n", stderr);
    std::_Exit(noDisplayStatus);
}

// What the program says of itself when it is asked to; nothing otherwise.
const char* AnswerTo(const std::string& commandLine) {
    if (commandLine == "--version") return "qarn " QARN_VERSION "\n";
    if (commandLine != "--help") return nullptr;
    return "Usage: qarn [FILE.tgf]\n"
           "       qarn --help | --version\n"
           "Plays the Thornmere Series Tactical Game in a window; goes on with FILE.tgf if "
           "named.\n";
}

}  // namespace

int main(int argc, char* argv[]) {
    qarn::FillClosedStreams();
    qarn::TellFullQuotas();
    const std::span<char*> given(argv, static_cast<std::size_t>(argc));
    if (const char* answer = AnswerTo(qarn::CommandLine(given.subspan(1)))) {
        return std::fputs(answer, stdout) < 0 || std::fflush(stdout) != 0 ? EXIT_FAILURE : 0;
    }
    // The font configuration takes long to read. Qt needs it for the first window only, so it is
    // read while Qt connects to the display.
    std::thread fontReader([] { FcInit(); });
    const QtMessageHandler usual = qInstallMessageHandler(TellNoDisplay);
    QApplication application(argc, argv);
    qInstallMessageHandler(usual);
    fontReader.join();
    // The game window follows the start window: the last window to close does not end the program.
    QApplication::setQuitOnLastWindowClosed(false);

    const std::span<char*> arguments(argv, static_cast<std::size_t>(argc));
    return qarn::RunProgram(qarn::CommandLine(arguments.subspan(1)));
}
