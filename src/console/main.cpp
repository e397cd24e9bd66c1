#include <unistd.h>

#include <exception>
#include <iostream>
#include <istream>
#include <span>

#include "console/front_end.h"
#include "console/options.h"
#include "console/printable.h"
#include "console/watched_input.h"
#include "console/words.h"
#include "desktop/linux_desktop.h"
#include "desktop/process_signals.h"
#include "shell/program_texts.h"

namespace {

constexpr auto usage =
    "Usage: qarn-console [--json] [FILE.tgf]\n"
    "       qarn-console --selfplay N [--scenario CODE|all] [--seed S] [--json]\n"
    "       qarn-console --match A B [--games N] [--scenario CODE|all] [--seed S] [--turns T]\n"
    "                    [--sprt] [--json]\n"
    "           plays N seeds, 100 unless told, twice each: 2 N games of each scenario\n"
    "       qarn-console --help | --version\n";

int Run(const qarn::Options& options) {
    using namespace qarn;
    if (options.help || options.version) {
        std::cout << (options.help ? usage : ProductNameVersion() + '\n');
        return 0;
    }
    std::ostream* progress = isatty(STDERR_FILENO) != 0 ? &std::cerr : nullptr;
    if (options.selfPlay) {
        RunSelfPlay(*options.selfPlay, std::cout, progress);
        return 0;
    }
    if (options.match) {
        RunMatch(*options.match, std::cout, progress);
        return 0;
    }
    LinuxDesktop desktop;
    WatchedInput input(STDIN_FILENO, NoteEndSignals());
    std::istream in(&input);
    const Commands commands{in, [&] { return IsAskedToEnd() || input.HasHungUp(); }};
    DesktopPorts ports = desktop.Ports();
    if (options.json) {
        ports.folders.userState.clear();  // no program expects to be asked about an earlier sitting
        return RunForProgram(commands, std::cout, std::cerr, ports, options.file);
    }
    return RunForPerson(commands, std::cout, ports, options.file, isatty(STDOUT_FILENO) != 0);
}

}  // namespace

int main(int argc, char** argv) {
    std::ios::sync_with_stdio(false);
    qarn::FillClosedStreams();
    qarn::TellFullQuotas();
    try {
        const std::span<char* const> arguments(argv, static_cast<std::size_t>(argc));
        const int status = Run(qarn::ParseOptions(arguments.subspan(1)));
        if (std::cout.flush()) return status;
        std::cerr << "The output can not be written.\n";
        return 1;
    } catch (const qarn::Refusal& refusal) {
        std::cerr << qarn::Printable(refusal.what()) << '\n' << usage;
        return 2;
    } catch (const std::exception& error) {
        std::cerr << qarn::Printable(error.what()) << '\n';
        return 1;
    }
}
