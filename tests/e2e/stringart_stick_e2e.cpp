// Stick curves through the built program: the trace of the default figure,
// one PDF sheet for a filled double print, and a refused distance that
// leaves the form drawing.
#include <gtest/gtest.h>

#include <sys/stat.h>

#include "support/run_program.h"

using gp::test::capture;
using gp::test::runProgram;

TEST(StickCurvesBatch, DefaultFigureTraceAndOneFilledSheet) {
    auto r = runProgram(GRIDPAGES_BIN,
                        "click cmdStickCurves\nclick cmdDrawIt\n"
                        "check chkDouble 1\nclick cmdPrintIt\n"
                        "text txtTics 0\nclick cmdDrawIt\n"
                        "text txtTics .5\noption optNoColor\nclick cmdAnimate\n",
                        {"--pdf", "{dir}/pdf", "--seed", "1"});
    ASSERT_EQ(r.status, 0) << r.errors;
    ASSERT_GE(r.trace.size(), 3u);
    EXPECT_EQ(r.trace[0], R"({"s":"frmStickCurves","op":"cls"})");
    EXPECT_EQ(r.trace[1], R"({"s":"frmStickCurves","op":"line","x1":2400,"y1":9500,"x2":12400,)"
                          R"("y2":9500,"style":0,"width":1,"color":-1})");
    EXPECT_NE(r.trace[2].find(R"("x1":13200,"y1":9500,)"), std::string::npos) << r.trace[2];

    int enddocs = 0, errors = 0, cls = 0;
    for (const std::string& l : r.trace) {
        enddocs += l.find(R"("op":"enddoc")") != std::string::npos;
        errors += l.find(R"("op":"error")") != std::string::npos;
        cls += l.find(R"("op":"cls")") != std::string::npos;
    }
    EXPECT_EQ(enddocs, 1);
    EXPECT_EQ(errors, 1);
    EXPECT_EQ(cls, 3);  // Draw It, the refused Draw It, MultiDrawing1
    EXPECT_NE(r.trace.back().find(R"("op":"line")"), std::string::npos);

    const std::string sheet = r.dir + "/pdf/sheet-0001.pdf";
    const std::string info = capture("pdfinfo '" + sheet + "'");
    EXPECT_NE(info.find("612 x 792 pts"), std::string::npos) << info;
    struct stat st {};
    ASSERT_EQ(stat(sheet.c_str(), &st), 0);
    EXPECT_LT(st.st_size, 2 * 1024 * 1024);
}
