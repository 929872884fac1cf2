#pragma once
// Paints a canvas image off the event loop: one job at a time on a thread
// of its own, with its own QImage, handed back on the thread that started
// it once whole. A job that is no longer wanted is stopped and never shows.

#include <QImage>
#include <QObject>
#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <thread>

namespace gp {

class RasterWorker {
public:
    // Which state of the canvas a job paints: the Cls it follows and how
    // many ops since.
    struct Target {
        std::uint64_t generation = 0;
        size_t count = 0;
    };
    // Paints and returns the image, or nothing when told to stop.
    using Job = std::function<std::optional<QImage>(const std::atomic<bool>& stop)>;
    using Done = std::function<void(QImage image, Target target)>;

    explicit RasterWorker(Done done);
    ~RasterWorker();
    RasterWorker(const RasterWorker&) = delete;
    RasterWorker& operator=(const RasterWorker&) = delete;

    // A job is running, or its image is on its way back.
    bool busy() const { return busy_; }
    const Target& target() const { return target_; }
    // Stops the job running now, if any, and starts `job`.
    void start(Job job, Target target);
    // Stops the running job and waits for its thread; its image is dropped.
    void stop();
    // Tells the running job to stop, without waiting: what it holds (a
    // record of a million ops) is let go within a fraction of a
    // millisecond, on its own thread. A later start or stop still waits.
    void cancel() {
        if (stop_) stop_->store(true);
    }

private:
    void arrived(std::uint64_t serial, QImage image);

    Done done_;
    std::unique_ptr<QObject> context_;  // lives on the starting thread
    std::thread thread_;
    std::shared_ptr<std::atomic<bool>> stop_;
    std::uint64_t serial_ = 0;
    bool busy_ = false;
    Target target_;
};

} // namespace gp
