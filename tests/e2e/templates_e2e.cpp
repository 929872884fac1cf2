// A printed half cube as the user gets it: a letter sheet where one inch of
// side is one inch of paper, with cut lines solid and fold lines dashed.
#include <gtest/gtest.h>

#include <sstream>

#include "support/run_program.h"

using gp::test::capture;
using gp::test::runProgram;

TEST(TemplatesE2E, AOneInchHalfCubePrintsAtTrueSizeCutSolidFoldDashed) {
    auto r = runProgram(GRIDPAGES_BIN, "click cmdHalfCube\ntext txtLeng 1\nclick cmdPrintIt\n",
                        {"--pdf", "{dir}/pdf"});
    ASSERT_EQ(r.status, 0) << r.errors;
    const std::string pdf = r.dir + "/pdf/sheet-0001.pdf";
    EXPECT_NE(capture("pdfinfo '" + pdf + "'").find("612 x 792 pts"), std::string::npos);

    // 144 dots to the inch, grey. The right edge of the first square is a
    // cut, solid from y = 1018 to 2458 twips; below it the fold between the
    // second and third squares goes on, dashed. With the quarter inch margin
    // the edge stands at x = 2818 twips, 281.8 dots.
    std::istringstream in(capture("pdftoppm -r 144 -gray '" + pdf + "'"));
    std::string magic;
    int w = 0, h = 0, maxv = 0;
    in >> magic >> w >> h >> maxv;
    in.get();
    ASSERT_EQ(magic + " " + std::to_string(w) + " " + std::to_string(h), "P5 1224 1584");
    std::vector<unsigned char> px(static_cast<size_t>(w) * h);
    in.read(reinterpret_cast<char*>(px.data()), static_cast<std::streamsize>(px.size()));
    auto dark = [&](int x, int y) { return px[static_cast<size_t>(y) * w + x] < 128; };
    // The column with the longest dark run: the cut plus the fold's first dash.
    int best = -1, bestRun = 0, bestTop = 0;
    for (int x = 278; x <= 286; ++x) {
        int top = -1, run = 0;
        for (int y = 120; y < 300 && (top < 0 || dark(x, y)); ++y)
            if (dark(x, y)) top = top < 0 ? y : top, run = y - top + 1;
        if (run > bestRun) best = x, bestRun = run, bestTop = top;
    }
    ASSERT_GE(best, 0);
    EXPECT_NEAR(bestTop, 138, 2);  // (1018 + 360) twips
    int y = bestTop + bestRun, dash = 0, gaps = 0;
    while (y < h && !dark(best, y)) ++y;
    while (y < h && dark(best, y)) ++dash, ++y;
    ASSERT_GT(dash, 0);
    EXPECT_NEAR(bestRun - dash, 144, 3);  // one inch of side, one inch of paper
    for (int y = bestTop + bestRun, was = 1; y < bestTop + 144 * 2 - 4; was = dark(best, y), ++y)
        gaps += was && !dark(best, y);
    EXPECT_GE(gaps, 4);  // the fold below: dark and light in turn
}
