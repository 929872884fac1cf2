#pragma once
// What a scripted session tells, in the order it happens: every drawing call
// on every surface, every dialog with its answer, every value asked for,
// every change of a control's visibility and every fault. The trace writes
// it as JSON lines; the tests keep it to look at; a benchmark ignores it.
// Each call does nothing unless a log overrides it.

#include <string>

#include "shell/drawing_surface.h"

namespace gp {

class SessionLog {
public:
    virtual ~SessionLog() = default;

    // A log that ignores every drawing call says so, and no surface tells
    // it any: a dense preview makes a million of them in one keystroke.
    virtual bool wantsDrawing() const { return true; }

    virtual void line(const std::string& /*surface*/, const Stroke& /*s*/) {}
    virtual void pset(const std::string& /*surface*/, Single /*x*/, Single /*y*/, int /*width*/, long /*color*/) {}
    virtual void print(const std::string& /*surface*/, Single /*x*/, Single /*y*/, const std::string& /*text*/,
                       const FontSpec& /*font*/) {}
    virtual void cls(const std::string& /*surface*/) {}
    virtual void enddoc(const std::string& /*surface*/) {}
    virtual void orientation(const std::string& /*surface*/, int /*value*/) {}
    virtual void msgbox(const std::string& /*title*/, const std::string& /*prompt*/, int /*buttons*/,
                        int /*answer*/) {}
    virtual void inputbox(const std::string& /*title*/, const std::string& /*prompt*/,
                          const std::string& /*defaultText*/, const std::string& /*answer*/) {}
    virtual void valueText(const std::string& /*control*/, const std::string& /*value*/) {}
    virtual void valueNumber(const std::string& /*control*/, long /*value*/) {}
    virtual void valueBool(const std::string& /*control*/, bool /*value*/) {}
    virtual void valueTimer(const std::string& /*control*/, bool /*enabled*/, int /*interval*/) {}
    virtual void visible(const std::string& /*control*/, bool /*value*/) {}
    virtual void error(const std::string& /*message*/) {}
};

// A device that tells the log every call made to one surface.
class SurfaceLog : public SurfaceDevice {
public:
    SurfaceLog(SessionLog& log, std::string surfaceName) : log_(log), name_(std::move(surfaceName)) {}
    void line(const Stroke& s) override { log_.line(name_, s); }
    void pset(Single x, Single y, int width, long color) override { log_.pset(name_, x, y, width, color); }
    void print(Single x, Single y, const std::string& text, const FontSpec& font) override {
        log_.print(name_, x, y, text, font);
    }
    void cls() override { log_.cls(name_); }
    void endDoc() override { log_.enddoc(name_); }
    void orientation(int value) override { log_.orientation(name_, value); }

private:
    SessionLog& log_;
    std::string name_;
};

} // namespace gp
