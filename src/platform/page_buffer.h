#pragma once
// A printer page as it is being composed. Strokes are kept until EndDoc and
// only then sent to the device, so a page whose handler faults half way is
// thrown away whole instead of coming out of the printer half drawn.

#include <functional>
#include <string>
#include <vector>

#include "shell/drawing_surface.h"

class QPainter;

namespace gp {

struct PageText {
    Single x, y;
    std::string text;
    FontSpec font;
};

struct PageOp {
    enum Kind : unsigned char { LineOp, DotOp, TextOp } kind;
    Stroke stroke;     // LineOp; DotOp uses x1, y1, width, color
    int textIndex;     // TextOp
};

struct Page {
    int orientation = 1;
    std::vector<PageOp> ops;
    std::vector<PageText> texts;
    bool empty() const { return ops.empty(); }
};

// How a finished page leaves the program.
class PageSink {
public:
    virtual ~PageSink() = default;
    // printableWidth/Height: the drawable area in twips in the page's
    // orientation.
    virtual void emitPage(const Page& page, Single printableWidth, Single printableHeight) = 0;
};

class PageBufferDevice : public SurfaceDevice {
public:
    PageBufferDevice(PageSink& sink, const DrawingSurface& printer) : sink_(sink), printer_(printer) {}

    void line(const Stroke& s) override { page_.ops.push_back({PageOp::LineOp, s, -1}); }
    void pset(Single x, Single y, int width, long color) override {
        page_.ops.push_back({PageOp::DotOp, Stroke{x, y, x, y, 0, width, color}, -1});
    }
    void print(Single x, Single y, const std::string& text, const FontSpec& font) override;
    void endDoc() override;
    void orientation(int value) override { page_.orientation = value; }
    void abortPage() override;

private:
    PageSink& sink_;
    const DrawingSurface& printer_;
    Page page_;
};

// Paints a page on a painter whose coordinates are twips of the printable
// area. Runs of strokes with the same pen go out in one call.
void renderPage(QPainter& painter, const Page& page);

// A pen for DrawWidth on paper: one unit is one point (20 twips).
struct PaperPen {
    static constexpr double kTwipsPerPoint = 20.0;
};

} // namespace gp
