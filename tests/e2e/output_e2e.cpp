// What leaves a batch run, and what it says when it cannot: sheets on a
// named paper, numbered on in a folder that has some, output that cannot be
// written (exit 1, the file named), scripts that cannot be read (exit 2),
// and nothing left behind in the temporary folder. A full disk and a
// read-only folder are made for one run by the harness's preloaded library,
// so they need no root and no mounts.
#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "support/run_program.h"

using gp::test::capture;
using gp::test::runProgram;
namespace fs = std::filesystem;

namespace {
const std::string kTriangles = "click cmdTriangle\nclick cmdPrintIt\n";
const std::string kBin = GRIDPAGES_BIN;

std::string shell(const std::string& command) { return capture(command + " 2>&1; echo \"status=$?\""); }
} // namespace

TEST(BatchOutput, APaperIsTheSheetExactlyAndItsPrintableAreaTheTwipsInside) {
    auto r = runProgram(kBin, "click cmdTriangle\ntext txtLeng .5\nclick cmdPrintIt\n",
                        {"--paper", "a4", "--pdf", "{dir}/pdf"});
    ASSERT_EQ(r.status, 0) << r.errors;
    const std::string info = capture("pdfinfo '" + r.dir + "/pdf/sheet-0001.pdf'");
    EXPECT_NE(info.find("595.276 x 841.89 pts"), std::string::npos) << info;
    // Rows of half-inch triangles run on below Letter's printable height.
    float lowest = 0, widest = 0;
    for (const std::string& l : r.trace) {
        float x2 = 0, y2 = 0;
        const size_t at = l.find("\"x2\":");
        if (at == std::string::npos || std::sscanf(l.c_str() + at, "\"x2\":%f,\"y2\":%f", &x2, &y2) != 2) continue;
        lowest = std::max(lowest, y2);
        widest = std::max(widest, x2);
    }
    EXPECT_GT(lowest, 15120);
    EXPECT_LE(lowest, 16117);

    EXPECT_NE(shell(kBin + " --script - --paper a4 --printer 100 100 </dev/null").find("status=2"), std::string::npos);
    EXPECT_NE(shell(kBin + " --script - --paper b4 </dev/null").find("status=2"), std::string::npos);
    EXPECT_NE(shell(kBin + " --copies 2 --script - </dev/null").find("status=2"), std::string::npos);
}

TEST(BatchOutput, AFolderWithSheetsKeepsThemAndTheNumberingGoesOn) {
    auto first = runProgram(kBin, kTriangles, {"--pdf", "{dir}/pdf"});
    ASSERT_EQ(first.status, 0) << first.errors;
    const std::string sheet1 = first.dir + "/pdf/sheet-0001.pdf";
    const auto before = fs::file_size(sheet1);
    fs::create_symlink("/tmp/gridpages-should-not-exist", first.dir + "/pdf/sheet-0003.pdf");
    const std::string again = capture(kBin + " --script '" + first.dir + "/script.txt' --pdf '" + first.dir +
                                      "/pdf' 2>&1; echo status=$?");
    EXPECT_NE(again.find("status=0"), std::string::npos) << again;
    EXPECT_EQ(fs::file_size(sheet1), before);
    // sheet-0003 is a link: the next sheet is 0004 and nothing goes through it.
    EXPECT_TRUE(fs::exists(first.dir + "/pdf/sheet-0004.pdf"));
    EXPECT_FALSE(fs::exists("/tmp/gridpages-should-not-exist"));
}

TEST(BatchOutput, OutputThatCannotBeWrittenNamesTheFileAndExitsOne) {
    auto blocked = runProgram(kBin, kTriangles, {"--pdf", "{dir}/script.txt/pdf"});
    EXPECT_EQ(blocked.status, 1);
    EXPECT_NE(blocked.errors.find("script.txt/pdf"), std::string::npos) << blocked.errors;
    EXPECT_NE(blocked.errors.find("Not a directory"), std::string::npos) << blocked.errors;
    EXPECT_EQ(blocked.trace.back(), R"({"s":"Printer","op":"enddoc"})");  // the run went on

    const std::string full = shell("printf '" + std::string("click cmdTriangle\\nclick cmdPrintIt\\n") + "' | " +
                                   kBin + " --script - --trace /dev/full");
    EXPECT_NE(full.find("/dev/full: No space left on device"), std::string::npos) << full;
    EXPECT_NE(full.find("status=1"), std::string::npos) << full;

    const std::string noTrace = shell(kBin + " --script - --trace /nonexistent/dir/trace.jsonl </dev/null");
    EXPECT_NE(noTrace.find("status=1"), std::string::npos) << noTrace;
}

namespace {
// Runs the triangle sheet with --pdf and --svg into `out`, made a full disk
// or a read-only folder by the preloaded library; the output of the shell
// with its status.
std::string intoFailingFolder(const std::string& out, const std::string& as, const std::string& trace) {
    return shell("printf '" + std::string("click cmdTriangle\\nclick cmdPrintIt\\n") + "' | env LD_PRELOAD='" +
                 GRIDPAGES_FAILWRITES + "' GRIDPAGES_FAIL_UNDER='" + out + "' GRIDPAGES_FAIL_AS=" + as + " " + kBin +
                 " --script - --pdf '" + out + "/pdf' --svg '" + out + "' --trace '" + trace + "'");
}
} // namespace

TEST(BatchOutput, SheetsOnAFullDiskOrInAReadOnlyFolderExitOneAndLeaveWhatWasThere) {
    auto first = runProgram(kBin, kTriangles, {"--pdf", "{dir}/out/pdf"});
    ASSERT_EQ(first.status, 0) << first.errors;
    const std::string out = first.dir + "/out", sheet1 = out + "/pdf/sheet-0001.pdf";
    const auto before = fs::file_size(sheet1);

    const std::string full = intoFailingFolder(out, "nospace", out + "/trace.jsonl");
    EXPECT_NE(full.find("status=1"), std::string::npos) << full;
    EXPECT_NE(full.find("out/pdf/sheet-0002.pdf: No space left on device"), std::string::npos) << full;
    EXPECT_NE(full.find("out/sheet-0001.svg: No space left on device"), std::string::npos) << full;
    EXPECT_NE(full.find("out/trace.jsonl: No space left on device"), std::string::npos) << full;
    // The sheet already there is as it was, and nothing half-written lies beside it.
    EXPECT_EQ(fs::file_size(sheet1), before);
    EXPECT_EQ(std::distance(fs::directory_iterator(out + "/pdf"), fs::directory_iterator()), 1);

    const std::string readOnly = intoFailingFolder(out, "readonly", first.dir + "/trace.jsonl");
    EXPECT_NE(readOnly.find("status=1"), std::string::npos) << readOnly;
    EXPECT_NE(readOnly.find("out/pdf/sheet-0002.pdf: Read-only file system"), std::string::npos) << readOnly;
    EXPECT_NE(readOnly.find("out/sheet-0001.svg: Read-only file system"), std::string::npos) << readOnly;
    EXPECT_EQ(fs::file_size(sheet1), before);

    // A folder whose permissions refuse new files (root is not refused).
    if (geteuid() != 0) {
        fs::permissions(out + "/pdf", fs::perms::owner_read | fs::perms::owner_exec);
        auto refused = runProgram(kBin, kTriangles, {"--pdf", out + "/pdf"});
        fs::permissions(out + "/pdf", fs::perms::owner_all);
        EXPECT_EQ(refused.status, 1);
        EXPECT_NE(refused.errors.find("sheet-0002.pdf: Permission denied"), std::string::npos) << refused.errors;
    }
}

TEST(BatchOutput, AStringArtSaveOnAFullDiskOrReadOnlyFolderKeepsTheOldFileAndSaysSo) {
    const std::string triangle = " 6 \r\n 5 \r\n 1000 \r\n 100 \r\n 11000 \r\n 100 \r\n 6000 \r\n 8760 \r\n"
                                 " 1000 \r\n 100 \r\n 11000 \r\n 100 \r\n";
    auto made = runProgram(kBin, "");
    const std::string folder = made.dir + "/saves", file = folder + "/tri";
    fs::create_directories(folder);
    std::ofstream(file, std::ios::binary) << triangle;
    std::ofstream(made.dir + "/save.txt") << "click cmdString2\nmenu mnuCube\nanswer " << file << "\nmenu mnuSave\n";
    for (const char* as : {"nospace", "readonly"}) {
        const std::string said = shell("env LD_PRELOAD='" + std::string(GRIDPAGES_FAILWRITES) + "' GRIDPAGES_FAIL_UNDER='" +
                                       folder + "' GRIDPAGES_FAIL_AS=" + as + " " + kBin + " --script '" + made.dir +
                                       "/save.txt' --trace -");
        EXPECT_NE(said.find(R"("prompt":"You cancelled the Save.")"), std::string::npos) << as << ": " << said;
        EXPECT_NE(said.find("status=0"), std::string::npos) << as << ": " << said;  // the page's message tells it
        std::stringstream kept;
        kept << std::ifstream(file, std::ios::binary).rdbuf();
        EXPECT_EQ(kept.str(), triangle) << as;
        EXPECT_EQ(std::distance(fs::directory_iterator(folder), fs::directory_iterator()), 1) << as;
    }
}

TEST(BatchOutput, ScriptsThatCannotBeReadOrHoldWhatIsNoCommand) {
    const std::string folder = shell(kBin + " --script /tmp");
    EXPECT_NE(folder.find("Is a directory"), std::string::npos) << folder;
    EXPECT_NE(folder.find("status=2"), std::string::npos);

    auto bom = runProgram(kBin, "\xEF\xBB\xBF" "click cmdTriangle\nvalue txtLeng\n");
    EXPECT_EQ(bom.status, 0) << bom.errors;

    auto crash = runProgram(kBin, "click cmdString2\nmousemove 4e38 100\n");
    EXPECT_EQ(crash.status, 2);
    EXPECT_NE(crash.errors.find("script.txt:2:"), std::string::npos) << crash.errors;

    auto longLine = runProgram(kBin, "click cmdTriangle\nfrob" + std::string(5'000'000, 'x') + "\n");
    EXPECT_EQ(longLine.status, 2);
    EXPECT_LT(longLine.errors.size(), 300u);

    auto unused = runProgram(kBin, "answer 6\nclick cmdTriangle\n");
    EXPECT_EQ(unused.status, 0);
    EXPECT_NE(unused.errors.find("warning"), std::string::npos) << unused.errors;
}

TEST(BatchOutput, ARunWithNoRuntimeFolderLeavesNothingBehind) {
    char tmpl[] = "/tmp/gridpages-tmpdir-XXXXXX";
    const std::string tmp = mkdtemp(tmpl);
    const std::string out = shell("printf 'click cmdTriangle\\nclick cmdPrintIt\\n' | env -u XDG_RUNTIME_DIR TMPDIR='" +
                                  tmp + "' " + kBin + " --script -");
    EXPECT_NE(out.find("status=0"), std::string::npos) << out;
    EXPECT_TRUE(fs::is_empty(tmp)) << fs::directory_iterator(tmp)->path();
    // Ended by a signal half way, too: here while it waits for its script.
    const std::string fifo = tmp + ".fifo";
    ASSERT_EQ(mkfifo(fifo.c_str(), 0600), 0);
    shell("env -u XDG_RUNTIME_DIR TMPDIR='" + tmp + "' " + kBin + " --script '" + fifo +
          "' & pid=$!; sleep 1; kill -TERM $pid; wait $pid");
    EXPECT_TRUE(fs::is_empty(tmp));
    fs::remove(fifo);
    fs::remove_all(tmp);
}

TEST(BatchOutput, ListAndDescribeNameWhatAScriptCanUse) {
    const std::string list = shell(kBin + " --list");
    EXPECT_NE(list.find("status=0"), std::string::npos);
    for (const char* form : {"frmGrids", "frmSquares ", "frmSquares2", "frmTriangle", "frmHexagon", "frmParabola",
                             "frmRhombiCube", "frmHalfCube", "frmOneSixthCube", "frmRhombiDodec", "frmGreatDodeca",
                             "frmStickCurves", "frmString2", "frmExplodeIt"})
        EXPECT_NE(list.find(form), std::string::npos) << form;
    const std::string described = shell(kBin + " --describe frmString2");
    for (const char* name : {"txtTics", "txtX", "txtY", "Command1", "cmdPrintIt", "mnuFile", "mnuShapes", "mnuOcta3"})
        EXPECT_NE(described.find(name), std::string::npos) << name;
    EXPECT_NE(shell(kBin + " --describe frmNothing").find("status=2"), std::string::npos);
}
