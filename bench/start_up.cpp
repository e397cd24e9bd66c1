// How long programs take from their start to their window on screen, and how much memory:
//   start_up [RUNS] COMMAND...
// Starts each command, a program and its arguments, in turn on the X display, RUNS times, waits
// until its window is mapped and then painted, and ends it. Prints a line for each command: the
// medians of both times in milliseconds and of the most memory in MB, each followed by its ratio to
// the first command's. The display should be one without a window manager and with a black
// background, such as Xvfb's.

#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <string>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;

constexpr int defaultRuns = 31;

// A command's words are separated by single blanks.
pid_t Start(std::string command) {
    const pid_t child = fork();
    if (child != 0) return child;
    std::vector<char*> words;
    for (char* word = std::strtok(command.data(), " "); word; word = std::strtok(nullptr, " ")) {
        words.push_back(word);
    }
    words.push_back(nullptr);
    execv(words[0], words.data());
    std::perror(words[0]);
    _exit(EXIT_FAILURE);
}

Window WaitForWindow(Display* display) {
    XEvent event;
    do {
        XNextEvent(display, &event);
    } while (event.type != MapNotify || event.xmap.override_redirect);
    return event.xmap.window;
}

void WaitForPaint(Display* display, Window window) {
    constexpr int margin = 4;
    unsigned long pixel = 0;
    do {
        XImage* image = XGetImage(display, window, margin, margin, 1, 1, AllPlanes, ZPixmap);
        pixel = XGetPixel(image, 0, 0);
        XDestroyImage(image);
    } while (pixel == BlackPixel(display, DefaultScreen(display)));
}

void End(Display* display, pid_t child) {
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    XEvent event;
    do {
        XNextEvent(display, &event);
    } while (event.type != DestroyNotify);
    XSync(display, True);
}

// The most that a running program has had in memory, in MB.
double PeakMemory(pid_t program) {
    std::ifstream status("/proc/" + std::to_string(program) + "/status");
    std::string word;
    while (status >> word && word != "VmHWM:") {
    }
    double kilobytes = 0;
    status >> kilobytes;
    return kilobytes / 1024;
}

struct Starts {
    std::vector<double> mapped;
    std::vector<double> painted;
    std::vector<double> memory;
};

void TimeStart(Display* display, const std::string& command, Starts& starts) {
    const Clock::time_point start = Clock::now();
    const pid_t child = Start(command);
    const Window window = WaitForWindow(display);
    starts.mapped.push_back(Milliseconds(Clock::now() - start).count());
    WaitForPaint(display, window);
    starts.painted.push_back(Milliseconds(Clock::now() - start).count());
    starts.memory.push_back(PeakMemory(child));
    End(display, child);
}

double Median(std::vector<double> times) {
    std::nth_element(times.begin(), times.begin() + static_cast<long>(times.size() / 2),
                     times.end());
    return times[times.size() / 2];
}

}  // namespace

int main(int argc, char* argv[]) {
    const int given = argc > 1 ? std::atoi(argv[1]) : 0;
    const int runs = given > 0 ? given : defaultRuns;
    const int first = given > 0 ? 2 : 1;
    Display* display = XOpenDisplay(nullptr);
    if (first >= argc || display == nullptr) {
        std::fputs("usage: start_up [RUNS] COMMAND...     (on an X display)\n", stderr);
        return 2;
    }
    XSelectInput(display, DefaultRootWindow(display), SubstructureNotifyMask);

    const std::vector<std::string> commands(argv + first, argv + argc);
    std::vector<Starts> starts(commands.size());
    for (int run = 0; run < runs; ++run) {
        for (std::size_t i = 0; i < commands.size(); ++i) {
            TimeStart(display, commands[i], starts[i]);
        }
    }
    for (std::size_t i = 0; i < commands.size(); ++i) {
        for (const auto kind : {&Starts::mapped, &Starts::painted, &Starts::memory}) {
            const double median = Median(starts[i].*kind);
            std::printf("%.1f %.3f ", median, median / Median(starts[0].*kind));
        }
        std::puts(commands[i].c_str());
    }
    XCloseDisplay(display);
}
