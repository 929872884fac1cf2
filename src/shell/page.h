#pragma once
// A page of drawing calls, kept in order: a printer sheet as it is composed,
// a recording to replay on any device (a PDF, an SVG, a printer, the canvas
// of a form). Replaying a page makes exactly the calls that were recorded.

#include <string>
#include <vector>

#include "shell/drawing_surface.h"
#include "shell/output.h"

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
    void clear() {
        ops.clear();
        texts.clear();
    }

    void addLine(const Stroke& s) { ops.push_back({PageOp::LineOp, s, -1}); }
    void addDot(Single x, Single y, int width, long color) {
        ops.push_back({PageOp::DotOp, Stroke{x, y, x, y, 0, width, color}, -1});
    }
    void addText(Single x, Single y, const std::string& text, const FontSpec& font);
};

// Makes the recorded calls again on `device`, in order.
void replay(const Page& page, SurfaceDevice& device);

// How a finished sheet leaves the program: a printer, a PDF or SVG file.
class PageSink {
public:
    virtual ~PageSink() = default;
    // printableWidth/Height: the drawable area in twips in the page's
    // orientation.
    virtual OutputResult emitPage(const Page& page, Single printableWidth, Single printableHeight) = 0;
};

// Where a sheet that could not be written is reported: a message box in the
// window, standard error and the exit status in batch mode.
class OutputFailures {
public:
    virtual ~OutputFailures() = default;
    virtual void outputFailed(const std::string& message) = 0;
};

// The Printer's pages. Calls are kept until EndDoc and only then handed to
// the sinks, so a page whose handler faults half way is thrown away whole
// instead of coming out of the printer half drawn.
class PrinterPages : public SurfaceDevice {
public:
    PrinterPages(const DrawingSurface& printer, OutputFailures& failures)
        : printer_(printer), failures_(failures) {}

    void addSink(PageSink& sink) { sinks_.push_back(&sink); }

    void line(const Stroke& s) override { page_.addLine(s); }
    void pset(Single x, Single y, int width, long color) override { page_.addDot(x, y, width, color); }
    void print(Single x, Single y, const std::string& text, const FontSpec& font) override {
        page_.addText(x, y, text, font);
    }
    void endDoc() override;
    void orientation(int value) override { page_.orientation = value; }
    void abortPage() override;

private:
    const DrawingSurface& printer_;
    OutputFailures& failures_;
    std::vector<PageSink*> sinks_;
    Page page_;
};

} // namespace gp
