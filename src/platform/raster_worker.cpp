#include "platform/raster_worker.h"

namespace gp {

RasterWorker::RasterWorker(Done done) : done_(std::move(done)), context_(std::make_unique<QObject>()) {}

RasterWorker::~RasterWorker() {
    stop();
    // Deleting the context drops an image still queued for it.
    context_.reset();
}

void RasterWorker::start(Job job, Target target) {
    stop();
    busy_ = true;
    target_ = target;
    const std::uint64_t serial = ++serial_;
    auto stopFlag = std::make_shared<std::atomic<bool>>(false);
    stop_ = stopFlag;
    QObject* context = context_.get();
    thread_ = std::thread([this, serial, stopFlag, context, job = std::move(job)] {
        std::optional<QImage> image = job(*stopFlag);
        if (!image) return;
        QMetaObject::invokeMethod(
            context, [this, serial, img = std::move(*image)]() mutable { arrived(serial, std::move(img)); },
            Qt::QueuedConnection);
    });
}

void RasterWorker::stop() {
    if (stop_) stop_->store(true);
    if (thread_.joinable()) thread_.join();
    stop_.reset();
    ++serial_;  // an image already queued is no longer wanted
    busy_ = false;
}

void RasterWorker::arrived(std::uint64_t serial, QImage image) {
    if (serial != serial_) return;
    if (thread_.joinable()) thread_.join();  // it has posted its image and is ending
    stop_.reset();
    busy_ = false;
    done_(std::move(image), target_);
}

} // namespace gp
