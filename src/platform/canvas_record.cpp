#include "platform/canvas_record.h"

#include <sys/mman.h>

#include <cstdlib>
#include <mutex>
#include <new>

namespace gp {

namespace {

// Blocks of records gone by, for the next ones. A record may end on a
// worker's thread, hence the lock.
class BlockPool {
public:
    // Enough for the densest preview twice over (one on show, one coming).
    static constexpr size_t kKeep = 48;

    void* take() {
        {
            std::lock_guard<std::mutex> lock(mutex_);
            if (!free_.empty()) {
                void* block = free_.back();
                free_.pop_back();
                return block;
            }
        }
        void* block = nullptr;
        if (posix_memalign(&block, CanvasSlice::kBlockBytes, CanvasSlice::kBlockBytes) != 0) throw std::bad_alloc();
#ifdef MADV_HUGEPAGE
        madvise(block, CanvasSlice::kBlockBytes, MADV_HUGEPAGE);
#endif
        return block;
    }
    void give(void* block) {
        {
            std::lock_guard<std::mutex> lock(mutex_);
            if (free_.size() < kKeep) {
                free_.push_back(block);
                return;
            }
        }
        std::free(block);
    }

private:
    std::mutex mutex_;
    std::vector<void*> free_;
};

BlockPool& pool() {
    static BlockPool* p = new BlockPool;  // outlives every record, also at exit
    return *p;
}

} // namespace

CanvasRecord::~CanvasRecord() {
    for (PageOp* b : blocks_) pool().give(b);
}

void CanvasRecord::newBlock() {
    static_assert(std::is_trivially_destructible_v<PageOp>, "ops are written into raw blocks");
    blocks_.push_back(static_cast<PageOp*>(pool().take()));
}

void CanvasRecord::addText(Single x, Single y, const std::string& text, const FontSpec& font) {
    texts_.push_back(std::make_shared<const PageText>(PageText{x, y, text, font}));
    add({PageOp::TextOp, Stroke{x, y, x, y, 0, 0, kForeground}, static_cast<int>(texts_.size() - 1)});
}

CanvasSlice CanvasRecord::slice(size_t from, size_t to) const {
    CanvasSlice s;
    s.record = shared_from_this();
    s.blocks.assign(blocks_.begin(), blocks_.end());
    s.texts = texts_;
    s.from = from;
    s.to = to;
    return s;
}

} // namespace gp
