#include <fontconfig/fontconfig.h>

#include <QApplication>
#include <cstdio>
#include <cstdlib>
#include <span>
#include <string>
#include <thread>

#include "desktop/process_signals.h"
#include "shell/command_line.h"
#include "shell/program_texts.h"
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

constexpr auto usage =
    "Usage: qarn [FILE.tgf]\n"
    "       qarn --help | --version\n"
    "Plays the Thornmere Series Tactical Game in a window; goes on with FILE.tgf if named.";

// Prints a text that was asked for, and gives the status to end with.
int Tell(const std::string& text) {
    if (std::puts(text.c_str()) >= 0 && std::fflush(stdout) == 0) return EXIT_SUCCESS;
    std::fputs("qarn: the output can not be written\n", stderr);
    return EXIT_FAILURE;
}

}  // namespace

int main(int argc, char* argv[]) {
    qarn::FillClosedStreams();
    qarn::TellFullQuotas();
    const std::string option = argc == 2 ? argv[1] : "";
    if (option == "--help") return Tell(usage);
    if (option == "--version") return Tell(qarn::ProductNameVersion());
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
