#include "desktop/login_manager.h"

#include <gio/gio.h>

#include <stdexcept>

#include "desktop/glib_error.h"
#include "desktop/glib_owned.h"

namespace qarn {

void LoginManager::Restart() {
    GlibError error;
    const GlibObject<GDBusConnection> bus(g_bus_get_sync(G_BUS_TYPE_SYSTEM, nullptr, error.Out()));
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
