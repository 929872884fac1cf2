#include "shell/safe_file.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <dirent.h>
#include <fstream>
#include <sstream>
#include <stdlib.h>
#include <sys/stat.h>
#include <unistd.h>

namespace gp {
namespace {

class SafeFile : public ::testing::Test {
protected:
    void SetUp() override {
        char tmpl[] = "/tmp/gp-safe-XXXXXX";
        ASSERT_NE(mkdtemp(tmpl), nullptr);
        dir = tmpl;
    }
    void TearDown() override { std::system(("chmod -R u+w '" + dir + "'; rm -rf '" + dir + "'").c_str()); }
    std::string read(const std::string& p) {
        std::ifstream in(p, std::ios::binary);
        std::stringstream s;
        s << in.rdbuf();
        return s.str();
    }
    int entries() {
        int n = 0;
        DIR* d = opendir(dir.c_str());
        while (dirent* e = readdir(d))
            if (std::string(e->d_name) != "." && std::string(e->d_name) != "..") ++n;
        closedir(d);
        return n;
    }
    std::string dir;
    std::string error;
};

TEST_F(SafeFile, WritesAndReplacesWholeFiles) {
    const std::string p = dir + "/a.txt";
    ASSERT_TRUE(writeFileSafely(p, "first", false, error)) << error;
    EXPECT_EQ(read(p), "first");
    ASSERT_TRUE(writeFileSafely(p, "second, longer", true, error)) << error;
    EXPECT_EQ(read(p), "second, longer");
    EXPECT_EQ(entries(), 1);  // no temporary left beside it
}

TEST_F(SafeFile, WithoutReplaceNothingThereIsTouched) {
    const std::string p = dir + "/sheet.pdf";
    ASSERT_TRUE(writeFileSafely(p, "old", false, error));
    EXPECT_FALSE(writeFileSafely(p, "new", false, error));
    EXPECT_EQ(error, "File exists");
    EXPECT_EQ(read(p), "old");
    // A link is neither followed nor replaced, even a dangling one.
    const std::string target = dir + "/target", link = dir + "/link.pdf";
    ASSERT_EQ(symlink(target.c_str(), link.c_str()), 0);
    EXPECT_FALSE(writeFileSafely(link, "x", false, error));
    EXPECT_FALSE(writeFileSafely(link, "x", true, error));
    EXPECT_NE(access(target.c_str(), F_OK), 0);
    EXPECT_EQ(entries(), 2);
}

TEST_F(SafeFile, FailuresSayWhyAndLeaveTheOldFile) {
    const std::string p = dir + "/keep.txt";
    ASSERT_TRUE(writeFileSafely(p, "kept", false, error));
    EXPECT_FALSE(writeFileSafely(dir + "/missing/x.txt", "x", false, error));
    EXPECT_EQ(error, "No such file or directory");
    EXPECT_FALSE(writeFileSafely(dir, "x", true, error));  // a folder is never replaced
    if (geteuid() != 0) {  // root writes into read-only folders anyway
        chmod(dir.c_str(), 0555);
        EXPECT_FALSE(writeFileSafely(p, "lost", true, error));
        EXPECT_EQ(error, "Permission denied");
        chmod(dir.c_str(), 0755);
    }
    EXPECT_EQ(read(p), "kept");
    EXPECT_EQ(entries(), 1);
}

TEST_F(SafeFile, AFullDiskIsReportedAndTheOldFileStays) {
    // /dev/full is a device, so it is refused before anything is written;
    // a real full disk is exercised by the harness's no-space shim.
    EXPECT_FALSE(writeFileSafely("/dev/full", "x", true, error));
}

} // namespace
} // namespace gp
