#pragma once
// Batch mode: replays a script of clicks, typing and dialog answers against
// the real forms, with no screen and no printer, writing the trace and the
// printed sheets. Its command line, script language and trace are a fixed
// interface read by other tools.

#include <deque>
#include <memory>
#include <string>
#include <vector>

#include "platform/pdf_sheets.h"
#include "platform/qt_drawing.h"
#include "shell/trace_writer.h"
#include "shell/form_set.h"
#include "shell/page.h"
#include "shell/program.h"

namespace gp {

struct BatchOptions {
    std::string script;       // "-" for standard input
    std::string trace;        // "" for none, "-" for standard output
    std::string pdfDir;       // "" for none
    int printerWidth = 11520;
    int printerHeight = 15120;
    bool seeded = false;
    unsigned long seed = 0;
};

// Parses the command line after the program name. Returns false with a
// reason when it cannot be understood; `batch` is false when there is no
// --script (the windowed session).
bool parseBatchOptions(const std::vector<std::string>& args, BatchOptions& options, bool& batch,
                       std::string& error);

struct ScriptError {
    int line;
    std::string reason;
};

class BatchRunner : public Dialogs, public FormHost, public ControlObserver, public Clock, public OutputFailures {
public:
    BatchRunner(const BatchOptions& options, std::FILE* traceOut);
    ~BatchRunner() override;

    // Runs the whole script; returns the exit status (0, or 2 after writing
    // the reason for a bad line to `err`).
    int run(const std::vector<std::string>& lines, const std::string& fileName,
            const Program& program, std::FILE* err);

    // Line by line, for programs that time single commands: start() puts
    // the menu on show, execute() runs one script line (throwing
    // ScriptError for a bad one).
    void start(const Program& program);
    void execute(const std::string& line);
    const TraceWriter& trace() const { return trace_; }
    QString lastSheet() const { return pdf_ ? pdf_->lastFile() : QString(); }

    // Dialogs
    int MsgBox(const std::string& prompt, int buttons, const std::string& title) override;
    std::string InputBox(const std::string& prompt, const std::string& title, const std::string& defaultText,
                         std::optional<int> x, std::optional<int> y) override;
    void showFault(const std::string& message) override;
    void formMissing(const std::string& formName) override;

    // FormHost
    void formLoaded(Form& form) override;
    void formShown(Form& form, bool modal) override;
    void formHidden(Form& form) override;
    void formUnloading(Form& form) override;
    void runModal(Form& form) override;
    void endProgram() override;

    // ControlObserver
    void controlChanged(Control& control, ControlProperty property) override;

    // OutputFailures
    void outputFailed(const std::string& message) override;

    // Clock: a fixed noon, so that a run repeats.
    Single Timer() const override { return 43200.0f; }

private:
    void runUntil(Form* modal);
    Form& current();
    Control& control(const std::string& name);
    void tick(int count);

    BatchOptions options_;
    TraceWriter trace_;
    QtTextMeasurer measurer_;
    std::unique_ptr<PdfSheetSink> pdf_;
    DrawingSurface printer_;
    RecordingDevice printerTrace_;
    PrinterPages pdfPages_;
    bool outputFailed_ = false;
    RandomSource random_;
    std::unique_ptr<FormSet> app_;
    std::vector<std::unique_ptr<RecordingDevice>> canvasTraces_;
    std::vector<Form*> shown_;  // the forms on show, the one with the input last
    std::deque<std::string> answers_;
    const std::vector<std::string>* lines_ = nullptr;
    size_t next_ = 0;
    int lineNo_ = 0;
    bool ended_ = false;
};

// The entry of batch mode: reads the script and runs it.
int runBatch(const BatchOptions& options, const Program& program);

} // namespace gp
