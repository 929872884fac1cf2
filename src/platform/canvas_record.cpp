#include "platform/canvas_record.h"

#include <sys/mman.h>

#include <algorithm>
#include <condition_variable>
#include <cstdint>
#include <cstdlib>
#include <mutex>
#include <set>
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
// blocks before they are needed: as many in all as the densest record an
// open window may ask for (one block where canvases get a few thousand
// ops), and one more than the records hold, for a record that grows. When
// the window that asked for the most closes, what no one asks for any more
// goes back to the system.
class BlockPool {
public:
    // The densest preview twice over (the one on show and the one coming),
    // with room to spare.
    static constexpr size_t kBlocks = 40;
    static constexpr size_t kMostAsked = kBlocks / 2;
    static constexpr size_t kAhead = 1;
    static constexpr size_t kBytes = CanvasSlice::kBlockBytes;

    BlockPool() {
        void* raw = mmap(nullptr, (kBlocks + 1) * kBytes, PROT_READ | PROT_WRITE,
                         MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
        if (raw == MAP_FAILED) return;
        const auto at = reinterpret_cast<std::uintptr_t>(raw);
        begin_ = reinterpret_cast<char*>((at + kBytes - 1) & ~(kBytes - 1));
#ifdef MADV_HUGEPAGE
        madvise(begin_, kBlocks * kBytes, MADV_HUGEPAGE);
#endif
    }

    void* take() {
        {
            std::lock_guard<std::mutex> lock(mutex_);
            char* block = nullptr;
            if (!warm_.empty()) {
                block = warm_.back();
                warm_.pop_back();
            } else if (warmed_ > next_) {
                block = begin_ + next_++ * kBytes;  // faulted in ahead, or being
            } else if (!cold_.empty()) {
                block = cold_.back();
                cold_.pop_back();
                ++resident_;
            } else if (begin_ && next_ < kBlocks) {
                block = begin_ + next_++ * kBytes;
                ++resident_;
            }
            if (block) {
                if (warming_ && wanted()) wake_.notify_one();
                return block;
            }
        }
        void* block = nullptr;
        if (posix_memalign(&block, kBytes, kBytes) != 0) throw std::bad_alloc();
        return block;
    }
    void give(void* block) {
        if (!inRegion(block)) {
            std::free(block);
            return;
        }
        std::lock_guard<std::mutex> lock(mutex_);
        warm_.push_back(static_cast<char*>(block));
    }

    // A window that may ask for records of up to `blocks` opens; the first
    // starts the thread that faults blocks in.
    void ask(size_t blocks) {
        std::lock_guard<std::mutex> lock(mutex_);
        asks_.insert(std::clamp(blocks, size_t(1), kMostAsked));
#ifdef MADV_POPULATE_WRITE
        if (!warming_ && begin_) {
            warming_ = true;
            std::thread([this] { warm(); }).detach();
        }
        wake_.notify_one();
#endif
    }
    // That window closes: free blocks beyond what the open ones ask for
    // go back to the system.
    void unask(size_t blocks) {
        std::lock_guard<std::mutex> lock(mutex_);
        const auto it = asks_.find(std::clamp(blocks, size_t(1), kMostAsked));
        if (it != asks_.end()) asks_.erase(it);
        // Blocks faulted in ahead that no record has taken are free too,
        // but for the last, which the warmer may be faulting in right now.
        const size_t settled = faulting_ ? warmed_ - 1 : warmed_;
        for (; next_ < settled; ++next_) warm_.push_back(begin_ + next_ * kBytes);
        const size_t inUse = resident_ - ready();
        const size_t keep = std::max(asked(), inUse + (asked() > 0 ? kAhead : 0));
        while (resident_ > keep && !warm_.empty()) {
            char* block = warm_.back();
            warm_.pop_back();
            madvise(block, kBytes, MADV_DONTNEED);
            cold_.push_back(block);
            --resident_;
        }
    }

private:
    bool inRegion(const void* block) const {
        return begin_ && block >= begin_ && block < begin_ + kBlocks * kBytes;
    }
    // Call these with the lock.
    size_t asked() const { return asks_.empty() ? 0 : *asks_.rbegin(); }
    // Faulted-in blocks that no record holds.
    size_t ready() const { return warm_.size() + (warmed_ > next_ ? warmed_ - next_ : 0); }
    bool wanted() const {
        const bool more = !cold_.empty() || std::max(warmed_, next_) < kBlocks;
        return more && asked() > 0 && (resident_ < asked() || ready() < kAhead);
    }

    void warm() {
#ifdef MADV_POPULATE_WRITE
        std::unique_lock<std::mutex> lock(mutex_);
        for (;;) {
            wake_.wait(lock, [this] { return wanted(); });
            ++resident_;
            if (!cold_.empty()) {
                // Out of every list while it is faulted in: no record gets it meanwhile.
                char* block = cold_.back();
                cold_.pop_back();
                lock.unlock();
                madvise(block, kBytes, MADV_POPULATE_WRITE);
                lock.lock();
                warm_.push_back(block);
            } else {
                // A record may take this one while it is faulted in: the
                // kernel fills in page tables without touching what the
                // record writes.
                const size_t i = std::max(warmed_, next_);
                warmed_ = i + 1;
                faulting_ = begin_ + i * kBytes;
                lock.unlock();
                madvise(faulting_, kBytes, MADV_POPULATE_WRITE);
                lock.lock();
                faulting_ = nullptr;
            }
        }
#endif
    }

    std::mutex mutex_;
    std::condition_variable wake_;
    char* begin_ = nullptr;
    std::vector<char*> warm_;  // given back, faulted in
    std::vector<char*> cold_;  // given back to the system
    size_t next_ = 0;          // blocks [0, next_) of the region have been handed out at least once
    size_t warmed_ = 0;        // blocks [0, warmed_) have been faulted in ahead, or are being
    size_t resident_ = 0;      // blocks of the region faulted in, or being, and not given back
    char* faulting_ = nullptr;  // block warmed_ - 1 while the warmer faults it in
    std::multiset<size_t> asks_;
    bool warming_ = false;
};

BlockPool& pool() {
    static BlockPool* p = new BlockPool;  // outlives every record, also at exit
    return *p;
}

} // namespace

namespace {
size_t blocksFor(size_t ops) { return (ops + CanvasSlice::kPerBlock - 1) / CanvasSlice::kPerBlock; }
} // namespace

void CanvasRecord::prepareMemory(size_t ops) { pool().ask(blocksFor(ops)); }

void CanvasRecord::releaseMemory(size_t ops) { pool().unask(blocksFor(ops)); }

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
