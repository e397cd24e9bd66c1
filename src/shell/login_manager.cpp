#include "shell/login_manager.h"

#include <gio/gio.h>

#include <stdexcept>

#include "shell/glib_error.h"

namespace qarn {
namespace {

struct ReleaseObject {
    void operator()(gpointer object) const { g_object_unref(object); }
};

}  // namespace

void LoginManager::Restart() {
    GlibError error;
    const std::unique_ptr<GDBusConnection, ReleaseObject> bus(
        g_bus_get_sync(G_BUS_TYPE_SYSTEM, nullptr, error.Out()));
    if (!bus) throw std::runtime_error(error.Reason());
    constexpr gboolean interactive = TRUE;
    GVariant* answer = g_dbus_connection_call_sync(
        bus.get(), "org.freedesktop.login1", "/org/freedesktop/login1",
        "org.freedesktop.login1.Manager", "Reboot", g_variant_new("(b)", interactive), nullptr,
        G_DBUS_CALL_FLAGS_ALLOW_INTERACTIVE_AUTHORIZATION, G_MAXINT, nullptr, error.Out());
    if (answer == nullptr) {
        g_dbus_error_strip_remote_error(*error.Out());
        throw std::runtime_error(error.Reason());
    }
    g_variant_unref(answer);
}

}  // namespace qarn
