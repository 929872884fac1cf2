// SVG sheets read back as XML and rendered by librsvg: true size, the fold
// and cut layers holding exactly the page's dashed and solid strokes, pens,
// clipping at the printable area, text placed and made safe.
#include <gtest/gtest.h>

#include <QFontMetricsF>
#include <QImage>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QXmlStreamReader>
#include <cmath>
#include <cstdlib>
#include <limits>

#include "platform/qt_drawing.h"
#include "platform/svg_sheet.h"
#include "support/test_app.h"

using namespace gp;

namespace {

const QString kInkscape = "http://www.inkscape.org/namespaces/inkscape";

struct Segment {
    float x1, y1, x2, y2;
};
struct Path {
    QXmlStreamAttributes attrs;
    std::vector<Segment> segments;
    int dots = 0;
    QString attr(const char* name) const { return attrs.value(name).toString(); }
};
struct Text {
    QXmlStreamAttributes attrs;
    QString content;
};
struct Layer {
    QString label, transform, clip;
    std::vector<Path> paths;
    std::vector<Text> texts;
    size_t segments() const {
        size_t n = 0;
        for (const Path& p : paths) n += p.segments.size();
        return n;
    }
};
struct Svg {
    QString width, height, viewBox, error;
    std::vector<Layer> layers;
};

// Moves and lines of a path as this writer makes them; "h0" is a dot.
Path readPath(const QXmlStreamAttributes& attrs) {
    Path p{attrs, {}, 0};
    const std::string d = attrs.value("d").toString().toStdString();
    const char* c = d.c_str();
    float x = 0, y = 0;
    while (*c) {
        const char cmd = *c++;
        char* end = nullptr;
        if (cmd == 'h') {
            std::strtof(c, &end);
            ++p.dots;
        } else {
            const float nx = std::strtof(c, &end);
            const float ny = std::strtof(end, &end);
            if (cmd == 'L') p.segments.push_back({x, y, nx, ny});
            x = nx, y = ny;
        }
        c = end;
    }
    return p;
}

Svg readSvg(const std::string& bytes) {
    Svg svg;
    QXmlStreamReader xml(QByteArray::fromStdString(bytes));
    while (xml.readNext() != QXmlStreamReader::Invalid && !xml.atEnd()) {
        if (!xml.isStartElement()) continue;
        const QXmlStreamAttributes a = xml.attributes();
        if (xml.name() == u"svg") {
            svg.width = a.value("width").toString();
            svg.height = a.value("height").toString();
            svg.viewBox = a.value("viewBox").toString();
        } else if (xml.name() == u"g" && a.value(kInkscape, "groupmode") == u"layer") {
            svg.layers.push_back({a.value(kInkscape, "label").toString(), a.value("transform").toString(),
                                  a.value("clip-path").toString(), {}, {}});
        } else if (xml.name() == u"path" && !svg.layers.empty()) {
            svg.layers.back().paths.push_back(readPath(a));
        } else if (xml.name() == u"text" && !svg.layers.empty()) {
            svg.layers.back().texts.push_back({a, xml.readElementText()});
        }
    }
    if (xml.hasError()) svg.error = xml.errorString();
    return svg;
}

// Collects the Printer's sheets as the program hands them to its sinks.
class Sheets : public PageSink, public OutputFailures {
public:
    std::vector<Page> pages;
    OutputResult emitPage(const Page& page, Single, Single) override {
        pages.push_back(page);
        return OutputResult::written();
    }
    void outputFailed(const std::string& message) override { ADD_FAILURE() << message; }
};

Page printed(const std::string& form, const std::vector<std::pair<std::string, std::string>>& edits = {},
             const std::string& check = "") {
    test::TestApp app;
    Sheets sheets;
    PrinterPages pages(app.printer(), sheets);
    pages.addSink(sheets);
    app.printer().attach(&pages);
    Form& f = app.show(form);
    for (const auto& [box, text] : edits) app.edit(f, box, text);
    if (!check.empty()) static_cast<CheckBox*>(f.find(check))->setValue(1);
    app.fire(f, "cmdPrintIt", Event::Click);
    app.printer().detach(&pages);
    EXPECT_EQ(sheets.pages.size(), 1u);
    return sheets.pages.empty() ? Page{} : sheets.pages.front();
}

const SheetFrame kLetter = SheetFrame::around(11520, 15120);

std::string svgOf(const Page& page) { return svgSheet(page, 11520, 15120, kLetter); }

// The sheet rendered by librsvg at 144 dots to the inch on white.
QImage rendered(const std::string& svg) {
    QTemporaryDir dir;
    const QString in = dir.filePath("sheet.svg"), out = dir.filePath("sheet.png");
    QFile f(in);
    if (!f.open(QIODevice::WriteOnly)) return {};
    f.write(svg.data(), static_cast<qint64>(svg.size()));
    f.close();
    QProcess p;
    p.start("rsvg-convert", {"--dpi-x", "144", "--dpi-y", "144", "-b", "white", "-f", "png", "-o", out, in});
    p.waitForFinished(60000);
    EXPECT_EQ(p.exitCode(), 0) << p.readAllStandardError().toStdString();
    return QImage(out);
}

#define NEED_RSVG()                                                          \
    if (QStandardPaths::findExecutable("rsvg-convert").isEmpty())           \
    GTEST_SKIP() << "rsvg-convert is missing (Debian package librsvg2-bin)"

bool dark(const QImage& img, int x, int y) { return qGray(img.pixel(x, y)) < 128; }

} // namespace

TEST(SvgSheet, HalfCubeHasItsFoldsAndCutsInTwoLayersAtTrueSize) {
    const Page page = printed("frmHalfCube");
    const Svg svg = readSvg(svgOf(page));
    ASSERT_TRUE(svg.error.isEmpty()) << svg.error.toStdString();
    EXPECT_EQ(svg.width, "8.5in");
    EXPECT_EQ(svg.height, "11in");
    EXPECT_EQ(svg.viewBox, "0 0 12240 15840");
    ASSERT_EQ(svg.layers.size(), 2u);
    const Layer &fold = svg.layers[0], &cut = svg.layers[1];
    EXPECT_EQ(fold.label, "Fold (dashed lines)");
    EXPECT_EQ(cut.label, "Cut (solid lines)");
    for (const Layer* l : {&fold, &cut}) {
        EXPECT_EQ(l->transform, "translate(360 360)");
        EXPECT_EQ(l->clip, "url(#printable)");
    }

    std::vector<Stroke> dashed, solid;
    for (const PageOp& op : page.ops)
        if (op.kind == PageOp::LineOp) (op.stroke.style == 1 ? dashed : solid).push_back(op.stroke);
    ASSERT_EQ(fold.segments(), dashed.size());
    ASSERT_EQ(cut.segments(), solid.size());
    EXPECT_EQ(dashed.size(), 36u);
    for (const Path& p : fold.paths) {
        EXPECT_EQ(p.attr("stroke-dasharray"), "120 60");
        EXPECT_EQ(p.attr("stroke-linecap"), "butt");
        EXPECT_EQ(p.attr("stroke-width"), "20");
    }
    for (const Path& p : cut.paths) EXPECT_EQ(p.attr("stroke-linecap"), "round");

    // Every stroke in order; the last copy's bottom flaps run past the
    // printable area and are cut back to its edge (and half the pen).
    size_t i = 0;
    int cutBack = 0;
    for (const Path& p : cut.paths)
        for (const Segment& s : p.segments) {
            const Stroke& w = solid[i++];
            if (std::max(w.y1, w.y2) <= 15120) {
                EXPECT_EQ(std::vector<float>({s.x1, s.y1, s.x2, s.y2}),
                          std::vector<float>({w.x1, w.y1, w.x2, w.y2})) << "solid stroke " << i;
                continue;
            }
            ++cutBack;
            EXPECT_FLOAT_EQ(std::max(s.y1, s.y2), 15120.0f);
            EXPECT_EQ(std::min(s.y1, s.y2), std::min(w.y1, w.y2));
        }
    EXPECT_EQ(cutBack, 4);
    i = 0;
    for (const Path& p : fold.paths)
        for (const Segment& s : p.segments) {
            const Stroke& w = dashed[i++];
            EXPECT_EQ(std::vector<float>({s.x1, s.y1, s.x2, s.y2}), std::vector<float>({w.x1, w.y1, w.x2, w.y2}));
        }
}

TEST(SvgSheet, TrianglesAreOneLayerAndRenderAtTrueSize) {
    const std::string bytes = svgOf(printed("frmTriangle"));
    const Svg svg = readSvg(bytes);
    ASSERT_EQ(svg.layers.size(), 1u);
    EXPECT_EQ(svg.layers[0].label, "Cut (solid lines)");

    NEED_RSVG();
    const QImage img = rendered(bytes);
    ASSERT_EQ(img.size(), QSize(1224, 1584));  // 8.5 by 11 inches at 144 dots to the inch
    // Rows of the default triangles are 1247 twips apart: 124.7 dots.
    std::vector<double> rows;
    int start = -1;
    for (int y = 0; y <= img.height(); ++y) {
        int n = 0;
        for (int x = 0; y < img.height() && x < img.width(); ++x) n += dark(img, x, y);
        const bool line = n > img.width() / 2;
        if (line && start < 0) start = y;
        if (!line && start >= 0) rows.push_back((start + y - 1) / 2.0), start = -1;
    }
    ASSERT_GE(rows.size(), 10u);
    EXPECT_NEAR(rows[0], 36, 1.5);  // the first row lies on the top of the printable area
    for (size_t k = 1; k < rows.size(); ++k) EXPECT_NEAR(rows[k] - rows[k - 1], 124.7, 1.5) << k;
    int inMargin = 0;  // the margin stays blank
    for (int x = 0; x < img.width(); ++x) inMargin += dark(img, x, 20) + dark(img, x, img.height() - 20);
    EXPECT_EQ(inMargin, 0);
}

TEST(SvgSheet, TextSitsWithItsTopLeftWherePrintPutIt) {
    const Page page = printed("frmSquares", {}, "chkMult");
    const Svg svg = readSvg(svgOf(page));
    ASSERT_EQ(svg.layers.size(), 1u);
    const std::vector<Text>& texts = svg.layers[0].texts;
    ASSERT_EQ(texts.size(), page.texts.size());
    ASSERT_GT(texts.size(), 20u);
    EXPECT_EQ(texts[0].content, "Name this chart: ");  // blanks kept
    EXPECT_EQ(texts[0].attrs.value("xml:space"), u"preserve");
    for (size_t k = 0; k < texts.size(); k += 7) {
        const PageText& t = page.texts[k];
        QImage probe(1, 1, QImage::Format_RGB32);
        probe.setDotsPerMeterX(56693);
        probe.setDotsPerMeterY(56693);
        const double ascent = QFontMetricsF(toQFont(t.font), &probe).ascent();
        EXPECT_EQ(texts[k].content.toStdString(), t.text);
        EXPECT_EQ(texts[k].attrs.value("x").toFloat(), t.x);
        EXPECT_NEAR(texts[k].attrs.value("y").toDouble(), t.y + ascent, 0.01);
        EXPECT_DOUBLE_EQ(texts[k].attrs.value("font-size").toDouble(), t.font.size * 20);
        EXPECT_TRUE(texts[k].attrs.value("font-family").startsWith(u"'Georgia', ")) << k;
        EXPECT_TRUE(texts[k].attrs.value("font-family").endsWith(u", serif")) << k;
    }
}

TEST(SvgSheet, PensKeepTheirOrderColourWidthAndDashes) {
    Page page;
    page.addLine({0, 0, 100, 0, 0, 1, kForeground});
    page.addLine({100, 0, 100, 100, 0, 1, kForeground});     // runs on from the last
    page.addLine({0, 200, 100, 200, 0, 3, RGB(255, 128, 0)});
    page.addLine({0, 300, 100, 300, 0, 0, kForeground});     // below 1 is drawn as 1
    page.addDot(50, 50, 2, kForeground);
    page.addLine({0, 400, 100, 400, 1, 10, kForeground});   // thicker than a gap
    page.addLine({0, 500, 100, 500, 1, 1, RGB(0, 0, 255)});
    page.addLine({100, 500, 200, 500, 1, 1, RGB(0, 0, 255)});  // each dashed stroke starts its pattern
    const Svg svg = readSvg(svgOf(page));
    ASSERT_EQ(svg.layers.size(), 2u);
    const Layer &fold = svg.layers[0], &cut = svg.layers[1];
    ASSERT_EQ(cut.paths.size(), 4u);
    EXPECT_EQ(cut.paths[0].attr("stroke"), "#000000");
    EXPECT_EQ(cut.paths[0].attr("d"), "M0 0L100 0L100 100");
    EXPECT_EQ(cut.paths[1].attr("stroke"), "#ff8000");
    EXPECT_EQ(cut.paths[1].attr("stroke-width"), "60");
    EXPECT_EQ(cut.paths[2].attr("stroke-width"), "20");
    EXPECT_EQ(cut.paths[2].segments.size(), 1u);
    EXPECT_EQ(cut.paths[3].attr("stroke-width"), "40");
    EXPECT_EQ(cut.paths[3].dots, 1);
    ASSERT_EQ(fold.paths.size(), 2u);
    EXPECT_EQ(fold.paths[0].attr("stroke-dasharray"), "200 200");
    EXPECT_EQ(fold.paths[1].attr("stroke"), "#0000ff");
    EXPECT_EQ(fold.paths[1].attr("stroke-dasharray"), "120 60");
    EXPECT_EQ(fold.paths[1].attr("d"), "M0 500L100 500M100 500L200 500");

    // A sheet of folds alone has one layer; an empty sheet one empty cut layer.
    Page folds;
    folds.addLine({0, 400, 100, 400, 1, 1, kForeground});
    const Svg onlyFolds = readSvg(svgOf(folds));
    ASSERT_EQ(onlyFolds.layers.size(), 1u);
    EXPECT_EQ(onlyFolds.layers[0].label, "Fold (dashed lines)");
    const Svg empty = readSvg(svgOf(Page{}));
    ASSERT_EQ(empty.layers.size(), 1u);
    EXPECT_EQ(empty.layers[0].label, "Cut (solid lines)");
    EXPECT_TRUE(empty.layers[0].paths.empty());
}

TEST(SvgSheet, StrokesAreCutBackToThePrintableArea) {
    const float inf = std::numeric_limits<float>::infinity();
    Page page;
    page.addLine({-1000, 500, 1000, 500, 1, 1, kForeground});  // starts off the left edge
    page.addLine({20000, 0, 30000, 0, 0, 1, kForeground});     // wholly off the sheet
    page.addLine({0, 0, inf, 0, 0, 1, kForeground});
    page.addDot(std::nanf(""), 0, 1, kForeground);
    page.addLine({-2000, 1000, 2000, 1000, 0, 10, kForeground});  // 200 twips thick
    const Svg svg = readSvg(svgOf(page));
    ASSERT_EQ(svg.layers.size(), 2u);
    ASSERT_EQ(svg.layers[0].paths.size(), 1u);
    // Cut back to the edge of the printable area, where a cutter must stop;
    // the dashes stay where they were.
    EXPECT_EQ(svg.layers[0].paths[0].attr("d"), "M0 500L1000 500");
    EXPECT_EQ(svg.layers[0].paths[0].attr("stroke-dashoffset"), "100");  // 1000 twips in, 180 a period
    ASSERT_EQ(svg.layers[1].paths.size(), 1u);
    EXPECT_EQ(svg.layers[1].paths[0].attr("d"), "M0 1000L2000 1000");

    NEED_RSVG();
    const QImage img = rendered(svgOf(page));
    // The thick line: ink from the printable area's edge (36 dots in) on.
    EXPECT_FALSE(dark(img, 30, 136));
    EXPECT_TRUE(dark(img, 40, 136));
    EXPECT_TRUE(dark(img, 200, 136));
}

TEST(SvgSheet, TextThatIsNoXmlIsMadeSafe) {
    Page page;
    FontSpec odd{"Ar'i<al\"", 12, true, true};
    page.addText(100, 100, "<a & b> \"q\"\t\x01 \xff \xc0\x80 \xed\xa0\x80 \xc3\xa9\xe2\x82\xac", odd);
    page.addText(100, 400, "", FontSpec{});
    const std::string bytes = svgOf(page);
    const Svg svg = readSvg(bytes);
    ASSERT_TRUE(svg.error.isEmpty()) << svg.error.toStdString();
    ASSERT_EQ(svg.layers.size(), 1u);
    ASSERT_EQ(svg.layers[0].texts.size(), 1u);  // an empty Print leaves nothing
    const Text& t = svg.layers[0].texts[0];
    EXPECT_EQ(t.content, QString::fromUtf8("<a & b> \"q\"\t\uFFFD \uFFFD \uFFFD \uFFFD \u00e9\u20ac"));
    EXPECT_EQ(t.attrs.value("font-weight"), u"bold");
    EXPECT_EQ(t.attrs.value("font-style"), u"italic");
    EXPECT_EQ(t.attrs.value("font-size"), u"240");
    EXPECT_TRUE(t.attrs.value("font-family").startsWith(u"'Ari<al\"', ")) << t.attrs.value("font-family").toString().toStdString();

    NEED_RSVG();
    EXPECT_FALSE(rendered(bytes).isNull());  // librsvg reads XML strictly
}

TEST(SvgSheet, SizesAreExactInInchesOrElseMillimetres) {
    EXPECT_EQ(svgLength(12240), "8.5in");
    EXPECT_EQ(svgLength(15840), "11in");
    EXPECT_EQ(svgLength(1440 * 8.2673), "8.2673in");
    EXPECT_EQ(svgLength(210 / 25.4 * 1440), "210mm");  // A4
    EXPECT_EQ(svgLength(297 / 25.4 * 1440), "297mm");
    EXPECT_EQ(svgLength(11905), "209.991mm");  // an A4 printable area with margins, in whole twips
}
