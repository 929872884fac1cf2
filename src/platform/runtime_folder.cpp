#include "platform/runtime_folder.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dirent.h>
#include <initializer_list>
#include <string>
#include <unistd.h>

namespace gp {

namespace {
// The folder made for this run; a fixed buffer, so that a signal handler can
// use it without allocating.
char gFolder[256] = "";

// Removes the folder and what Qt left in it (plain files only, one level).
// Only calls that are safe in a signal handler.
void removeFolder() {
    if (gFolder[0] == '\0') return;
    if (DIR* d = ::opendir(gFolder)) {
        char path[sizeof gFolder + 256];
        while (const dirent* e = ::readdir(d)) {
            if (std::strcmp(e->d_name, ".") == 0 || std::strcmp(e->d_name, "..") == 0) continue;
            const size_t a = std::strlen(gFolder), b = std::strlen(e->d_name);
            if (a + 1 + b + 1 > sizeof path) continue;
            std::memcpy(path, gFolder, a);
            path[a] = '/';
            std::memcpy(path + a + 1, e->d_name, b + 1);
            ::unlink(path);
        }
        ::closedir(d);
    }
    ::rmdir(gFolder);
    gFolder[0] = '\0';
}

void onSignal(int signal) {
    removeFolder();
    std::signal(signal, SIG_DFL);
    std::raise(signal);
}
} // namespace

RuntimeFolder::RuntimeFolder() {
    if (const char* dir = std::getenv("XDG_RUNTIME_DIR"); dir && *dir) return;
    // In the temporary folder the user's TMPDIR names, as mktemp does.
    const char* tmp = std::getenv("TMPDIR");
    const std::string base = tmp && *tmp && std::strlen(tmp) < sizeof gFolder - 32 ? tmp : "/tmp";
    std::snprintf(gFolder, sizeof gFolder, "%s/gridpages-runtime-XXXXXX", base.c_str());
    if (!::mkdtemp(gFolder)) {
        gFolder[0] = '\0';
        return;
    }
    ::setenv("XDG_RUNTIME_DIR", gFolder, 1);
    for (int s : {SIGINT, SIGTERM, SIGHUP, SIGQUIT, SIGPIPE}) std::signal(s, onSignal);
    // exit() from anywhere (a fatal Qt message, a library) still cleans up.
    std::atexit(removeFolder);
}

RuntimeFolder::~RuntimeFolder() { removeFolder(); }

} // namespace gp
