#include "desktop/gio_services.h"

#include "desktop/desktop_wastebasket.h"
#include "desktop/login_manager.h"
#include "desktop/xdg_file_types.h"

extern "C" [[gnu::visibility("default")]] const qarn::GioServices* qarn_gio_services() {
    static qarn::XdgFileTypes fileTypes;
    static qarn::DesktopWastebasket wastebasket;
    static qarn::LoginManager computer;
    static const qarn::GioServices services{fileTypes, wastebasket, computer};
    return &services;
}
