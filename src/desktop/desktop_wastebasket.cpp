#include "desktop/desktop_wastebasket.h"

#include <gio/gio.h>

#include <stdexcept>

#include "desktop/glib_error.h"
#include "desktop/glib_owned.h"

namespace qarn {

void DesktopWastebasket::MoveThere(const std::string& path) {
    const GlibObject<GFile> file(g_file_new_for_path(path.c_str()));
    GlibError error;
    if (!g_file_trash(file.get(), nullptr, error.Out())) throw std::runtime_error(error.Reason());
}

}  // namespace qarn
