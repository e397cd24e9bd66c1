#include "desktop/randr_display.h"

#include <algorithm>
#include <span>

#include "desktop/free_with.h"

// Behind the headers of our own: this one defines macros with everyday names.
#include <X11/extensions/Xrandr.h>

namespace qarn {
namespace {

using Resources = std::unique_ptr<XRRScreenResources, FreeWith<XRRFreeScreenResources>>;
using Output = std::unique_ptr<XRROutputInfo, FreeWith<XRRFreeOutputInfo>>;
using Crtc = std::unique_ptr<XRRCrtcInfo, FreeWith<XRRFreeCrtcInfo>>;

bool anErrorCame = false;

int NoteError(_XDisplay*, XErrorEvent*) {
    anErrorCame = true;
    return 0;
}

// While it lives, no other program reaches the server, and an error of the server does not end this
// one.
class ServerToOneself {
public:
    explicit ServerToOneself(_XDisplay* connection)
        : connection_(connection), handler_(XSetErrorHandler(NoteError)) {
        anErrorCame = false;
        XGrabServer(connection_);
    }
    ServerToOneself(const ServerToOneself&) = delete;
    ServerToOneself& operator=(const ServerToOneself&) = delete;
    ~ServerToOneself() {
        XUngrabServer(connection_);
        XSync(connection_, False);
        XSetErrorHandler(handler_);
    }

    // Waits until the server has done all it was asked. Gives false when it refused something.
    bool DoneWithoutError() const {
        XSync(connection_, False);
        return !anErrorCame;
    }

private:
    _XDisplay* connection_;
    XErrorHandler handler_;
};

// A monitor that shows a picture, and the part of the display hardware that makes this.
struct Monitor {
    Output output;
    RRCrtc crtcId = 0;
    Crtc crtc;
};

class Server {
public:
    explicit Server(_XDisplay* connection)
        : connection_(connection),
          root_(DefaultRootWindow(connection)),
          resources_(XRRGetScreenResourcesCurrent(connection, root_)) {}

    Monitor FindMonitor() const {
        Monitor primary = MonitorOf(XRRGetOutputPrimary(connection_, root_));
        if (primary.crtc) return primary;
        for (const RROutput output : Outputs()) {
            Monitor monitor = MonitorOf(output);
            if (monitor.crtc) return monitor;
        }
        return {};
    }

    // The modes of a monitor, as the resources describe them, in its own order.
    std::vector<XRRModeInfo> ModesOf(const Monitor& monitor) const {
        std::vector<XRRModeInfo> modes;
        for (const RRMode id : std::span(monitor.output->modes, Count(monitor.output->nmode))) {
            for (const XRRModeInfo& mode : std::span(resources_->modes, Count(resources_->nmode))) {
                if (mode.id == id) modes.push_back(mode);
            }
        }
        return modes;
    }

    // Makes the screen as large as all monitors need, with this mode on this monitor.
    bool Set(const Monitor& monitor, RRMode mode, const DisplayMode& size) const {
        XRRCrtcInfo& crtc = *monitor.crtc;
        XRRSetCrtcConfig(connection_, resources_.get(), monitor.crtcId, CurrentTime, 0, 0, 0,
                         RR_Rotate_0, nullptr, 0);
        SetScreenSize(SizeAround(monitor, size));
        return XRRSetCrtcConfig(connection_, resources_.get(), monitor.crtcId, CurrentTime, crtc.x,
                                crtc.y, mode, crtc.rotation, crtc.outputs,
                                crtc.noutput) == RRSetConfigSuccess;
    }

private:
    static std::size_t Count(int count) { return static_cast<std::size_t>(count); }

    std::span<const RROutput> Outputs() const {
        return {resources_->outputs, Count(resources_->noutput)};
    }

    Monitor MonitorOf(RROutput outputId) const {
        if (outputId == 0) return {};
        Monitor monitor;
        monitor.output.reset(XRRGetOutputInfo(connection_, resources_.get(), outputId));
        if (!monitor.output || monitor.output->crtc == 0) return {};
        monitor.crtcId = monitor.output->crtc;
        monitor.crtc.reset(XRRGetCrtcInfo(connection_, resources_.get(), monitor.crtcId));
        return monitor;
    }

    DisplayMode SizeAround(const Monitor& changed, const DisplayMode& size) const {
        DisplayMode around{changed.crtc->x + size.Width, changed.crtc->y + size.Height};
        for (const RRCrtc id : std::span(resources_->crtcs, Count(resources_->ncrtc))) {
            const Crtc crtc(XRRGetCrtcInfo(connection_, resources_.get(), id));
            if (id == changed.crtcId || !crtc || crtc->mode == 0) continue;
            around.Width = std::max(around.Width, crtc->x + static_cast<int>(crtc->width));
            around.Height = std::max(around.Height, crtc->y + static_cast<int>(crtc->height));
        }
        return around;
    }

    // As many millimetres as keep the dots where they are.
    void SetScreenSize(const DisplayMode& size) const {
        const int screen = DefaultScreen(connection_);
        const int width =
            size.Width * DisplayWidthMM(connection_, screen) / DisplayWidth(connection_, screen);
        const int height =
            size.Height * DisplayHeightMM(connection_, screen) / DisplayHeight(connection_, screen);
        XRRSetScreenSize(connection_, root_, size.Width, size.Height, width, height);
    }

    _XDisplay* connection_;
    Window root_;
    Resources resources_;
};

DisplayMode SizeOf(const XRRCrtcInfo& crtc) {
    return {static_cast<int>(crtc.width), static_cast<int>(crtc.height)};
}

// What the mode shows on a monitor that may stand on its side.
DisplayMode SizeOf(const XRRModeInfo& mode, const Monitor& monitor) {
    const DisplayMode size{static_cast<int>(mode.width), static_cast<int>(mode.height)};
    const bool turned = (monitor.crtc->rotation & (RR_Rotate_90 | RR_Rotate_270)) != 0;
    return turned ? DisplayMode{size.Height, size.Width} : size;
}

}  // namespace

RandrDisplay::RandrDisplay(_XDisplay* connection) : connection_(connection) {
    const Server server(connection_);
    const Monitor monitor = server.FindMonitor();
    if (!monitor.crtc) return;
    for (const XRRModeInfo& mode : server.ModesOf(monitor)) {
        modes_.push_back(SizeOf(mode, monitor));
    }
}

RandrDisplay::~RandrDisplay() { XCloseDisplay(connection_); }

std::optional<DisplayMode> RandrDisplay::Mode(int number) {
    const auto index = static_cast<std::size_t>(number);
    if (index >= modes_.size()) return std::nullopt;
    return modes_[index];
}

DisplayChange RandrDisplay::Change(const DisplayMode& request, bool permanent) {
    if (permanent) return DisplayChange::Failed;
    const ServerToOneself grab(connection_);
    const Server server(connection_);
    const Monitor monitor = server.FindMonitor();
    if (!monitor.crtc) return DisplayChange::Failed;

    const std::vector<XRRModeInfo> modes = server.ModesOf(monitor);
    const auto mode = std::find_if(modes.begin(), modes.end(), [&](const XRRModeInfo& offered) {
        const DisplayMode size = SizeOf(offered, monitor);
        return size.Width == request.Width && size.Height == request.Height;
    });
    if (mode == modes.end()) return DisplayChange::Failed;

    if (server.Set(monitor, mode->id, request) && grab.DoneWithoutError()) {
        return DisplayChange::Successful;
    }
    server.Set(monitor, monitor.crtc->mode, SizeOf(*monitor.crtc));
    return DisplayChange::Failed;
}

}  // namespace qarn

extern "C" [[gnu::visibility("default")]] qarn::DisplaySettings* qarn_open_randr_display() {
    _XDisplay* connection = XOpenDisplay(nullptr);
    if (connection == nullptr) return nullptr;
    auto display = std::make_unique<qarn::RandrDisplay>(connection);
    int major = 1;
    int minor = 3;
    const bool known = XRRQueryVersion(connection, &major, &minor) != 0 &&
                       (major > 1 || (major == 1 && minor >= 3));
    return known ? display.release() : nullptr;
}
