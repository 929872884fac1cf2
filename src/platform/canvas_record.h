#pragma once
// What a canvas has been asked to draw since its last Cls, in order. It only
// grows, and an op never moves once added (ops live in fixed blocks), so a
// worker can paint the first n ops while the event loop adds more after them.
//
// A preview at a small side is close to a million ops: the blocks are big,
// backed by huge pages where the system has them, and kept for the next
// record, because touching fresh memory page by page would cost the
// keystroke more than drawing the preview does.

#include <cstdint>
#include <memory>
#include <vector>

#include "shell/page.h"

namespace gp {

class CanvasRecord;

// One recorded call, in half the bytes of a page's op: only what the screen
// makes of it is kept, so a dense preview touches half the fresh memory.
struct CanvasOp {
    enum Kind : std::uint8_t { Line, Dot, Text };
    // DrawStyle as the screen draws it: solid strokes of style 0 go to
    // QPainter in batches; every other style but the dash is drawn solid,
    // one stroke at a time, as before.
    enum Style : std::uint8_t { Solid, Dash, OtherSolid };

    Single x1, y1, x2, y2;
    std::int32_t color;  // Line, Dot: an RGB value, or -1 for the foreground; Text: its index
    std::int16_t width;  // DrawWidth, 1 at the least
    Style style;
    Kind kind;

    static CanvasOp line(const Stroke& s) {
        return {s.x1, s.y1, s.x2, s.y2, screenColor(s.color), screenWidth(s.width), screenStyle(s.style), Line};
    }
    static CanvasOp dot(Single x, Single y, int width, long color) {
        return {x, y, x, y, screenColor(color), screenWidth(width), Solid, Dot};
    }
    static CanvasOp text(Single x, Single y, std::int32_t index) { return {x, y, x, y, index, 1, Solid, Text}; }

private:
    // The screen draws any negative colour in the foreground and reads
    // only the low 24 bits of the others; a width below 1 as 1.
    static std::int32_t screenColor(long c) { return c < 0 ? -1 : static_cast<std::int32_t>(c & 0xFFFFFF); }
    static std::int16_t screenWidth(int w) { return static_cast<std::int16_t>(w < 1 ? 1 : w > 32767 ? 32767 : w); }
    static Style screenStyle(int s) { return s == 0 ? Solid : s == 1 ? Dash : OtherSolid; }
};
static_assert(sizeof(CanvasOp) == 24, "a canvas op stays small");

// Ops [from, to) of one record, readable on any thread while the record
// grows past `to`.
struct CanvasSlice {
    static constexpr size_t kBlockBytes = size_t(2) << 20;
    static constexpr size_t kPerBlock = kBlockBytes / sizeof(CanvasOp);

    std::shared_ptr<const CanvasRecord> record;  // keeps the blocks alive
    std::vector<const CanvasOp*> blocks;
    std::vector<std::shared_ptr<const PageText>> texts;
    size_t from = 0, to = 0;

    const CanvasOp& at(size_t i) const { return blocks[i / kPerBlock][i % kPerBlock]; }
    const PageText& text(const CanvasOp& op) const { return *texts[static_cast<size_t>(op.color)]; }
};

class CanvasRecord : public std::enable_shared_from_this<CanvasRecord> {
public:
    CanvasRecord() = default;
    ~CanvasRecord();
    CanvasRecord(const CanvasRecord&) = delete;
    CanvasRecord& operator=(const CanvasRecord&) = delete;

    void addLine(const Stroke& s) { add(CanvasOp::line(s)); }
    void addDot(Single x, Single y, int width, long color) { add(CanvasOp::dot(x, y, width, color)); }
    void addText(Single x, Single y, const std::string& text, const FontSpec& font);

    size_t size() const { return size_; }
    // A canvas that may get records of up to `ops` opens: blocks for them
    // are faulted in ahead of use, in the background (one block at the
    // least). releaseMemory says it has closed, its records gone.
    static void prepareMemory(size_t ops);
    static void releaseMemory(size_t ops);
    // Only on the thread that adds ops.
    CanvasSlice slice(size_t from, size_t to) const;

private:
    void add(const CanvasOp& op) {
        if (next_ == blockEnd_) newBlock();
        *next_++ = op;
        ++size_;
    }
    void newBlock();

    std::vector<CanvasOp*> blocks_;
    std::vector<std::shared_ptr<const PageText>> texts_;
    size_t size_ = 0;
    CanvasOp* next_ = nullptr;  // where the next op goes in the last block
    CanvasOp* blockEnd_ = nullptr;
};

} // namespace gp
