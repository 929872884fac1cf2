#include "platform/canvas_device.h"

#include "platform/qt_drawing.h"

namespace gp {

namespace {
QImage blankImage(QSize pixels, double dpr, const QColor& back) {
    QImage image(pixels, QImage::Format_RGB32);
    image.setDevicePixelRatio(dpr);
    image.fill(back);
    return image;
}
} // namespace

CanvasDevice::CanvasDevice(int pixelWidth, int pixelHeight, Single unitsWide, Single unitsHigh,
                           long backColor, double devicePixelRatio, size_t mostOps)
    : pixels_(std::max(1, pixelWidth), std::max(1, pixelHeight)),
      scale_{pixelWidth / static_cast<double>(unitsWide), pixelHeight / static_cast<double>(unitsHigh),
             devicePixelRatio},
      back_(toQColor(backColor)),
      record_(std::make_shared<CanvasRecord>()),
      mostOps_(mostOps),
      worker_([this](QImage image, RasterWorker::Target target) { workerDone(std::move(image), target); }) {
    shown_.image = blankImage(pixels_, scale_.dpr, back_);
    CanvasRecord::prepareMemory(mostOps);
}

CanvasDevice::~CanvasDevice() {
    worker_.stop();
    record_.reset();
    CanvasRecord::releaseMemory(mostOps_);
}

void CanvasDevice::line(const Stroke& s) { record_->addLine(s); }

void CanvasDevice::pset(Single x, Single y, int width, long color) { record_->addDot(x, y, width, color); }

void CanvasDevice::print(Single x, Single y, const std::string& text, const FontSpec& font) {
    record_->addText(x, y, text, font);
}

void CanvasDevice::cls() {
    // A worker still painting the old record keeps it alive; its image
    // would never show, so it stops now and gives the record's blocks
    // back for the new one.
    worker_.cancel();
    record_ = std::make_shared<CanvasRecord>();
    ++generation_;
}

void CanvasDevice::paintHere() {
    if (shown_.generation != generation_) {
        shown_.image.fill(back_);
        shown_.generation = generation_;
        shown_.count = 0;
    }
    const size_t n = record_->size();
    if (shown_.count < n) paintSlice(shown_.image, scale_, record_->slice(shown_.count, n));
    opsPainted_ += n - shown_.count;
    shown_.count = n;
}

const QImage& CanvasDevice::image() {
    if (!shownIsLatest()) {
        worker_.stop();
        paintHere();
    }
    return shown_.image;
}

const QImage& CanvasDevice::imageForPaint() {
    if (!shownIsLatest()) {
        const bool fresh = shown_.generation != generation_;
        const size_t pending = record_->size() - (fresh ? 0 : shown_.count);
        if (worker_.busy() && worker_.target().generation == generation_) {
            // Working on this record already: the ops after its end go next.
        } else if (pending <= kPaintNow) {
            worker_.stop();
            paintHere();
        } else {
            startWorker();
        }
    }
    onScreen_ = {shown_.generation, shown_.count};
    return shown_.image;
}

bool CanvasDevice::screenUpToDate() const {
    return onScreen_.generation == generation_ && onScreen_.count == record_->size();
}

void CanvasDevice::startWorker() {
    const bool fresh = shown_.generation != generation_;
    const size_t from = fresh ? 0 : shown_.count, to = record_->size();
    // The worker paints on its own copy: the image on show stays as it is.
    QImage base = fresh ? QImage() : shown_.image;
    worker_.start(
        [base = std::move(base), slice = record_->slice(from, to), scale = scale_, pixels = pixels_,
         back = back_](const std::atomic<bool>& stop) mutable -> std::optional<QImage> {
            QImage image = base.isNull() ? blankImage(pixels, scale.dpr, back) : std::move(base);
            if (!paintSlice(image, scale, slice, &stop)) return std::nullopt;
            return image;
        },
        {generation_, to});
}

void CanvasDevice::workerDone(QImage image, RasterWorker::Target target) {
    // An image of a record since cleared is of no use any more.
    if (target.generation == generation_) {
        opsPainted_ += target.count - (shown_.generation == target.generation ? shown_.count : 0);
        shown_.image = std::move(image);
        shown_.generation = target.generation;
        shown_.count = target.count;
    }
    if (ready_) ready_();
}

} // namespace gp
