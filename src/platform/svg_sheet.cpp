#include "platform/svg_sheet.h"

#include <algorithm>
#include <cmath>

#include "platform/svg_markup.h"

namespace gp {

namespace {

constexpr double kTwipsPerWidth = 20.0;  // one DrawWidth step is a point on paper
constexpr double kDash = 120.0, kGap = 60.0;

// A stroke's pen as the PDF draws it. dashOffset: where in its dash pattern
// a dashed stroke starts, other than 0 only where its start was cut off.
struct Pen {
    int style;
    int width;
    long color;
    double dashOffset;
    bool dashed() const { return style == 1; }
    double thickness() const { return std::max(1, width) * kTwipsPerWidth; }
    bool operator==(const Pen& o) const {
        return style == o.style && width == o.width && color == o.color && dashOffset == o.dashOffset;
    }
};

void appendPenAttributes(std::string& out, const Pen& pen) {
    const double w = pen.thickness();
    out += " fill=\"none\" stroke=\"";
    appendSvgColor(out, pen.color);
    out += "\" stroke-width=\"";
    appendSvgNumber(out, w);
    out += "\" stroke-linejoin=\"round\"";
    if (!pen.dashed()) {
        out += " stroke-linecap=\"round\"";
        return;
    }
    // Dashes and gaps of a fixed length, but never shorter than the line is
    // thick, so a thick fold line still shows its gaps.
    out += " stroke-linecap=\"butt\" stroke-dasharray=\"";
    appendSvgNumber(out, std::max(kDash, w));
    out += ' ';
    appendSvgNumber(out, std::max(kGap, w));
    out += '"';
    if (pen.dashOffset != 0) {
        out += " stroke-dashoffset=\"";
        appendSvgNumber(out, static_cast<Single>(pen.dashOffset));
        out += '"';
    }
}

struct Box {
    double x0, y0, x1, y1;
    bool holds(double x, double y) const { return x >= x0 && x <= x1 && y >= y0 && y <= y1; }
};

// Cuts the segment a-b back to the box (Liang and Barsky's method). False
// where none of it lies in the box; tIn is where along a-b the kept part
// starts, from 0 to 1.
bool clipToBox(double& ax, double& ay, double& bx, double& by, const Box& box, double& tIn) {
    const double dx = bx - ax, dy = by - ay;
    const double p[4] = {-dx, dx, -dy, dy};
    const double q[4] = {ax - box.x0, box.x1 - ax, ay - box.y0, box.y1 - ay};
    double t0 = 0, t1 = 1;
    for (int i = 0; i < 4; ++i) {
        if (p[i] == 0) {
            if (q[i] < 0) return false;  // parallel to this side and outside it
            continue;
        }
        const double t = q[i] / p[i];
        if (p[i] < 0) t0 = std::max(t0, t);
        else t1 = std::min(t1, t);
        if (t0 > t1) return false;
    }
    const double sx = ax, sy = ay;
    if (t0 > 0) ax = sx + t0 * dx, ay = sy + t0 * dy;
    if (t1 < 1) bx = sx + t1 * dx, by = sy + t1 * dy;
    tIn = t0;
    return true;
}

// One Inkscape layer, written as its first mark comes, so that a style the
// sheet does not use leaves no layer.
class Layer {
public:
    Layer(std::string& out, std::string header, const Box& printable)
        : out_(out), header_(std::move(header)), printable_(printable) {}

    void stroke(const Pen& pen, Single x1, Single y1, Single x2, Single y2);
    void dot(const Pen& pen, Single x, Single y);
    void text(const PageText& t, SvgFaces& faces);
    // Ends the layer; false where it had nothing in it.
    bool finish();
    void open();

private:
    void usePen(const Pen& pen);
    void closePath();
    void point(char command, Single x, Single y);

    std::string& out_;
    std::string header_;
    Box printable_;
    bool open_ = false, pathOpen_ = false, canContinue_ = false;
    Pen pen_{};
    Single lastX_ = 0, lastY_ = 0;
};

void Layer::open() {
    if (open_) return;
    out_ += header_;
    open_ = true;
}

void Layer::usePen(const Pen& pen) {
    open();
    if (pathOpen_ && pen == pen_) return;
    closePath();
    out_ += "<path";
    appendPenAttributes(out_, pen);
    out_ += " d=\"";
    pen_ = pen;
    pathOpen_ = true;
    canContinue_ = false;
}

void Layer::closePath() {
    if (!pathOpen_) return;
    out_ += "\"/>\n";
    pathOpen_ = false;
}

void Layer::point(char command, Single x, Single y) {
    out_ += command;
    appendSvgNumber(out_, x);
    out_ += ' ';
    appendSvgNumber(out_, y);
}

void Layer::stroke(const Pen& given, Single x1, Single y1, Single x2, Single y2) {
    if (!std::isfinite(x1) || !std::isfinite(y1) || !std::isfinite(x2) || !std::isfinite(y2)) return;
    Pen pen = given;
    // Cutters follow the path, not the clip: a stroke ends where the
    // printable area does, and one wholly outside it is left out.
    const Box& box = printable_;
    if (!box.holds(x1, y1) || !box.holds(x2, y2)) {
        double ax = x1, ay = y1, bx = x2, by = y2, tIn = 0;
        if (!clipToBox(ax, ay, bx, by, box, tIn)) return;
        if (pen.dashed() && tIn > 0) {
            // The dashes stay where they were on the whole stroke.
            const double period = std::max(kDash, pen.thickness()) + std::max(kGap, pen.thickness());
            pen.dashOffset = std::fmod(tIn * std::hypot(double(x2) - x1, double(y2) - y1), period);
        }
        x1 = static_cast<Single>(ax), y1 = static_cast<Single>(ay);
        x2 = static_cast<Single>(bx), y2 = static_cast<Single>(by);
    }
    usePen(pen);
    // A dashed stroke starts its own pattern, as on paper, so only solid
    // strokes run on into one polyline.
    if (!(canContinue_ && x1 == lastX_ && y1 == lastY_)) point('M', x1, y1);
    point('L', x2, y2);
    lastX_ = x2, lastY_ = y2;
    canContinue_ = !pen.dashed();
}

void Layer::dot(const Pen& pen, Single x, Single y) {
    if (!std::isfinite(x) || !std::isfinite(y)) return;
    const double r = pen.thickness() / 2;
    if (!Box{printable_.x0 - r, printable_.y0 - r, printable_.x1 + r, printable_.y1 + r}.holds(x, y)) return;
    // A round cap on a line of no length: a round dot, and nothing a cutter
    // would cut.
    usePen(pen);
    point('M', x, y);
    out_ += "h0";
    canContinue_ = false;
}

void Layer::text(const PageText& t, SvgFaces& faces) {
    if (t.text.empty() || !std::isfinite(t.x) || !std::isfinite(t.y)) return;
    open();
    closePath();
    const SvgFaces::Face& face = faces.of(t.font);
    // Print puts the top left corner at (x, y); SVG places the baseline.
    out_ += "<text xml:space=\"preserve\" x=\"";
    appendSvgNumber(out_, t.x);
    out_ += "\" y=\"";
    appendSvgNumber(out_, static_cast<Single>(t.y + face.ascent));
    out_ += '"';
    out_ += face.attributes;
    out_ += '>';
    appendXmlText(out_, t.text);
    out_ += "</text>\n";
}

bool Layer::finish() {
    closePath();
    if (!open_) return false;
    out_ += "</g>\n";
    return true;
}

std::string layerHeader(const char* label, const char* id, const SheetFrame& frame) {
    std::string h = "<g inkscape:groupmode=\"layer\" inkscape:label=\"";
    h += label;
    h += "\" id=\"";
    h += id;
    h += "\" transform=\"translate(";
    appendSvgNumber(h, frame.margin);
    h += ' ';
    appendSvgNumber(h, frame.margin);
    h += ")\" clip-path=\"url(#printable)\">\n";
    return h;
}

} // namespace

std::string svgLength(double twips) {
    std::string out;
    const double inches = twips / 1440.0, tenThousandths = std::round(inches * 1e4);
    if (std::fabs(inches * 1e4 - tenThousandths) < 1e-6) {
        appendSvgNumber(out, tenThousandths / 1e4);
        return out + "in";
    }
    appendSvgNumber(out, std::round(twips * 25.4 / 1440.0 * 1e3) / 1e3);
    return out + "mm";
}

std::string svgSheet(const Page& page, Single printableWidth, Single printableHeight, const SheetFrame& frame) {
    std::string out;
    // Some 30 bytes a stroke at most; one allocation for the whole sheet.
    out.reserve(1024 + 32 * page.ops.size());
    out += "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"no\"?>\n"
           "<!-- gridpages sheet: twips in the drawing, 1440 to the inch -->\n"
           "<svg xmlns=\"http://www.w3.org/2000/svg\" "
           "xmlns:inkscape=\"http://www.inkscape.org/namespaces/inkscape\" version=\"1.1\" width=\"";
    out += svgLength(frame.paperWidth);
    out += "\" height=\"";
    out += svgLength(frame.paperHeight);
    out += "\" viewBox=\"0 0 ";
    appendSvgNumber(out, frame.paperWidth);
    out += ' ';
    appendSvgNumber(out, frame.paperHeight);
    out += "\">\n<defs><clipPath id=\"printable\"><rect x=\"0\" y=\"0\" width=\"";
    appendSvgNumber(out, printableWidth);
    out += "\" height=\"";
    appendSvgNumber(out, printableHeight);
    out += "\"/></clipPath></defs>\n";

    const Box printable{0, 0, printableWidth, printableHeight};
    Layer fold(out, layerHeader("Fold (dashed lines)", "fold", frame), printable);
    for (const PageOp& op : page.ops) {
        const Stroke& s = op.stroke;
        if (op.kind == PageOp::LineOp && s.style == 1)
            fold.stroke(Pen{1, s.width, s.color, 0}, s.x1, s.y1, s.x2, s.y2);
    }
    const bool folds = fold.finish();

    Layer cut(out, layerHeader("Cut (solid lines)", "cut", frame), printable);
    SvgFaces faces;
    for (const PageOp& op : page.ops) {
        const Stroke& s = op.stroke;
        switch (op.kind) {
        case PageOp::LineOp:
            // Every style but the dash is drawn solid.
            if (s.style != 1) cut.stroke(Pen{0, s.width, s.color, 0}, s.x1, s.y1, s.x2, s.y2);
            break;
        case PageOp::DotOp: cut.dot(Pen{0, s.width, s.color, 0}, s.x1, s.y1); break;
        case PageOp::TextOp: cut.text(page.texts[static_cast<std::size_t>(op.textIndex)], faces); break;
        }
    }
    // Even an empty sheet has a layer to draw on.
    if (!folds) cut.open();
    cut.finish();
    out += "</svg>\n";
    return out;
}

} // namespace gp
