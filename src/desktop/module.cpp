#include "desktop/module.h"

#include <dlfcn.h>

#include <stdexcept>

#include "desktop/program_folders.h"

namespace qarn {

void* FunctionOfModule(const std::string& module, const char* function) {
    const std::string path = FindProgramFolders().program + "/" + module;
    void* library = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
    void* found = library != nullptr ? dlsym(library, function) : nullptr;
    if (found == nullptr) throw std::runtime_error(std::string(dlerror()) + ".");
    return found;
}

}  // namespace qarn
