#pragma once
// The trace of a batch run: one JSON object a line, in the order things
// happened. The format is read by other tools, so the keys, their order and
// the number format stay exactly as they are.

#include <cstdio>
#include <string>

#include "shell/drawing_surface.h"
#include "shell/session_log.h"

namespace gp {

class TraceWriter : public SessionLog {
public:
    // Writes to `out` (not owned); nullptr writes nothing.
    explicit TraceWriter(std::FILE* out);
    ~TraceWriter() override;

    bool enabled() const { return out_ != nullptr; }
    // Drawing calls written so far (lines, dots, texts).
    long strokes() const { return strokes_; }

    void line(const std::string& surface, const Stroke& s) override;
    void pset(const std::string& surface, Single x, Single y, int width, long color) override;
    void print(const std::string& surface, Single x, Single y, const std::string& text,
               const FontSpec& font) override;
    void cls(const std::string& surface) override;
    void enddoc(const std::string& surface) override;
    void orientation(const std::string& surface, int value) override;
    void msgbox(const std::string& title, const std::string& prompt, int buttons, int answer) override;
    void inputbox(const std::string& title, const std::string& prompt,
                  const std::string& defaultText, const std::string& answer) override;
    void valueText(const std::string& control, const std::string& value) override;
    void valueNumber(const std::string& control, long value) override;
    void valueBool(const std::string& control, bool value) override;
    void valueTimer(const std::string& control, bool enabled, int interval) override;
    void visible(const std::string& control, bool value) override;
    void error(const std::string& message) override;
    void flush();
    // The error number of the first write that failed, or 0. The stream
    // keeps only a flag, so a full disk would otherwise be told as a bare
    // input/output error.
    int writeError() const { return writeError_; }

    // The shortest decimal that reads back to the same Single.
    static void appendNumber(std::string& out, Single v);
    static void appendString(std::string& out, const std::string& s);

private:
    void writeOut();
    void begin(const std::string& surface, const char* op);
    void beginOp(const char* op);
    void key(const char* name);
    void num(const char* name, Single v);
    void integer(const char* name, long v);
    void str(const char* name, const std::string& v);
    void end();

    std::FILE* out_;
    std::string buf_;
    std::string surface_, surfaceStart_;  // the last surface, and how its lines start
    long strokes_ = 0;
    int writeError_ = 0;
};

} // namespace gp
