#include "shell/sheet_folder.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <dirent.h>
#include <sys/stat.h>

#include "shell/safe_file.h"

namespace gp {

namespace {
// Makes the folder and its parents, as mkdir -p does.
int makeFolders(const std::string& dir) {
    for (size_t i = 1; i <= dir.size(); ++i) {
        if (i < dir.size() && dir[i] != '/') continue;
        const std::string part = dir.substr(0, i);
        if (::mkdir(part.c_str(), 0777) != 0 && errno != EEXIST) return errno;
    }
    struct stat st {};
    if (::stat(dir.c_str(), &st) != 0) return errno;
    return S_ISDIR(st.st_mode) ? 0 : ENOTDIR;
}

// The number of a name sheet-NNNN.ext, or 0 for any other name.
long sheetNumber(const char* name, const std::string& extension) {
    if (std::strncmp(name, "sheet-", 6) != 0) return 0;
    const char* p = name + 6;
    long n = 0;
    int digits = 0;
    for (; *p >= '0' && *p <= '9'; ++p, ++digits)
        if (n < 100000000) n = n * 10 + (*p - '0');
    if (digits == 0 || *p != '.' || extension != p + 1) return 0;
    return n;
}
} // namespace

SheetFolder::SheetFolder(std::string directory, std::string extension)
    : dir_(std::move(directory)), extension_(std::move(extension)) {}

OutputResult SheetFolder::open() {
    if (const int code = makeFolders(dir_)) return OutputResult::failed(dir_, std::strerror(code));
    DIR* d = ::opendir(dir_.c_str());
    if (!d) return OutputResult::failed(dir_, std::strerror(errno));
    long highest = 0;
    while (const dirent* e = ::readdir(d)) highest = std::max(highest, sheetNumber(e->d_name, extension_));
    ::closedir(d);
    next_ = highest + 1;
    return OutputResult::written();
}

OutputResult SheetFolder::write(std::string_view bytes) {
    if (next_ == 0) {
        const OutputResult opened = open();
        if (!opened.ok()) return opened;
    }
    // A name taken since the folder was looked at is passed over, not
    // replaced; a handful of tries is enough for any race.
    std::string error;
    for (int attempt = 0; attempt < 100; ++attempt) {
        char name[48];
        std::snprintf(name, sizeof name, "sheet-%04ld.%s", next_++, extension_.c_str());
        last_ = dir_ + "/" + name;
        int code = 0;
        if (writeFileSafely(last_, bytes, false, error, &code)) {
            ++written_;
            return OutputResult::written();
        }
        if (code != EEXIST) break;
    }
    return OutputResult::failed(last_, error);
}

} // namespace gp
