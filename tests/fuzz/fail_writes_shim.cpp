// A preloaded library that makes one folder behave like a full disk or a
// read-only one, for a single process and without root:
//
//   LD_PRELOAD=libgridpages_failwrites.so GRIDPAGES_FAIL_UNDER=DIR
//   GRIDPAGES_FAIL_AS=nospace|readonly program ...
//
// nospace: files under DIR can be created, but every byte written to them
// fails with ENOSPC, and no folder can be made there, as on a full file
// system. readonly: nothing under DIR can be created, opened for writing,
// renamed or linked (EROFS). Everything elsewhere is untouched.
//
// glibc's own stdio and mkstemp call the kernel without going through
// these symbols, so fopen and the mkstemp family are caught here too.
#include <dlfcn.h>
#include <fcntl.h>
#include <limits.h>
#include <stdarg.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/stat.h>
#include <sys/uio.h>
#include <unistd.h>

#include <cerrno>
#include <string>

namespace {

enum class Mode { Off, NoSpace, ReadOnly };

struct Setup {
    Mode mode = Mode::Off;
    std::string root;  // the folder, resolved, without a trailing slash
    Setup() {
        const char* dir = getenv("GRIDPAGES_FAIL_UNDER");
        const char* as = getenv("GRIDPAGES_FAIL_AS");
        char resolved[PATH_MAX];
        if (!dir || !realpath(dir, resolved)) return;
        root = resolved;
        mode = as && strcmp(as, "readonly") == 0 ? Mode::ReadOnly : Mode::NoSpace;
    }
};

const Setup& setup() {
    static const Setup s;
    return s;
}

bool isUnder(const std::string& path) {
    const std::string& root = setup().root;
    return path.size() >= root.size() && path.compare(0, root.size(), root) == 0 &&
           (path.size() == root.size() || path[root.size()] == '/' || root == "/");
}

// The absolute form of `path` as seen from `dirfd`, its folder resolved
// (the last part may not exist yet).
std::string absolute(int dirfd, const char* path) {
    std::string full;
    if (path[0] == '/') {
        full = path;
    } else {
        char base[PATH_MAX];
        if (dirfd == AT_FDCWD) {
            if (!getcwd(base, sizeof base)) return path;
        } else {
            const std::string link = "/proc/self/fd/" + std::to_string(dirfd);
            const ssize_t n = readlink(link.c_str(), base, sizeof base - 1);
            if (n < 0) return path;
            base[n] = 0;
        }
        full = std::string(base) + "/" + path;
    }
    while (full.size() > 1 && full.back() == '/') full.pop_back();
    const size_t slash = full.find_last_of('/');
    const std::string folder = slash == 0 ? "/" : full.substr(0, slash);
    char resolved[PATH_MAX];
    if (!realpath(folder.c_str(), resolved)) return full;
    return std::string(resolved) + (strcmp(resolved, "/") == 0 ? "" : "/") + full.substr(slash + 1);
}

bool pathCaught(int dirfd, const char* path, Mode mode) {
    return setup().mode == mode && path && isUnder(absolute(dirfd, path));
}

bool fdCaught(int fd) {
    if (setup().mode != Mode::NoSpace || fd < 0) return false;
    char target[PATH_MAX];
    const std::string link = "/proc/self/fd/" + std::to_string(fd);
    const ssize_t n = readlink(link.c_str(), target, sizeof target - 1);
    if (n <= 0 || target[0] != '/') return false;
    target[n] = 0;
    return isUnder(target);
}

bool writes(int flags) { return (flags & (O_WRONLY | O_RDWR | O_CREAT | O_TRUNC)) != 0; }
bool writes(const char* mode) { return mode && strpbrk(mode, "wa+") != nullptr; }

template <typename F>
F next(const char* name) {
    return reinterpret_cast<F>(dlsym(RTLD_NEXT, name));
}

int failWith(int code) {
    errno = code;
    return -1;
}

// A stdio stream whose bytes never reach the disk.
ssize_t cookieRead(void* c, char* buf, size_t size) { return read(static_cast<int>(reinterpret_cast<intptr_t>(c)), buf, size); }
ssize_t cookieWrite(void*, const char*, size_t) {
    errno = ENOSPC;
    return -1;
}
int cookieClose(void* c) { return close(static_cast<int>(reinterpret_cast<intptr_t>(c))); }

FILE* openStream(const char* fopenName, const char* path, const char* mode) {
    using Fopen = FILE* (*)(const char*, const char*);
    if (writes(mode) && pathCaught(AT_FDCWD, path, Mode::ReadOnly)) {
        errno = EROFS;
        return nullptr;
    }
    if (!writes(mode) || !pathCaught(AT_FDCWD, path, Mode::NoSpace)) return next<Fopen>(fopenName)(path, mode);
    // The file is made (a full disk still has room for a name), then
    // every write to it fails.
    int flags = strchr(mode, '+') ? O_RDWR : O_WRONLY;
    flags |= strchr(mode, 'a') ? O_CREAT | O_APPEND : O_CREAT | O_TRUNC;
    const int fd = open(path, flags | O_CLOEXEC, 0666);
    if (fd < 0) return nullptr;
    return fopencookie(reinterpret_cast<void*>(static_cast<intptr_t>(fd)), mode,
                       cookie_io_functions_t{cookieRead, cookieWrite, nullptr, cookieClose});
}

int openFile(const char* name, int dirfd, const char* path, int flags, mode_t mode) {
    if (writes(flags) && pathCaught(dirfd, path, Mode::ReadOnly)) return failWith(EROFS);
    using Openat = int (*)(int, const char*, int, ...);
    return next<Openat>(name)(dirfd, path, flags, mode);
}

mode_t modeArg(int flags, va_list ap) { return (flags & (O_CREAT | O_TMPFILE)) ? va_arg(ap, mode_t) : 0; }

} // namespace

extern "C" {

ssize_t write(int fd, const void* buf, size_t n) {
    if (fdCaught(fd)) return failWith(ENOSPC);
    return next<ssize_t (*)(int, const void*, size_t)>("write")(fd, buf, n);
}
ssize_t pwrite(int fd, const void* buf, size_t n, off_t at) {
    if (fdCaught(fd)) return failWith(ENOSPC);
    return next<ssize_t (*)(int, const void*, size_t, off_t)>("pwrite")(fd, buf, n, at);
}
ssize_t pwrite64(int fd, const void* buf, size_t n, off64_t at) {
    if (fdCaught(fd)) return failWith(ENOSPC);
    return next<ssize_t (*)(int, const void*, size_t, off64_t)>("pwrite64")(fd, buf, n, at);
}
ssize_t writev(int fd, const struct iovec* v, int n) {
    if (fdCaught(fd)) return failWith(ENOSPC);
    return next<ssize_t (*)(int, const struct iovec*, int)>("writev")(fd, v, n);
}
int fallocate(int fd, int mode, off_t at, off_t len) {
    if (fdCaught(fd)) return failWith(ENOSPC);
    return next<int (*)(int, int, off_t, off_t)>("fallocate")(fd, mode, at, len);
}
int posix_fallocate(int fd, off_t at, off_t len) {
    if (fdCaught(fd)) return ENOSPC;
    return next<int (*)(int, off_t, off_t)>("posix_fallocate")(fd, at, len);
}

FILE* fopen(const char* path, const char* mode) { return openStream("fopen", path, mode); }
FILE* fopen64(const char* path, const char* mode) { return openStream("fopen64", path, mode); }

int open(const char* path, int flags, ...) {
    va_list ap;
    va_start(ap, flags);
    const mode_t mode = modeArg(flags, ap);
    va_end(ap);
    return openFile("openat", AT_FDCWD, path, flags, mode);
}
int open64(const char* path, int flags, ...) {
    va_list ap;
    va_start(ap, flags);
    const mode_t mode = modeArg(flags, ap);
    va_end(ap);
    return openFile("openat64", AT_FDCWD, path, flags, mode);
}
int openat(int dirfd, const char* path, int flags, ...) {
    va_list ap;
    va_start(ap, flags);
    const mode_t mode = modeArg(flags, ap);
    va_end(ap);
    return openFile("openat", dirfd, path, flags, mode);
}
int openat64(int dirfd, const char* path, int flags, ...) {
    va_list ap;
    va_start(ap, flags);
    const mode_t mode = modeArg(flags, ap);
    va_end(ap);
    return openFile("openat64", dirfd, path, flags, mode);
}
int creat(const char* path, mode_t mode) { return open(path, O_CREAT | O_WRONLY | O_TRUNC, mode); }

int mkstemp(char* tmpl) {
    if (pathCaught(AT_FDCWD, tmpl, Mode::ReadOnly)) return failWith(EROFS);
    return next<int (*)(char*)>("mkstemp")(tmpl);
}
int mkstemp64(char* tmpl) {
    if (pathCaught(AT_FDCWD, tmpl, Mode::ReadOnly)) return failWith(EROFS);
    return next<int (*)(char*)>("mkstemp64")(tmpl);
}
int mkostemp(char* tmpl, int flags) {
    if (pathCaught(AT_FDCWD, tmpl, Mode::ReadOnly)) return failWith(EROFS);
    return next<int (*)(char*, int)>("mkostemp")(tmpl, flags);
}

// A name that is taken is "File exists" on any disk, as the kernel says.
int mkdirat(int dirfd, const char* path, mode_t mode) {
    if (setup().mode != Mode::Off && path && pathCaught(dirfd, path, setup().mode) &&
        faccessat(dirfd, path, F_OK, AT_SYMLINK_NOFOLLOW) != 0)
        return failWith(setup().mode == Mode::ReadOnly ? EROFS : ENOSPC);
    return next<int (*)(int, const char*, mode_t)>("mkdirat")(dirfd, path, mode);
}
int mkdir(const char* path, mode_t mode) { return mkdirat(AT_FDCWD, path, mode); }
int rename(const char* from, const char* to) {
    if (pathCaught(AT_FDCWD, to, Mode::ReadOnly) || pathCaught(AT_FDCWD, from, Mode::ReadOnly))
        return failWith(EROFS);
    return next<int (*)(const char*, const char*)>("rename")(from, to);
}
int link(const char* from, const char* to) {
    if (pathCaught(AT_FDCWD, to, Mode::ReadOnly)) return failWith(EROFS);
    return next<int (*)(const char*, const char*)>("link")(from, to);
}
int unlink(const char* path) {
    if (pathCaught(AT_FDCWD, path, Mode::ReadOnly)) return failWith(EROFS);
    return next<int (*)(const char*)>("unlink")(path);
}

} // extern "C"
