#include "shell/drawing_surface.h"

#include <algorithm>

namespace gp {

DrawingSurface::DrawingSurface(Kind kind, std::string name, Single scaleWidth, Single scaleHeight)
    : kind_(kind), name_(std::move(name)), scaleW_(scaleWidth), scaleH_(scaleHeight) {}

void DrawingSurface::attach(SurfaceDevice* device) {
    if (std::find(devices_.begin(), devices_.end(), device) == devices_.end())
        devices_.push_back(device);
}

void DrawingSurface::detach(SurfaceDevice* device) {
    devices_.erase(std::remove(devices_.begin(), devices_.end(), device), devices_.end());
}

void DrawingSurface::setScale(Single width, Single height) {
    scaleW_ = width;
    scaleH_ = height;
}

Single DrawingSurface::ScaleWidth() const { return orientation_ == 2 ? scaleH_ : scaleW_; }
Single DrawingSurface::ScaleHeight() const { return orientation_ == 2 ? scaleW_ : scaleH_; }

void DrawingSurface::PSet(Double x, Double y) {
    charge();
    const Single sx = CSng(x), sy = CSng(y);
    for (SurfaceDevice* d : devices_) d->pset(sx, sy, drawWidth_, kForeground);
    CurrentX = sx;
    CurrentY = sy;
}

void DrawingSurface::Cls() {
    charge();
    for (SurfaceDevice* d : devices_) d->cls();
    CurrentX = 0;
    CurrentY = 0;
}

void DrawingSurface::EndDoc() {
    for (SurfaceDevice* d : devices_) d->endDoc();
    CurrentX = 0;
    CurrentY = 0;
}

void DrawingSurface::abortPage() {
    for (SurfaceDevice* d : devices_) d->abortPage();
    CurrentX = 0;
    CurrentY = 0;
}

void DrawingSurface::setOrientation(Integer value) {
    orientation_ = value;
    for (SurfaceDevice* d : devices_) d->orientation(orientation_);
}

void DrawingSurface::printText(const std::string& text) {
    charge();
    for (SurfaceDevice* d : devices_) d->print(CurrentX, CurrentY, text, font_);
    // The current point goes to the left edge of the next line.
    CurrentY = CurrentY + TextHeight(text);
    CurrentX = 0;
}

TextSize fallbackMeasure(const std::string& text, const FontSpec& font);

Single DrawingSurface::TextWidth(const std::string& s) const {
    return measurer_ ? measurer_->measure(s, font_).width : fallbackMeasure(s, font_).width;
}

Single DrawingSurface::TextHeight(const std::string& s) const {
    return measurer_ ? measurer_->measure(s, font_).height : fallbackMeasure(s, font_).height;
}

// Without a font engine (unit tests, pure logic) an average glyph is half an
// em wide and a line is 1.15 em high.
TextSize fallbackMeasure(const std::string& text, const FontSpec& font) {
    const Single em = static_cast<Single>(font.size * 20.0);
    return {static_cast<Single>(0.5f * em * static_cast<Single>(text.size())), 1.15f * em};
}

} // namespace gp
