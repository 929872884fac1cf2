#include "shell/page.h"

namespace gp {

void Page::addText(Single x, Single y, const std::string& text, const FontSpec& font) {
    texts.push_back({x, y, text, font});
    ops.push_back({PageOp::TextOp, Stroke{x, y, x, y, 0, 0, kForeground}, static_cast<int>(texts.size() - 1)});
}

void replay(const Page& page, SurfaceDevice& device) {
    for (const PageOp& op : page.ops) {
        const Stroke& s = op.stroke;
        switch (op.kind) {
        case PageOp::LineOp: device.line(s); break;
        case PageOp::DotOp: device.pset(s.x1, s.y1, s.width, s.color); break;
        case PageOp::TextOp: {
            const PageText& t = page.texts[static_cast<size_t>(op.textIndex)];
            device.print(t.x, t.y, t.text, t.font);
            break;
        }
        }
    }
}

void PrinterPages::endDoc() {
    // The orientation of the Printer holds across pages: start the next page
    // with it.
    const int orientation = printer_.Orientation();
    page_.orientation = orientation;
    for (PageSink* sink : sinks_) {
        const OutputResult result = sink->emitPage(page_, printer_.ScaleWidth(), printer_.ScaleHeight());
        if (!result.ok()) failures_.outputFailed(result.error());
    }
    page_ = Page{};
    page_.orientation = orientation;
}

void PrinterPages::abortPage() {
    const int orientation = page_.orientation;
    page_ = Page{};
    page_.orientation = orientation;
}

} // namespace gp
