#include "shell/safe_file.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <unistd.h>

namespace gp {

namespace {

std::string folderOf(const std::string& path) {
    const size_t slash = path.find_last_of('/');
    if (slash == std::string::npos) return ".";
    return slash == 0 ? "/" : path.substr(0, slash);
}

struct Failure {
    std::string& error;
    int* code;
    bool operator()(int errnoValue) const {
        error = std::strerror(errnoValue);
        if (code) *code = errnoValue;
        return false;
    }
};

bool writeAll(int fd, std::string_view bytes, int& code) {
    while (!bytes.empty()) {
        const ssize_t n = ::write(fd, bytes.data(), bytes.size());
        if (n < 0) {
            if (errno == EINTR) continue;
            code = errno;
            return false;
        }
        bytes.remove_prefix(static_cast<size_t>(n));
    }
    return true;
}

} // namespace

bool writeFileSafely(const std::string& path, std::string_view bytes, bool replace, std::string& error,
                     int* errorCode) {
    const Failure fail{error, errorCode};
    if (path.empty()) return fail(ENOENT);
    struct stat st {};
    if (::lstat(path.c_str(), &st) == 0) {
        if (!replace) return fail(EEXIST);
        // Replacing is for a plain file only: a link is not followed and a
        // folder or device is never swapped for a file.
        if (!S_ISREG(st.st_mode)) return fail(S_ISDIR(st.st_mode) ? EISDIR : EEXIST);
    }
    std::string temp = folderOf(path) + "/.gridpages-XXXXXX";
    const int fd = ::mkstemp(temp.data());
    if (fd < 0) return fail(errno);
    int code = 0;
    bool ok = writeAll(fd, bytes, code);
    if (ok && ::fsync(fd) != 0) ok = false, code = errno;
    if (::close(fd) != 0 && ok) ok = false, code = errno;
    if (ok) {
        // A new file keeps the permissions a plain create would give it; a
        // replaced one keeps its own.
        mode_t mode = st.st_mode & 07777;
        if (!replace || mode == 0) {
            const mode_t mask = ::umask(0);
            ::umask(mask);
            mode = 0666 & ~mask;
        }
        ::chmod(temp.c_str(), mode);
        if (replace) {
            if (::rename(temp.c_str(), path.c_str()) != 0) ok = false, code = errno;
        } else {
            // link() refuses a name that is already taken, even one made a
            // moment ago by someone else, where rename() would replace it.
            if (::link(temp.c_str(), path.c_str()) != 0) ok = false, code = errno;
            ::unlink(temp.c_str());
        }
    }
    if (!ok) {
        ::unlink(temp.c_str());
        return fail(code);
    }
    // The new name itself reaches the disk with its folder.
    const int dir = ::open(folderOf(path).c_str(), O_RDONLY | O_DIRECTORY);
    if (dir >= 0) {
        ::fsync(dir);
        ::close(dir);
    }
    return true;
}

} // namespace gp
