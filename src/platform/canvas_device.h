#pragma once
// A form's canvas on screen: an image that keeps every mark until Cls, as
// the forms expect (none of them repaints). Coordinates arrive in the
// canvas's units and are mapped to the image's pixels.

#include <QImage>
#include <QPainter>

#include "shell/drawing_surface.h"

namespace gp {

class CanvasDevice : public SurfaceDevice {
public:
    // pixelWidth/Height: the client area in device pixels; units: the
    // canvas's ScaleWidth and ScaleHeight.
    CanvasDevice(int pixelWidth, int pixelHeight, Single unitsWide, Single unitsHigh, long backColor,
                 double devicePixelRatio);
    ~CanvasDevice() override;

    void line(const Stroke& s) override;
    void pset(Single x, Single y, int width, long color) override;
    void print(Single x, Single y, const std::string& text, const FontSpec& font) override;
    void cls() override;

    // Ends painting so the image can be shown.
    const QImage& image();
    // Whether the window's last paint showed every op drawn so far.
    bool screenUpToDate() const { return !dirty_; }

private:
    QPainter& painter();

    QImage image_;
    QPainter painter_;
    double sx_, sy_, dpr_;
    QColor back_;
    bool dirty_ = false;
};

} // namespace gp
