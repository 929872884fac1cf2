// Reading a script whole: lines as written, a byte-order mark dropped, a
// folder or a missing file refused with the system's words.
#include <gtest/gtest.h>

#include <unistd.h>

#include <fstream>

#include "shell/script/script_file.h"

using namespace gp;

namespace {
std::string fileWith(const std::string& bytes) {
    char tmpl[] = "/tmp/gridpages-script-XXXXXX";
    const int fd = mkstemp(tmpl);
    close(fd);
    std::ofstream(tmpl, std::ios::binary) << bytes;
    return tmpl;
}
} // namespace

TEST(ScriptFile, LinesAsWrittenWithTheMarkAndLineEndsTakenOff) {
    std::vector<std::string> lines;
    std::string error;
    const std::string path = fileWith("\xEF\xBB\xBF" "click cmdTriangle\r\n\ntext txtLeng  2 \nlast");
    ASSERT_TRUE(readScript(path, lines, error)) << error;
    EXPECT_EQ(lines, (std::vector<std::string>{"click cmdTriangle\r", "", "text txtLeng  2 ", "last"}));
    const std::string empty = fileWith("");
    ASSERT_TRUE(readScript(empty, lines, error));
    EXPECT_TRUE(lines.empty());
    const std::string nul = fileWith(std::string("a\0b\n", 4));
    ASSERT_TRUE(readScript(nul, lines, error));
    EXPECT_EQ(lines[0].size(), 3u);  // kept whole: the session refuses the line when it comes to it
    unlink(path.c_str());
    unlink(empty.c_str());
    unlink(nul.c_str());
}

TEST(ScriptFile, AFolderOrAMissingFileIsRefused) {
    std::vector<std::string> lines;
    std::string error;
    EXPECT_FALSE(readScript("/tmp", lines, error));
    EXPECT_EQ(error, "Is a directory");
    EXPECT_FALSE(readScript("/nonexistent/script.txt", lines, error));
    EXPECT_EQ(error, "No such file or directory");
}
