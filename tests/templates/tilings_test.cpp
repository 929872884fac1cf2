// Where the copies of every figure stand, how many the loops' tests let
// through on the canvas and on the sheet, and the sides that are refused.
#include <gtest/gtest.h>

#include <map>

#include "templates/great_dodeca.h"
#include "templates/rhombi_dodec.h"
#include "template_test_util.h"

using namespace gp;
using namespace gp::test;

namespace {
const char *HC = "frmHalfCube", *RC = "frmRhombiCube", *SC = "frmOneSixthCube", *RD = "frmRhombiDodec",
           *GD = "frmGreatDodeca";
size_t StrokesOf(const std::string& form) {
    static const std::map<std::string, size_t> n{{HC, 20}, {RC, 19},
        {SC, 13}, {RD, kRhombiDodecStrokes}, {GD, kGreatDodecaStrokes}};
    return n.at(form);
}
}

TEST(Tilings, WorkedFigures) {
    struct Case { const char* form; const char* text; bool print; Points starts; };
    const Case cases[] = {
        {HC, "1", false, {{3565, 565}, {5730, 965}, {3565, 3296}, {5730, 3696}, {3565, 6027}, {5730, 6427}}},
        {HC, "1", true, {{1018, 1018}, {4916, 1738}, {1018, 5934}, {4916, 6654}, {1018, 10850}, {4916, 11570}}},
        {RC, "1", false, Grid({3000, 6200}, {1040, 2548, 4056, 5564, 7072})},
        // 5760 is exactly 11520 - 4 * side: the column test lets it stand.
        {RC, "1", true, Grid({0, 5760}, {1872, 4586, 7300, 10014, 12728})},
        {SC, "1", false, Grid({3267, 4571, 5875, 7179, 8483}, {100, 2157, 4214, 6271})},
        {SC, "1", true, Grid({480, 2827, 5174, 7521, 9868}, {300, 4003, 7706, 11409})},
        {RD, "1.45", false, {{4289, 0}, {7253, 0}}}, {RD, "1.45", true, {{2320, 0}, {7656, 0}}},
        {RD, "1", true, {{1600, 0}, {5280, 0}, {8960, 0}}},
        // Each row a spine's height, CInt(4320 * s1), below the last.
        {RD, "0.5", true, Grid({800, 2640, 4480, 6320, 8160, 10000}, {0, 4073, 8146})},
        {GD, "1.5", false, Grid({3000}, {2549, 6674})}, {GD, "1", false, Grid({3000, 5776}, {1698, 4446, 7194})},
        {GD, "0.75", false, Grid({3000, 5080, 7160}, {1272, 3331, 5390, 7449})},
        {GD, "3", false, Grid({3000}, {2 * 1410 + 2282})},  // clipped at the right
        {GD, "1.5", true, Grid({0}, {4590, 12018})},  // the two nets the solid needs
        {GD, "1", true, Grid({0, 4994}, {3059, 8009, 12959})},
        {GD, "0.75", true, Grid({0, 3750, 7500}, {2295, 6009, 9723, 13437})},
        {GD, "2", true, Grid({0}, {6121})},
    };
    for (const Case& c : cases) {
        TestApp t;
        auto l = DrawAt(t, c.form, c.text, c.print);
        EXPECT_EQ(CopyStarts(l, StrokesOf(c.form)), c.starts) << c.form << " " << c.text << " " << c.print;
        EXPECT_EQ(l.size(), c.starts.size() * StrokesOf(c.form)) << c.form << " " << c.text;
    }
}

TEST(Tilings, CopiesAtTheEndsOfTheLoops) {
    // The preview's tests may come after the first copy (half cube, great
    // dodecagon); a sheet with no copy still ends with EndDoc; a preview too
    // dense to draw quickly stays blank with no message while typing.
    struct Case { const char* form; const char* text; int print; size_t copies; };
    const Case cases[] = {
        {HC, "3", 0, 1}, {HC, "0.1", 0, 870}, {HC, "0.0213", 0, 0}, {HC, "2", 1, 1}, {HC, "3", 1, 0},
        {HC, "12", 1, 0}, {HC, "22.7", 1, 0}, {RC, "2", 0, 2}, {RC, "2.0025", 0, 0}, {RC, "4", 0, 0},
        {RC, "0.0075", 0, 0}, {RC, "2", 1, 2}, {RC, "2.01", 1, 0}, {RC, "12", 1, 0}, {SC, "2", 0, 4},
        {SC, "3", 0, 1}, {SC, "4.49", 0, 1}, {SC, "4.5", 0, 0}, {SC, "4.99", 0, 0}, {SC, "0.0075", 0, 0},
        {SC, "4", 1, 1}, {SC, "4.4", 1, 0}, {RD, "1.46", 0, 2}, {RD, "1.47", 0, 2}, {RD, "1.48", 0, 1},
        {RD, "1.85", 0, 1}, {RD, "1.86", 0, 0}, {RD, "0.005", 0, 0}, {RD, "1.85", 1, 1}, {RD, "1.86", 1, 0},
        {RD, "3", 1, 0}, {RD, "3.79", 1, 0}, {RD, "0.03", 1, 6448}, {GD, "2", 0, 1}, {GD, "2.5", 0, 1},
        {GD, "0.01", 0, 0}, {GD, "4.088", 1, 1}, {GD, "0.03", 1, 8085}};
    for (const Case& c : cases) {
        TestApp t;
        auto l = DrawAt(t, c.form, c.text, c.print);
        EXPECT_EQ(l.size(), c.copies * StrokesOf(c.form)) << c.form << " " << c.text << " " << c.print;
        EXPECT_EQ(t.count(c.print ? "Printer" : c.form, c.print ? "enddoc" : "cls"), 1) << c.form << " " << c.text;
        EXPECT_TRUE(t.dialogs().empty()) << c.form << " " << c.text;
    }
}

TEST(Tilings, RefusedSidesDrawNothingSayWhyAndKeepTheText) {
    const std::string small = "Nothing was printed: the side length is too small. "
                              "Please type a side length in inches greater than 0.";
    const std::string large = "Nothing was printed: the side length is too large for a sheet. "
                              "Please type a smaller side length in inches.";
    const std::string strokes = "These values would take far too many strokes to draw. "
                                "Please use larger lengths or fewer steps.";
    // Loops that would never end (half cube side 17: each row starts higher
    // than the last; side 1: no row step) or run to millions of copies; the
    // first quantities to leave the Integer range: CInt(side * 1.3) (RC 18),
    // cornerY(7) (SC 9), side * 6 (RD 3.8), the second row's tileY (GD 4.089).
    // The sides every form refuses, whose preview also stays blank, come last.
    struct Case { const char* form; const char* text; const std::string& message; };
    std::vector<Case> cases{{HC, "0.0119", strokes}, {RC, "0.0007", strokes}, {RD, "0.001", strokes},
        {RD, "0.002", strokes}, {GD, "0.0007", strokes}, {GD, "0.002", strokes}, {RC, "18", large},
        {SC, "9", large}, {RD, "3.8", large}, {GD, "4.089", large}};
    for (const char* form : {HC, RC, SC, RD, GD}) {
        for (const char* text : {"", "0", "-1", "abc", "0.0005"}) cases.push_back({form, text, small});
        for (const char* text : {"40", "1e9"}) cases.push_back({form, text, large});
    }
    const size_t ownCases = cases.size();
    for (size_t i = 0; i < cases.size(); ++i) {
        const Case& c = cases[i];
        SCOPED_TRACE(std::string(c.form) + " '" + c.text + "'");
        TestApp t;
        Form& f = t.show(c.form);
        t.edit(f, "txtLeng", c.text);
        t.clear();
        t.fire(f, "cmdPrintIt", Event::Click);
        EXPECT_TRUE(t.lines("Printer").empty());
        EXPECT_EQ(t.count("Printer", "enddoc"), 0);
        EXPECT_EQ(t.faults(), std::vector<std::string>{c.message});
        EXPECT_EQ(TextOf(f), c.text);
        t.edit(f, "txtLeng", "1");  // the form goes on working
        EXPECT_FALSE(t.lines(c.form).empty());
        if (i < ownCases) continue;
        TestApp u;  // nor does the next opening preview such a text
        EXPECT_TRUE(ReopenedWith(u, c.form, c.text).empty());
        EXPECT_TRUE(u.dialogs().empty());
    }
}
