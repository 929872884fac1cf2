// The grid pages through the built program: the multiplication chart comes
// out as one landscape Letter sheet and leaves the printer in portrait.
#include <gtest/gtest.h>

#include "support/run_program.h"

using gp::test::capture;
using gp::test::runProgram;

TEST(GridsBatch, TheMultiplicationChartIsALandscapeLetterSheet) {
    auto r = runProgram(GRIDPAGES_BIN,
                        "click cmdSquares\ncheck chkMult 1\nclick cmdPrintIt\n"
                        "check chkMult 0\nclick cmdPrintIt\n",
                        {"--pdf", "{dir}/pdf"});
    ASSERT_EQ(r.status, 0) << r.errors;
    ASSERT_GE(r.trace.size(), 4u);
    EXPECT_EQ(r.trace.front(), R"({"s":"Printer","op":"orientation","value":2})");
    EXPECT_NE(r.trace[1].find(R"("y2":11521)"), std::string::npos) << r.trace[1];

    const std::string chart = capture("pdfinfo '" + r.dir + "/pdf/sheet-0001.pdf'");
    EXPECT_NE(chart.find("792 x 612 pts"), std::string::npos) << chart;
    // The plain grid after it is portrait again.
    const std::string grid = capture("pdfinfo '" + r.dir + "/pdf/sheet-0002.pdf'");
    EXPECT_NE(grid.find("612 x 792 pts"), std::string::npos) << grid;
}
