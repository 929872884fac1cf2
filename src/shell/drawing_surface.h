#pragma once
// DrawingSurface: the one drawing vocabulary of every page, preview and
// animation. It keeps the state (current point, style, width, font,
// orientation, scale) and hands each finished stroke to its devices: a form's
// canvas image, the printer, a PDF file, the trace recorder. Page code sees
// only this class, so it runs the same with or without a screen.

#include <string>
#include <vector>

#include "shell/numbers.h"
#include "shell/work_meter.h"

namespace gp {

struct FontSpec {
    std::string name = "Arial";
    double size = 8.25;  // points
    bool bold = false;
    bool italic = false;
};

constexpr long kForeground = -1;  // a stroke that takes the surface's foreground

struct Stroke {
    Single x1, y1, x2, y2;
    int style;   // DrawStyle: 0 solid, 1 dash
    int width;   // DrawWidth
    long color;  // RGB value, or kForeground
};

struct TextSize {
    Single width;
    Single height;
};

// What a device makes of the calls. Coordinates are in the surface's own
// units (twips, or the form's scale); the device maps them to its dots.
class SurfaceDevice {
public:
    virtual ~SurfaceDevice() = default;
    virtual void line(const Stroke& s) = 0;
    virtual void pset(Single x, Single y, int width, long color) = 0;
    virtual void print(Single x, Single y, const std::string& text, const FontSpec& font) = 0;
    virtual void cls() {}
    virtual void endDoc() {}
    virtual void orientation(int /*value*/) {}
    // A fault stopped the handler mid-page: throw the begun page away.
    virtual void abortPage() {}
};

// Measures text for TextWidth, TextHeight and the line advance of Print.
class TextMeasurer {
public:
    virtual ~TextMeasurer() = default;
    virtual TextSize measure(const std::string& text, const FontSpec& font) const = 0;
};

class DrawingSurface {
public:
    enum class Kind { Printer, Canvas };

    DrawingSurface(Kind kind, std::string name, Single scaleWidth, Single scaleHeight);

    const std::string& name() const { return name_; }
    Kind kind() const { return kind_; }

    // Devices are not owned; they must outlive their attachment.
    void attach(SurfaceDevice* device);
    void detach(SurfaceDevice* device);
    void setTextMeasurer(const TextMeasurer* measurer) { measurer_ = measurer; }
    void setWorkMeter(WorkMeter* meter) { meter_ = meter; }

    // The drawable area in the surface's units. On the Printer the portrait
    // size is given and Orientation 2 exchanges the two.
    void setScale(Single width, Single height);
    Single ScaleWidth() const;
    Single ScaleHeight() const;

    Single CurrentX = 0;
    Single CurrentY = 0;

    // The five forms of Line. Coordinates arrive as Doubles and are rounded
    // to Singles here, as passing them to the surface does. Inline: a dense
    // preview makes a million of these calls in one keystroke.
    void Line(Double x1, Double y1, Double x2, Double y2) {  // (x1,y1)-(x2,y2)
        emitLine(CSng(x1), CSng(y1), CSng(x2), CSng(y2), kForeground);
    }
    void Line(Double x1, Double y1, Double x2, Double y2, long colour) {  // ..., colour
        emitLine(CSng(x1), CSng(y1), CSng(x2), CSng(y2), colour);
    }
    void LineTo(Double x2, Double y2) {  // -(x2,y2)
        emitLine(CurrentX, CurrentY, CSng(x2), CSng(y2), kForeground);
    }
    void LineStep(Double x1, Double y1, Double dx, Double dy) {  // (x1,y1)-Step(dx,dy)
        const Single sx = CSng(x1), sy = CSng(y1);
        stepFrom(sx, sy, dx, dy);
    }
    void LineStep(Double dx, Double dy) { stepFrom(CurrentX, CurrentY, dx, dy); }  // -Step(dx,dy)

    void PSet(Double x, Double y);
    void Cls();
    void EndDoc();
    void abortPage();

    // Print a; b; ...: items written with no gap, numbers as Str gives them
    // with one blank behind.
    template <typename... Items>
    void Print(const Items&... items) {
        std::string text;
        (appendItem(text, items), ...);
        printText(text);
    }

    Single TextWidth(const std::string& s) const;
    Single TextHeight(const std::string& s) const;

    void setDrawStyle(Integer style) { drawStyle_ = style; }
    void setDrawWidth(Integer width) { drawWidth_ = width; }
    int DrawStyle() const { return drawStyle_; }
    int DrawWidth() const { return drawWidth_; }

    void setOrientation(Integer value);
    int Orientation() const { return orientation_; }

    void setFontName(const std::string& name) { font_.name = name; }
    void setFontSize(Single size) { font_.size = size; }
    void setFont(const FontSpec& font) { font_ = font; }
    const FontSpec& font() const { return font_; }

private:
    // The end of a Step is worked out in single precision from the
    // (rounded) start.
    void stepFrom(Single sx, Single sy, Double dx, Double dy) {
        emitLine(sx, sy, CSng(static_cast<Double>(sx + CSng(dx))), CSng(static_cast<Double>(sy + CSng(dy))),
                 kForeground);
    }
    void emitLine(Single x1, Single y1, Single x2, Single y2, long colour) {
        charge();
        const Stroke s{x1, y1, x2, y2, drawStyle_, drawWidth_, colour};
        for (SurfaceDevice* d : devices_) d->line(s);
        CurrentX = x2;
        CurrentY = y2;
    }
    void printText(const std::string& text);
    void charge() {
        if (meter_) meter_->tick();
    }

    static void appendItem(std::string& out, const std::string& s) { out += s; }
    static void appendItem(std::string& out, const char* s) { out += s; }
    static void appendItem(std::string& out, Integer n) { out += Str(n) + " "; }
    static void appendItem(std::string& out, Long n) { out += Str(n) + " "; }
    static void appendItem(std::string& out, int n) { out += Str(n) + " "; }
    static void appendItem(std::string& out, Single n) { out += Str(n) + " "; }
    static void appendItem(std::string& out, Double n) { out += Str(n) + " "; }

    Kind kind_;
    std::string name_;
    Single scaleW_, scaleH_;
    std::vector<SurfaceDevice*> devices_;
    const TextMeasurer* measurer_ = nullptr;
    WorkMeter* meter_ = nullptr;
    int drawStyle_ = 0;
    int drawWidth_ = 1;
    int orientation_ = 1;
    FontSpec font_;
};

} // namespace gp
