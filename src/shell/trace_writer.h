#pragma once
// The trace of a batch run: one JSON object a line, in the order things
// happened. The format is read by other tools, so the keys, their order and
// the number format stay exactly as they are.

#include <cstdio>
#include <string>

#include "shell/drawing_surface.h"

namespace gp {

class TraceWriter {
public:
    // Writes to `out` (not owned); nullptr writes nothing.
    explicit TraceWriter(std::FILE* out);
    ~TraceWriter();

    bool enabled() const { return out_ != nullptr; }
    // Drawing calls written so far (lines, dots, texts).
    long strokes() const { return strokes_; }

    void line(const std::string& surface, const Stroke& s);
    void pset(const std::string& surface, Single x, Single y, int width, long color);
    void print(const std::string& surface, Single x, Single y, const std::string& text,
               const FontSpec& font);
    void cls(const std::string& surface);
    void enddoc(const std::string& surface);
    void orientation(const std::string& surface, int value);
    void msgbox(const std::string& title, const std::string& prompt, int buttons, int answer);
    void inputbox(const std::string& title, const std::string& prompt,
                  const std::string& defaultText, const std::string& answer);
    void valueText(const std::string& control, const std::string& value);
    void valueNumber(const std::string& control, long value);
    void valueBool(const std::string& control, bool value);
    void valueTimer(const std::string& control, bool enabled, int interval);
    void visible(const std::string& control, bool value);
    void error(const std::string& message);
    void flush();

    // The shortest decimal that reads back to the same Single.
    static void appendNumber(std::string& out, Single v);
    static void appendString(std::string& out, const std::string& s);

private:
    void begin(const std::string& surface, const char* op);
    void beginOp(const char* op);
    void key(const char* name);
    void num(const char* name, Single v);
    void integer(const char* name, long v);
    void str(const char* name, const std::string& v);
    void end();

    std::FILE* out_;
    std::string buf_;
    long strokes_ = 0;
};

// A device that writes every call made to one surface into the trace.
class RecordingDevice : public SurfaceDevice {
public:
    RecordingDevice(TraceWriter& trace, std::string surfaceName)
        : trace_(trace), name_(std::move(surfaceName)) {}
    void line(const Stroke& s) override { trace_.line(name_, s); }
    void pset(Single x, Single y, int width, long color) override { trace_.pset(name_, x, y, width, color); }
    void print(Single x, Single y, const std::string& text, const FontSpec& font) override {
        trace_.print(name_, x, y, text, font);
    }
    void cls() override { trace_.cls(name_); }
    void endDoc() override { trace_.enddoc(name_); }
    void orientation(int value) override { trace_.orientation(name_, value); }

private:
    TraceWriter& trace_;
    std::string name_;
};

} // namespace gp
