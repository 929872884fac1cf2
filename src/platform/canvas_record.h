#pragma once
// What a canvas has been asked to draw since its last Cls, in order. It only
// grows, and an op never moves once added (ops live in fixed blocks), so a
// worker can paint the first n ops while the event loop adds more after them.
//
// A preview at a small side is close to a million ops: the blocks are big,
// backed by huge pages where the system has them, and kept for the next
// record, because touching fresh memory page by page would cost the
// keystroke more than drawing the preview does.

#include <memory>
#include <vector>

#include "shell/page.h"

namespace gp {

class CanvasRecord;

// Ops [from, to) of one record, readable on any thread while the record
// grows past `to`.
struct CanvasSlice {
    static constexpr size_t kBlockBytes = size_t(2) << 20;
    static constexpr size_t kPerBlock = kBlockBytes / sizeof(PageOp);

    std::shared_ptr<const CanvasRecord> record;  // keeps the blocks alive
    std::vector<const PageOp*> blocks;
    std::vector<std::shared_ptr<const PageText>> texts;
    size_t from = 0, to = 0;

    const PageOp& at(size_t i) const { return blocks[i / kPerBlock][i % kPerBlock]; }
    const PageText& text(const PageOp& op) const { return *texts[static_cast<size_t>(op.textIndex)]; }
};

class CanvasRecord : public std::enable_shared_from_this<CanvasRecord> {
public:
    CanvasRecord() = default;
    ~CanvasRecord();
    CanvasRecord(const CanvasRecord&) = delete;
    CanvasRecord& operator=(const CanvasRecord&) = delete;

    void addLine(const Stroke& s) { add({PageOp::LineOp, s, -1}); }
    void addDot(Single x, Single y, int width, long color) {
        add({PageOp::DotOp, Stroke{x, y, x, y, 0, width, color}, -1});
    }
    void addText(Single x, Single y, const std::string& text, const FontSpec& font);

    size_t size() const { return size_; }
    // Faults in the first block of records in the background, once a
    // process, when the first window opens.
    static void prepareMemory();
    // Only on the thread that adds ops.
    CanvasSlice slice(size_t from, size_t to) const;

private:
    void add(const PageOp& op) {
        const size_t at = size_ % CanvasSlice::kPerBlock;
        if (at == 0) newBlock();
        blocks_.back()[at] = op;
        ++size_;
    }
    void newBlock();

    std::vector<PageOp*> blocks_;
    std::vector<std::shared_ptr<const PageText>> texts_;
    size_t size_ = 0;
};

} // namespace gp
