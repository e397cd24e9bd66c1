#include "desktop/deferred_services.h"

#include <stdexcept>

#include "desktop/gio_services.h"
#include "desktop/module.h"

namespace qarn {
namespace {

const GioServices& Services() {
    static const GioServices& services =
        *reinterpret_cast<GioFunction*>(FunctionOfModule(gioModule, gioFunction))();
    return services;
}

FileTypeRegistry* FileTypes() {
    try {
        return &Services().fileTypes;
    } catch (const std::runtime_error&) {
        return nullptr;
    }
}

}  // namespace

bool DeferredFileTypes::CreateKey(const std::string& key) {
    FileTypeRegistry* types = FileTypes();
    return types != nullptr && types->CreateKey(key);
}

bool DeferredFileTypes::SetDefaultValue(const std::string& key, const std::string& value) {
    FileTypeRegistry* types = FileTypes();
    return types != nullptr && types->SetDefaultValue(key, value);
}

std::optional<std::string> DeferredFileTypes::DefaultValue(const std::string& key) {
    FileTypeRegistry* types = FileTypes();
    return types != nullptr ? types->DefaultValue(key) : std::nullopt;
}

void DeferredWastebasket::MoveThere(const std::string& path) {
    Services().wastebasket.MoveThere(path);
}

void DeferredComputer::Restart() { Services().computer.Restart(); }

}  // namespace qarn
