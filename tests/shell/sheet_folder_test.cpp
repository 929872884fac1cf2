// Numbered sheets in a folder: the numbering goes on after what is there,
// nothing is overwritten or written through a link, and a folder that cannot
// be made is a failure that names it.
#include <gtest/gtest.h>

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "shell/sheet_folder.h"

using namespace gp;
namespace fs = std::filesystem;

namespace {
struct TempDir {
    fs::path path;
    TempDir() {
        char tmpl[] = "/tmp/gridpages-sheets-XXXXXX";
        path = mkdtemp(tmpl);
    }
    ~TempDir() { fs::remove_all(path); }
};

std::string read(const fs::path& p) {
    std::ifstream in(p, std::ios::binary);
    std::stringstream ss;
    ss << in.rdbuf();
    return ss.str();
}
} // namespace

TEST(SheetFolder, NumberingGoesOnAfterTheHighestSheetAndNothingIsOverwritten) {
    TempDir d;
    std::ofstream(d.path / "sheet-0001.pdf") << "old one";
    std::ofstream(d.path / "sheet-0007.pdf") << "old seven";
    std::ofstream(d.path / "sheet-0009.svg") << "another kind";
    std::ofstream(d.path / "sheet-12.pdf.bak") << "not a sheet";
    SheetFolder folder(d.path.string(), "pdf");
    ASSERT_TRUE(folder.write("new").ok());
    EXPECT_EQ(folder.lastFile(), (d.path / "sheet-0008.pdf").string());
    ASSERT_TRUE(folder.write("newer").ok());
    EXPECT_EQ(read(d.path / "sheet-0009.pdf"), "newer");
    EXPECT_EQ(read(d.path / "sheet-0001.pdf"), "old one");
    EXPECT_EQ(read(d.path / "sheet-0007.pdf"), "old seven");
    EXPECT_EQ(folder.written(), 2);
}

TEST(SheetFolder, ANameTakenMeanwhileIsPassedOverAndALinkNeverWrittenThrough) {
    TempDir d;
    SheetFolder folder(d.path.string(), "svg");
    ASSERT_TRUE(folder.write("first").ok());  // sheet-0001; the folder is now looked at
    const fs::path target = d.path / "elsewhere.txt";
    std::ofstream(target) << "keep me";
    fs::create_symlink(target, d.path / "sheet-0002.svg");
    fs::create_directory(d.path / "sheet-0003.svg");
    ASSERT_TRUE(folder.write("second").ok());
    EXPECT_EQ(folder.lastFile(), (d.path / "sheet-0004.svg").string());
    EXPECT_EQ(read(target), "keep me");
}

TEST(SheetFolder, AFolderThatCannotBeMadeIsAFailureNamingIt) {
    TempDir d;
    std::ofstream(d.path / "file") << "in the way";
    SheetFolder folder((d.path / "file" / "sheets").string(), "pdf");
    const OutputResult r = folder.write("x");
    ASSERT_FALSE(r.ok());
    EXPECT_NE(r.error().find("file/sheets"), std::string::npos) << r.error();
    EXPECT_NE(r.error().find("Not a directory"), std::string::npos) << r.error();

    SheetFolder full("/dev/full/sheets", "pdf");
    EXPECT_FALSE(full.write("x").ok());
}
