#include "platform/cups_library.h"

#include <dlfcn.h>

#include <mutex>

namespace gp {

namespace {
constexpr const char* kLibrary = "libcups.so.2";

template <typename F>
bool find(void* handle, const char* name, F& to, std::string& error) {
    to = reinterpret_cast<F>(dlsym(handle, name));
    if (!to) error = std::string(kLibrary) + " has no " + name;
    return to != nullptr;
}
} // namespace

const CupsLibrary* CupsLibrary::get(std::string& error) {
    static CupsLibrary library;
    static std::string loadError;
    static std::once_flag once;
    std::call_once(once, [] {
        // Kept loaded to the end: the calls may be made again at any time.
        void* handle = dlopen(kLibrary, RTLD_NOW | RTLD_LOCAL);
        if (!handle) {
            const char* why = dlerror();
            loadError = std::string("the CUPS library could not be loaded: ") + (why ? why : kLibrary);
            return;
        }
        if (!find(handle, "cupsAddOption", library.addOption, loadError) ||
            !find(handle, "cupsFreeOptions", library.freeOptions, loadError) ||
            !find(handle, "cupsPrintFile", library.printFile, loadError) ||
            !find(handle, "cupsLastErrorString", library.lastErrorString, loadError))
            library = CupsLibrary{};
    });
    if (!loadError.empty()) {
        error = loadError;
        return nullptr;
    }
    return &library;
}

} // namespace gp
