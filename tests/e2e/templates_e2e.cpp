// A printed half cube as the user gets it: a letter sheet where one inch of
// side is one inch of paper, with cut lines solid and fold lines dashed.
#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

#include "support/run_program.h"

using gp::test::capture;
using gp::test::runProgram;

namespace {
struct Gray {
    int w = 0, h = 0;
    std::vector<unsigned char> px;
    bool dark(int x, int y) const { return px[static_cast<size_t>(y) * w + x] < 128; }
};

Gray Render(const std::string& pdf, int dpi) {
    const std::string pgm = capture("pdftoppm -r " + std::to_string(dpi) + " -gray '" + pdf + "'");
    std::istringstream in(pgm);
    std::string magic;
    int maxv = 0;
    Gray g;
    in >> magic >> g.w >> g.h >> maxv;
    in.get();
    if (magic != "P5") return {};
    g.px.resize(static_cast<size_t>(g.w) * g.h);
    in.read(reinterpret_cast<char*>(g.px.data()), static_cast<std::streamsize>(g.px.size()));
    return g;
}
}

TEST(TemplatesE2E, AOneInchHalfCubePrintsAtTrueSize) {
    auto r = runProgram(GRIDPAGES_BIN, "click cmdHalfCube\ntext txtLeng 1\nclick cmdPrintIt\n",
                        {"--pdf", "{dir}/pdf"});
    ASSERT_EQ(r.status, 0) << r.errors;
    // The first copy's walk starts at (flapHeight, flapHeight) and its
    // notch edges go by the whole side of 1440 twips.
    std::vector<std::string> sheet;
    for (const std::string& l : r.trace)
        if (l.rfind(R"({"s":"Printer")", 0) == 0) sheet.push_back(l);
    ASSERT_GE(sheet.size(), 12u);
    EXPECT_EQ(sheet[0],
              R"({"s":"Printer","op":"line","x1":1018,"y1":1018,"x2":0,"y2":1738,"style":0,"width":1,"color":-1})");
    EXPECT_EQ(sheet[11],
              R"({"s":"Printer","op":"line","x1":2458,"y1":2458,"x2":2458,"y2":1018,"style":0,"width":1,"color":-1})");
    EXPECT_EQ(sheet.size(), 6u * 20 + 1);
    EXPECT_EQ(sheet.back(), R"({"s":"Printer","op":"enddoc"})");

    const std::string pdf = r.dir + "/pdf/sheet-0001.pdf";
    EXPECT_NE(capture("pdfinfo '" + pdf + "'").find("612 x 792 pts"), std::string::npos);

    // 144 dots to the inch. The right edge of the first square is a cut,
    // solid from y = 1018 to 2458 twips; below it the fold between the
    // second and third squares goes on, dashed. With the quarter inch
    // margin the edge stands at x = 2818 twips, 281.8 dots.
    Gray g = Render(pdf, 144);
    ASSERT_EQ(g.w, 1224);
    ASSERT_EQ(g.h, 1584);
    int best = -1, bestRun = 0, bestTop = 0;
    for (int x = 278; x <= 286; ++x) {
        int top = -1, run = 0;
        for (int y = 120; y < 300; ++y) {
            if (g.dark(x, y)) {
                if (top < 0) top = y;
                run = y - top + 1;
            } else if (top >= 0) {
                break;
            }
        }
        if (run > bestRun) best = x, bestRun = run, bestTop = top;
    }
    ASSERT_GE(best, 0);
    EXPECT_NEAR(bestTop, 138, 2);  // (1018 + 360) twips at 144 dots to the inch
    // The fold begins with a dash where the cut ends, so the first dark run
    // is the cut plus one dash: take the next dash's length off.
    int y = bestTop + bestRun;
    while (y < g.h && !g.dark(best, y)) ++y;
    int dash = 0;
    while (y < g.h && g.dark(best, y)) ++dash, ++y;
    ASSERT_GT(dash, 0);
    EXPECT_NEAR(bestRun - dash, 144, 3);  // one inch of side, one inch of paper
    // The fold below: dark and light in turn.
    int gaps = 0;
    bool wasDark = true;
    for (int y = bestTop + bestRun; y < bestTop + 144 * 2 - 4; ++y) {
        const bool d = g.dark(best, y);
        if (wasDark && !d) ++gaps;
        wasDark = d;
    }
    EXPECT_GE(gaps, 4);
}

TEST(TemplatesE2E, EveryTemplatePrintsOneSheetAndAZeroSideExplainsItself) {
    for (const char* button : {"cmdHalfCube", "cmdRhomb", "Command1"}) {
        auto r = runProgram(GRIDPAGES_BIN, std::string("click ") + button +
                                               "\nclick cmdPrintIt\ntext txtLeng 0\nclick cmdPrintIt\n");
        ASSERT_EQ(r.status, 0) << r.errors;
        int enddocs = 0, errors = 0;
        for (const std::string& l : r.trace) {
            enddocs += l.find("\"enddoc\"") != std::string::npos;
            errors += l.find("\"op\":\"error\"") != std::string::npos;
        }
        EXPECT_EQ(enddocs, 1) << button;
        EXPECT_EQ(errors, 1) << button;
    }
}
