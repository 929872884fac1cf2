// The batch runner as other tools use it: the command line, the script
// language, the trace lines and the sheets it saves.
#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

#include "support/run_program.h"

using gp::test::capture;
using gp::test::runProgram;

namespace {
int countOf(const std::vector<std::string>& trace, const std::string& needle) {
    return static_cast<int>(std::count_if(trace.begin(), trace.end(), [&](const std::string& l) {
        return l.find(needle) != std::string::npos;
    }));
}
}

TEST(Batch, TheDefaultTriangleSheetStartsAsTheExampleShows) {
    auto r = runProgram(GRIDPAGES_BIN, "click cmdTriangle\nclick cmdPrintIt\n");
    ASSERT_EQ(r.status, 0) << r.errors;
    ASSERT_GE(r.trace.size(), 2u);
    EXPECT_EQ(r.trace[0],
              R"({"s":"Printer","op":"line","x1":720,"y1":0,"x2":2160,"y2":0,"style":0,"width":2,"color":-1})");
    EXPECT_EQ(r.trace[1],
              R"({"s":"Printer","op":"line","x1":720,"y1":0,"x2":1440,"y2":1247,"style":0,"width":2,"color":-1})");
    EXPECT_EQ(r.trace.back(), R"({"s":"Printer","op":"enddoc"})");
}

TEST(Batch, ABadLineStopsTheRunWithItsFileAndLine) {
    auto r = runProgram(GRIDPAGES_BIN, "# a comment\n\nclick cmdTriangle\nfrobnicate\nclick cmdPrintIt\n");
    EXPECT_EQ(r.status, 2);
    EXPECT_NE(r.errors.find("script.txt:4:"), std::string::npos) << r.errors;
    EXPECT_EQ(countOf(r.trace, "\"line\""), 0);  // nothing drawn after it

    auto missing = runProgram(GRIDPAGES_BIN, "click cmdTriangle\nclick cmdNothing\n");
    EXPECT_EQ(missing.status, 2);
    EXPECT_NE(missing.errors.find(":2:"), std::string::npos);

    auto arity = runProgram(GRIDPAGES_BIN, "tick 1 2\n");
    EXPECT_EQ(arity.status, 2);
}

TEST(Batch, ABadCommandLineIsRefused) {
    EXPECT_NE(capture(std::string(GRIDPAGES_BIN) + " --printer 1 2>&1; echo status=$?").find("status=2"),
              std::string::npos);
    EXPECT_NE(capture(std::string(GRIDPAGES_BIN) + " --script /nonexistent/x 2>&1; echo status=$?").find("status=2"),
              std::string::npos);
}

TEST(Batch, TextTypeAndValueWriteWhatTheBoxHolds) {
    auto r = runProgram(GRIDPAGES_BIN,
                        "click cmdTriangle\n"
                        "type txtLeng 1.25\n"
                        "value txtLeng\n"
                        "text txtAngle  45 \n"
                        "value txtAngle\n"
                        "text txtThick \n"
                        "value txtThick\n"
                        "value cmdPrintIt\n");
    ASSERT_EQ(r.status, 0) << r.errors;
    ASSERT_EQ(r.trace.size(), 4u);
    EXPECT_EQ(r.trace[0], R"({"op":"value","control":"txtLeng","value":"1.25"})");
    EXPECT_EQ(r.trace[1], R"({"op":"value","control":"txtAngle","value":" 45 "})");
    EXPECT_EQ(r.trace[2], R"({"op":"value","control":"txtThick","value":""})");
    EXPECT_EQ(r.trace[3], R"({"op":"value","control":"cmdPrintIt","value":"Print It"})");
}

TEST(Batch, ExitKeepsValuesCloseRestoresDefaultsAndTheMenuExitEnds) {
    auto r = runProgram(GRIDPAGES_BIN,
                        "click cmdTriangle\ntext txtLeng 2\nclick cmdExit\n"
                        "click cmdTriangle\nvalue txtLeng\nclose\n"
                        "click cmdTriangle\nvalue txtLeng\nclick cmdExit\n"
                        "click cmdExit\nclick cmdTriangle\n");
    ASSERT_EQ(r.status, 0) << r.errors;
    ASSERT_EQ(r.trace.size(), 2u);
    EXPECT_NE(r.trace[0].find("\"2\""), std::string::npos);
    EXPECT_NE(r.trace[1].find("\"1\""), std::string::npos);
}

TEST(Batch, AFaultIsTracedAsAnErrorAndTheRunGoesOn) {
    auto r = runProgram(GRIDPAGES_BIN, "click cmdTriangle\ntext txtLeng 0\nclick cmdPrintIt\n"
                                       "text txtLeng 1\nclick cmdPrintIt\n");
    ASSERT_EQ(r.status, 0) << r.errors;
    EXPECT_EQ(countOf(r.trace, "\"op\":\"error\""), 1);
    EXPECT_EQ(countOf(r.trace, "\"enddoc\""), 1);
}

TEST(Batch, PdfSheetsAreLetterAtTrueSize) {
    auto r = runProgram(GRIDPAGES_BIN, "click cmdTriangle\nclick cmdPrintIt\nclick cmdPrintIt\n",
                        {"--pdf", "{dir}/pdf"});
    ASSERT_EQ(r.status, 0) << r.errors;
    const std::string info = capture("pdfinfo '" + r.dir + "/pdf/sheet-0002.pdf'");
    EXPECT_NE(info.find("612 x 792 pts"), std::string::npos) << info;
}

TEST(Batch, AnInchOnTheSheetIsSeventyTwoPoints) {
    // A printable area that holds one cell: its top line runs from 720 to
    // 2160 twips, one inch, a quarter inch below the sheet's top edge.
    auto r = runProgram(GRIDPAGES_BIN, "click cmdTriangle\ntext txtThick 1\nclick cmdPrintIt\n",
                        {"--pdf", "{dir}/pdf", "--printer", "2160", "1300"});
    ASSERT_EQ(r.status, 0) << r.errors;
    // 144 dots to the inch: two dots a point.
    const std::string pgm = capture("pdftoppm -r 144 -gray '" + r.dir + "/pdf/sheet-0001.pdf'");
    std::istringstream in(pgm);
    std::string magic;
    int w = 0, h = 0, maxv = 0;
    in >> magic >> w >> h >> maxv;
    in.get();
    ASSERT_EQ(magic, "P5");
    EXPECT_EQ(w, 288);  // (2160 + 720) twips = 144 points
    std::vector<unsigned char> px(static_cast<size_t>(w) * h);
    in.read(reinterpret_cast<char*>(px.data()), static_cast<std::streamsize>(px.size()));
    const int row = 36;  // 18 points down: the top of the printable area
    int first = -1, last = -1;
    for (int x = 0; x < w; ++x)
        if (px[static_cast<size_t>(row) * w + x] < 128) {
            if (first < 0) first = x;
            last = x;
        }
    EXPECT_NEAR(first, 108, 2);  // (360 + 720) twips = 54 points
    EXPECT_NEAR(last - first, 144, 3);  // one inch, give or take the round caps
}

TEST(Batch, ThePrinterOptionSetsThePrintableArea) {
    auto r = runProgram(GRIDPAGES_BIN, "click cmdTriangle\nclick cmdPrintIt\n", {"--printer", "2880", "2494"});
    ASSERT_EQ(r.status, 0) << r.errors;
    // Two rows of 1247 fit, and nothing is drawn below them.
    EXPECT_GT(countOf(r.trace, "\"y2\":2494"), 0);
    EXPECT_EQ(countOf(r.trace, "\"y2\":3741"), 0);
}
