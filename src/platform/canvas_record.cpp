#include "platform/canvas_record.h"

#include <sys/mman.h>

#include <cstdint>
#include <cstdlib>
#include <mutex>
#include <new>
#include <thread>

namespace gp {

namespace {

// The blocks of every record, carved from one region reserved at first use
// (address space only until a block is touched) and advised onto huge
// pages, handed back when a record goes and kept for the next one. A
// record may end on a worker's thread, hence the lock. Past the region a
// block comes from the heap.
class BlockPool {
public:
    // The densest preview twice over: the one on show and the one coming.
    static constexpr size_t kBlocks = 48;

    BlockPool() {
        const size_t bytes = kBlocks * CanvasSlice::kBlockBytes;
        void* raw = mmap(nullptr, bytes + CanvasSlice::kBlockBytes, PROT_READ | PROT_WRITE,
                         MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
        if (raw == MAP_FAILED) return;
        const auto at = reinterpret_cast<std::uintptr_t>(raw);
        const std::uintptr_t mask = CanvasSlice::kBlockBytes - 1;
        begin_ = reinterpret_cast<char*>((at + mask) & ~mask);
        end_ = begin_ + bytes;
#ifdef MADV_HUGEPAGE
        madvise(begin_, bytes, MADV_HUGEPAGE);
#endif
        for (size_t i = kBlocks; i-- > 0;) free_.push_back(begin_ + i * CanvasSlice::kBlockBytes);
    }

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
        return block;
    }
    void give(void* block) {
        if (block < begin_ || block >= end_) {
            std::free(block);
            return;
        }
        std::lock_guard<std::mutex> lock(mutex_);
        free_.push_back(block);
    }
    // Faults in the first `count` blocks ahead of use, so that the first
    // big preview does not stop for page faults. The kernel fills in page
    // tables without touching what a record may already have written, so
    // this runs on a thread of its own without the lock.
    void warm(size_t count) const {
#ifdef MADV_POPULATE_WRITE
        for (size_t i = 0; i < count && i < kBlocks && begin_; ++i)
            madvise(begin_ + i * CanvasSlice::kBlockBytes, CanvasSlice::kBlockBytes, MADV_POPULATE_WRITE);
#else
        (void)count;
#endif
    }

private:
    std::mutex mutex_;
    std::vector<void*> free_;
    char* begin_ = nullptr;
    char* end_ = nullptr;
};

BlockPool& pool() {
    static BlockPool* p = new BlockPool;  // outlives every record, also at exit
    return *p;
}

} // namespace

void CanvasRecord::prepareMemory() {
    static std::once_flag once;
    std::call_once(once, [] {
        pool();
        std::thread([] {
            // One block: every everyday preview fits in it. A dense one
            // pays its page faults once, the first time; its blocks come
            // back to the pool faulted in for the next. Warming the
            // densest preview's worth ahead would cost every session tens
            // of megabytes that most never use.
            pool().warm(1);
        }).detach();
    });
}

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
