#include "platform/canvas_record.h"

#include <sys/mman.h>

#include <algorithm>
#include <condition_variable>
#include <cstdint>
#include <cstdlib>
#include <mutex>
#include <new>
#include <thread>

namespace gp {

namespace {

// The blocks of every record, carved from one region reserved at first use
// (address space only until a block is touched) and advised onto huge
// pages, handed back when a record goes and kept, faulted in, for the next
// one. A record may end on a worker's thread, hence the lock. Past the
// region a block comes from the heap.
//
// Fresh memory is dear: the first touch of a 2 MB block can cost more than
// recording the ops that fill it. So a thread of the pool's own faults in
// blocks before they are needed: as many in all as the densest record a
// window may ask for (one block where canvases get a few thousand ops), and
// always one more than the records hold, for a record that grows.
class BlockPool {
public:
    // The densest preview twice over (the one on show and the one coming),
    // with room to spare.
    static constexpr size_t kBlocks = 40;
    static constexpr size_t kMostReserve = kBlocks / 2;
    static constexpr size_t kAhead = 1;

    BlockPool() {
        const size_t bytes = kBlocks * CanvasSlice::kBlockBytes;
        void* raw = mmap(nullptr, bytes + CanvasSlice::kBlockBytes, PROT_READ | PROT_WRITE,
                         MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
        if (raw == MAP_FAILED) return;
        const auto at = reinterpret_cast<std::uintptr_t>(raw);
        const std::uintptr_t mask = CanvasSlice::kBlockBytes - 1;
        begin_ = reinterpret_cast<char*>((at + mask) & ~mask);
#ifdef MADV_HUGEPAGE
        madvise(begin_, bytes, MADV_HUGEPAGE);
#endif
    }

    void* take() {
        {
            std::lock_guard<std::mutex> lock(mutex_);
            void* block = nullptr;
            if (!free_.empty()) {
                block = free_.back();
                free_.pop_back();
            } else if (begin_ && next_ < kBlocks) {
                block = begin_ + next_++ * CanvasSlice::kBlockBytes;
            }
            if (block) {
                if (warming_ && wanted()) wake_.notify_one();
                return block;
            }
        }
        void* block = nullptr;
        if (posix_memalign(&block, CanvasSlice::kBlockBytes, CanvasSlice::kBlockBytes) != 0) throw std::bad_alloc();
        return block;
    }
    void give(void* block) {
        if (!inRegion(block)) {
            std::free(block);
            return;
        }
        std::lock_guard<std::mutex> lock(mutex_);
        free_.push_back(block);
    }
    // Keeps at least `blocks` faulted in from now on; the first call
    // starts the thread that does it.
    void keepReady(size_t blocks) {
#ifdef MADV_POPULATE_WRITE
        std::lock_guard<std::mutex> lock(mutex_);
        if (!begin_) return;
        reserve_ = std::max(reserve_, std::min(std::max(blocks, size_t(1)), kMostReserve));
        if (!warming_) {
            warming_ = true;
            std::thread([this] { warm(); }).detach();
        }
        wake_.notify_one();
#else
        (void)blocks;
#endif
    }

private:
    bool inRegion(const void* block) const {
        return begin_ && block >= begin_ && block < begin_ + kBlocks * CanvasSlice::kBlockBytes;
    }
    // Call these with the lock. Blocks of the region touched so far, or
    // being faulted in:
    size_t touched() const { return std::max(warmed_, next_); }
    // Those of them that no record holds:
    size_t ready() const { return free_.size() + (warmed_ > next_ ? warmed_ - next_ : 0); }
    bool wanted() const { return touched() < kBlocks && (touched() < reserve_ || ready() < kAhead); }

    void warm() {
#ifdef MADV_POPULATE_WRITE
        std::unique_lock<std::mutex> lock(mutex_);
        for (;;) {
            wake_.wait(lock, [this] { return wanted(); });
            const size_t i = touched();
            warmed_ = i + 1;
            lock.unlock();
            // The kernel fills in page tables without touching what a
            // record may already be writing into the block.
            madvise(begin_ + i * CanvasSlice::kBlockBytes, CanvasSlice::kBlockBytes, MADV_POPULATE_WRITE);
            lock.lock();
        }
#endif
    }

    std::mutex mutex_;
    std::condition_variable wake_;
    std::vector<void*> free_;  // given back, faulted in
    char* begin_ = nullptr;
    size_t next_ = 0;     // blocks [0, next_) have been handed out at least once
    size_t warmed_ = 0;   // blocks [0, warmed_) have been faulted in ahead, or are being
    size_t reserve_ = 0;
    bool warming_ = false;
};

BlockPool& pool() {
    static BlockPool* p = new BlockPool;  // outlives every record, also at exit
    return *p;
}

} // namespace

void CanvasRecord::prepareMemory(size_t ops) {
    pool().keepReady((ops + CanvasSlice::kPerBlock - 1) / CanvasSlice::kPerBlock);
}

CanvasRecord::~CanvasRecord() {
    for (CanvasOp* b : blocks_) pool().give(b);
}

void CanvasRecord::newBlock() {
    static_assert(std::is_trivially_destructible_v<CanvasOp>, "ops are written into raw blocks");
    blocks_.push_back(static_cast<CanvasOp*>(pool().take()));
    next_ = blocks_.back();
    blockEnd_ = next_ + CanvasSlice::kPerBlock;
}

void CanvasRecord::addText(Single x, Single y, const std::string& text, const FontSpec& font) {
    texts_.push_back(std::make_shared<const PageText>(PageText{x, y, text, font}));
    add(CanvasOp::text(x, y, static_cast<std::int32_t>(texts_.size() - 1)));
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
