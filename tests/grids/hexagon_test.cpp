// Hexagon sheets: the honeycomb's columns and rows, the four-inch limit, the
// inscribed and target series (sides, corners, written-back texts), and the
// factors and lengths that would never end.
#include "grids/page.h"

using namespace gp;
using gp::test::GridPage;

namespace {
GridPage hex(const std::string& button, const std::string& leng = "1", const std::string& scale = "0.5",
         Single w = 11520) {
    return GridPage("frmHexagon", {{"txtLeng", leng}, {"txtScale", scale}}, button, w);
}
// The side of each hexagon: the length of its first stroke.
std::vector<float> sides(const GridPage& h) {
    std::vector<float> out;
    auto l = h.lines();
    for (size_t i = 0; i < l.size(); i += 6) out.push_back(l[i].x2 - l[i].x1);
    return out;
}
}

TEST(Honeycomb, DefaultsGiveFiveColumnsLockedByRiseAndAnOddSideKeepsItsHalf) {
    auto l = hex("cmdPrintIt").lines();
    ASSERT_EQ(l.size(), 5u * 6 * 6);
    // The first hexagon, stroke by stroke, ends where it began.
    const float ends[6][2] = {{2160, 0}, {2880, 1247}, {2160, 2494}, {720, 2494}, {0, 1247}, {720, 0}};
    for (int i = 0; i < 6; ++i) { EXPECT_EQ(l[i].x2, ends[i][0]); EXPECT_EQ(l[i].y2, ends[i][1]); }
    EXPECT_EQ(l[0].x1, 720); EXPECT_EQ(l[0].width, 4);
    EXPECT_EQ(l[6].y1, 2494);       // down the even column by 2 rise
    EXPECT_EQ(l[30].y1, 12470);     // the last that starts above 15120 - 1247
    EXPECT_EQ(l[36].x1, 2880); EXPECT_EQ(l[36].y1, 1247);  // second column, down by rise
    EXPECT_EQ(l[4 * 36].x1, 9360);  // 11520 fails against 11520 - 2016
    auto odd = hex("cmdPrintIt", "1.0007").lines();  // 1441
    EXPECT_EQ(odd[0].x1, 720);
    EXPECT_EQ(odd[1].x2, 720 + 1441 + 720.5f);
    EXPECT_EQ(odd[36].x1, 2882);  // CInt(2161.5 + 720)
}

TEST(HexagonSeries, SidesLimitsAndTheTextsWrittenBack) {
    // Four inches are silent; the page width's limit is written as Str writes
    // it; a target factor of one or more becomes 0.99. "all": the whole series.
    struct Case { const char *button, *leng, *scale; Single w; std::vector<float> sides; bool all;
                  const char *lengText, *scaleText; };
    const Case cases[] = {
        {"cmdHexInscribed", "1", "0.5", 11520, {1440, 720, 360, 180, 90, 45}, true, "1", "0.5"},
        {"cmdHexInscribed", "1", "2", 11520, {1440, 2880, 5760}, true, "1", "2"},  // past half the page
        {"cmdHexInscribed", "1", "1000", 11520, {1440}, true, "1", "1000"},  // past any Integer
        {"cmdHexInscribed", "1", "0", 11520, {1440}, true, "1", "0"},
        {"cmdTarget", "1", "0.5", 11520, {1440, 720, 360, 180, 90}, true, "1", "0.5"},
        {"cmdTarget", "1", "-1000", 11520, {1440}, true, "1", "-1000"},
        {"cmdPrintIt", "5", "0.5", 11520, {5760}, false, "5", "0.5"},
        {"cmdHexInscribed", "5", "0.5", 11520, {5760}, false, " 4", "0.5"},
        {"cmdHexInscribed", "30", "0.5", 11000, {5500}, false, " 3.81", "0.5"},
        {"cmdTarget", "5", "0.5", 11520, {5760}, false, "5", "0.5"},
        {"cmdTarget", "5", "0.5", 11000, {5500}, false, " 3.81", "0.5"},
        {"cmdTarget", "1", "1", 11520, {1440}, false, "1", "0.99"}};
    for (const Case& c : cases) {
        GridPage h = hex(c.button, c.leng, c.scale, c.w);
        SCOPED_TRACE(std::string(c.button) + " " + c.leng + " " + c.scale);
        auto got = sides(h);
        if (!c.all && got.size() > c.sides.size()) got.resize(c.sides.size());
        EXPECT_EQ(got, c.sides);
        EXPECT_EQ(h.text("txtLeng"), c.lengText);
        EXPECT_EQ(h.text("txtScale"), c.scaleText);
        EXPECT_TRUE(h.t.faults().empty());
    }
    auto rings = sides(hex("cmdTarget", "1", "1.5"));  // at 0.99 down to 72 twips
    EXPECT_GT(rings.size(), 50u);
    EXPECT_GE(rings.back(), 72);
    auto in = hex("cmdHexInscribed").lines();  // all on one corner
    for (size_t i = 0; i < in.size(); i += 6) { EXPECT_EQ(in[i].x1, 720); EXPECT_EQ(in[i].y1, 0); }
    EXPECT_EQ(in[7].y2, 623);  // rise Int(720 * Sin(60 degrees))
    auto target = hex("cmdTarget").lines();  // concentric
    EXPECT_EQ(target[6].x1, 1080);  // CInt(0.5 * 1440 / 2 + 720)
    EXPECT_EQ(target[6].y1, 624);   // CInt(0.5 * 1440 * Sin(60 degrees))
    EXPECT_EQ(target[12].x1, 1260); EXPECT_EQ(target[12].y1, 936);
}

TEST(HexagonSeries, ValuesThatWouldNeverEndAreRefusedAtOnceOrDrawNothing) {
    // No message: a side too long for the width, or below 0, is an empty sheet.
    struct Case { const char *button, *leng, *scale, *message; Single w = 11520; };
    const char *small = "too small", *factor = "scaling factor";
    for (const Case& c : {Case{"cmdPrintIt", "0", "0.5", small}, {"cmdPrintIt", "0.0007", "0.5", small},
                          {"cmdPrintIt", "-1", "0.5", small}, {"cmdPrintIt", "abc", "0.5", small},
                          {"cmdPrintIt", "0.002", "0.5", ""},  // millions of strokes
                          {"cmdHexInscribed", "1", "1", factor}, {"cmdHexInscribed", "1", "0.99", factor},
                          {"cmdHexInscribed", "1", "1.0001", factor}, {"cmdTarget", "1", "0.995", ""},
                          {"cmdTarget", "1", "abc", "scaling factor \"abc\" is not a number"},
                          {"cmdTarget", "1", "", "\"\" is not a number"}, {"cmdTarget", "1", "0.5x", factor},
                          {"cmdPrintIt", "4", "0.5", nullptr, 8000},
                          {"cmdHexInscribed", "-2", "1", nullptr}}) {
        GridPage h = hex(c.button, c.leng, c.scale, c.w);
        SCOPED_TRACE(std::string(c.button) + " " + c.leng + " " + c.scale);
        EXPECT_EQ(h.t.count("Printer", "line"), 0);
        EXPECT_EQ(h.t.count("Printer", "enddoc"), c.message ? 0 : 1);
        ASSERT_EQ(h.t.faults().size(), c.message ? 1u : 0u);
        if (c.message) { EXPECT_NE(h.t.faults()[0].find(c.message), std::string::npos) << h.t.faults()[0]; }
        EXPECT_EQ(h.text("txtScale"), c.scale);
    }
}
