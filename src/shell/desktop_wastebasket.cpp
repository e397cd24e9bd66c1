#include "shell/desktop_wastebasket.h"

#include <gio/gio.h>

#include <stdexcept>

#include "shell/glib_error.h"

namespace qarn {

void DesktopWastebasket::MoveThere(const std::string& path) {
    GFile* file = g_file_new_for_path(path.c_str());
    GlibError error;
    const bool moved = g_file_trash(file, nullptr, error.Out());
    g_object_unref(file);
    if (!moved) throw std::runtime_error(error.Reason());
}

}  // namespace qarn
