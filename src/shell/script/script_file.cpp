#include "shell/script/script_file.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <sys/stat.h>

namespace gp {

namespace {
bool readLines(std::FILE* in, std::vector<std::string>& lines, std::string& error) {
    std::string line;
    char buf[1 << 16];
    size_t n;
    while ((n = std::fread(buf, 1, sizeof buf, in)) > 0) {
        const char* p = buf;
        const char* end = buf + n;
        while (const char* nl = static_cast<const char*>(std::memchr(p, '\n', static_cast<size_t>(end - p)))) {
            line.append(p, nl);
            lines.push_back(std::move(line));
            line.clear();
            p = nl + 1;
        }
        line.append(p, end);
    }
    if (std::ferror(in)) {
        error = std::strerror(errno ? errno : EIO);
        return false;
    }
    if (!line.empty()) lines.push_back(std::move(line));
    if (!lines.empty() && lines[0].compare(0, 3, "\xEF\xBB\xBF") == 0) lines[0].erase(0, 3);
    return true;
}
} // namespace

bool readScript(const std::string& path, std::vector<std::string>& lines, std::string& error) {
    lines.clear();
    if (path == "-") return readLines(stdin, lines, error);
    struct stat st {};
    if (::stat(path.c_str(), &st) != 0) {
        error = std::strerror(errno);
        return false;
    }
    if (S_ISDIR(st.st_mode)) {
        error = std::strerror(EISDIR);
        return false;
    }
    std::FILE* in = std::fopen(path.c_str(), "rb");
    if (!in) {
        error = std::strerror(errno);
        return false;
    }
    errno = 0;
    const bool ok = readLines(in, lines, error);
    std::fclose(in);
    return ok;
}

} // namespace gp
