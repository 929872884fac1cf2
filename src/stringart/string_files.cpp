// The File menu of frmString2: Save and Open of the point chain.

#include "stringart/string_files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <sstream>

#include "shell/safe_file.h"
#include "stringart/frm_string2.h"

namespace gp {

namespace {
bool separator(int c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n' || c == ','; }
} // namespace

std::string StringArtLine(int value) {
    const long long v = value;
    return (v < 0 ? "-" : " ") + std::to_string(v < 0 ? -v : v) + " \r\n";
}

std::string ReadStringArtFile(const std::string& path) {
    // Opened without waiting: a pipe with no writer would otherwise hold the
    // window for ever, before the check below could refuse it.
    const int fd = ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (fd < 0) throw StringArtFileError(std::strerror(errno));
    struct Closer {
        int fd;
        ~Closer() { ::close(fd); }
    } closer{fd};
    struct stat st {};
    if (::fstat(fd, &st) != 0 || !S_ISREG(st.st_mode)) throw StringArtFileError("not a plain file");
    // One byte past the cap tells whether the file goes on.
    std::string bytes(kStringArtFileCap + 1, '\0');
    size_t got = 0;
    while (got < bytes.size()) {
        const ssize_t n = ::read(fd, &bytes[got], bytes.size() - got);
        if (n == 0) break;
        if (n < 0) {
            if (errno == EINTR) continue;
            throw StringArtFileError(std::strerror(errno));
        }
        got += static_cast<size_t>(n);
    }
    if (got <= kStringArtFileCap) {
        bytes.resize(got);
        return bytes;
    }
    size_t keep = kStringArtFileCap;
    while (keep > 0 && !separator(static_cast<unsigned char>(bytes[keep]))) --keep;
    bytes.resize(keep);
    return bytes;
}

int StringArtReader::next() {
    int c = in_.get();
    while (c != std::char_traits<char>::eof() && separator(c)) c = in_.get();
    if (c == std::char_traits<char>::eof()) throw StringArtFileError("the file ends early");
    std::string token;
    while (c != std::char_traits<char>::eof() && !separator(c)) {
        token += static_cast<char>(c);
        c = in_.get();
    }
    size_t i = (token[0] == '-' || token[0] == '+') ? 1 : 0;
    if (i == token.size()) throw StringArtFileError("a value has no digits");
    long value = 0;
    for (; i < token.size(); ++i) {
        if (token[i] < '0' || token[i] > '9') throw StringArtFileError("a value is not a whole number");
        // Leading zeros are allowed; past six digits no Integer can follow.
        if (value < 1000000) value = value * 10 + (token[i] - '0');
    }
    if (token[0] == '-') value = -value;
    if (value < -32768 || value > 32767) throw StringArtFileError("a value does not fit an Integer");
    return static_cast<int>(value);
}

void FrmString2::mnuSave_Click() {
    if (LastPoint < 3) {
        MsgBox("You have not made a string art drawing of more than 2 points yet.", vbCritical,
               "Need a drawing to Save!");
        return;
    }
    try {
        StringFileName = InputBox("Enter the name of the file you want to Save:", "Save File Name", "Shape1",
                                  5000, 6000);
        // Cancel gives the empty name.
        if (Trim(StringFileName).empty()) throw StringArtFileError("no name");
        // The whole text is made before the file is touched, and it replaces
        // an existing file only once it is all on the disk: a list that cannot
        // be written, a full disk or a folder that refuses the file leave the
        // old file as it was.
        std::string text = StringArtLine(NextPoint) + StringArtLine(LastPoint);
        for (int i = 1; i <= LastPoint; ++i) text += StringArtLine(PX(i)) + StringArtLine(PY(i));
        std::string why;
        if (!writeFileSafely(StringFileName, text, true, why)) throw StringArtFileError(why);
    } catch (const std::exception&) {
        MsgBox("You cancelled the Save.", vbOKOnly, "");
        return;
    }
    MsgBox("File: " + StringFileName + " has been stored successfully", vbOKOnly, "Saved");
}

void FrmString2::mnuOpen_Click() {
    if (LastPoint > 3) {
        if (MsgBox("You will erase the current string art drawing.", vbYesNo, "Are You sure?") == vbNo) {
            MsgBox("File reading has been cancelled", vbOKOnly, "Cancelled Open");
            return;
        }
    }
    try {
        StringFileName = InputBox("Enter the name of the file you want to Open:", "Open File Name", "Shape1",
                                  2000, 4000);
        if (Trim(StringFileName).empty()) throw StringArtFileError("no name");
        std::istringstream in(ReadStringArtFile(StringFileName));
        StringArtReader reader(in);
        // Straight into the fields: a read that fails part of the way keeps
        // what it has taken so far, and nothing is drawn.
        NextPoint = reader.next();
        LastPoint = reader.next();
        for (int i = 1; i <= LastPoint; ++i) {
            PX(i) = reader.next();
            PY(i) = reader.next();
        }
        Redraw();
    } catch (const std::exception&) {
        MsgBox("Open has been cancelled.", vbOKOnly, "");
    }
}

} // namespace gp
