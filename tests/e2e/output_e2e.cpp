// What leaves a batch run, and what it says when it cannot: sheets on a
// named paper, numbered on in a folder that has some, output that cannot be
// written (exit 1, the file named), scripts that cannot be read (exit 2),
// and nothing left behind in the temporary folder.
#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

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
    EXPECT_NE(full.find("/dev/full"), std::string::npos) << full;
    EXPECT_NE(full.find("status=1"), std::string::npos) << full;

    const std::string noTrace = shell(kBin + " --script - --trace /nonexistent/dir/trace.jsonl </dev/null");
    EXPECT_NE(noTrace.find("status=1"), std::string::npos) << noTrace;
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
