#include "batch_mode.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>

#include "platform/paper.h"
#include "platform/pdf_sheets.h"
#include "platform/print_job.h"
#include "platform/qt_drawing.h"
#include "platform/svg_sheet.h"
#include "shell/script/form_catalog.h"
#include "shell/script/script_file.h"
#include "shell/script/scripted_session.h"
#include "shell/trace_writer.h"

namespace gp {

namespace {

// The trace's file: standard output, a file, or none.
class TraceFile {
public:
    // Returns false with the reason where the file cannot be made.
    bool open(const std::string& path, std::string& error) {
        path_ = path;
        if (path.empty()) return true;
        if (path == "-") {
            file_ = stdout;
            return true;
        }
        file_ = std::fopen(path.c_str(), "wb");
        if (!file_) error = path + ": " + std::strerror(errno);
        return file_ != nullptr;
    }
    std::FILE* file() const { return file_; }
    // Flushes and closes it; the reason where anything written was lost
    // (`firstError`: the error number of the first write that failed).
    std::string close(int firstError) {
        if (!file_) return "";
        errno = 0;
        bool ok = std::fflush(file_) == 0 && !std::ferror(file_) && !firstError;
        int code = firstError ? firstError : errno;
        if (file_ != stdout) {
            if (std::fclose(file_) != 0 && ok) ok = false, code = errno;
        }
        file_ = nullptr;
        if (ok) return "";
        const std::string name = path_ == "-" ? "standard output" : path_;
        return name + ": " + std::strerror(code ? code : EIO);
    }

private:
    std::string path_;
    std::FILE* file_ = nullptr;
};

void warn(const std::string& file, const std::string& message) {
    std::fprintf(stderr, "%s: warning: %s\n", file.c_str(), message.c_str());
}

} // namespace

int runBatch(const CommandLine& options, const Program& program) {
    SessionSettings settings;
    settings.printerWidth = static_cast<Single>(options.printerWidth);
    settings.printerHeight = static_cast<Single>(options.printerHeight);
    settings.seeded = options.seeded;
    settings.seed = static_cast<std::uint32_t>(options.seed);
    SheetPaper sheetPaper;
    std::optional<QPageSize> namedPaper;
    if (!options.paper.empty()) {
        const std::optional<QPageSize> paper = paperNamed(options.paper);
        if (!paper) {
            std::fprintf(stderr, "gridpages: unknown paper %s (letter, legal, a3, a4, a5 or system)\n",
                         options.paper.c_str());
            return 2;
        }
        // The sheet is the paper itself; the pages draw inside its margins.
        const PrintableArea area = printableInside(*paper);
        const TwipsSize size = paperTwips(*paper);
        settings.printerWidth = static_cast<Single>(area.width);
        settings.printerHeight = static_cast<Single>(area.height);
        sheetPaper = SheetPaper{true, size.width, size.height};
        namedPaper = paper;
    }
    std::optional<PrintTarget> printTarget;
    if (!options.printQueue.empty()) {
        const QString queue = installedQueue(QString::fromStdString(options.printQueue));
        if (queue.isEmpty()) {
            if (options.printQueue == "default")
                std::fprintf(stderr, "gridpages: --print default: this computer has no default printer\n");
            else
                std::fprintf(stderr, "gridpages: --print %s: there is no such printer (lpstat -p lists them)\n",
                             options.printQueue.c_str());
            return 2;
        }
        // A named paper keeps its quarter inch on the printer too, so the
        // sheet lies on it as it does in the PDF.
        printTarget = PrintTarget{queue, namedPaper, options.copies, namedPaper ? 360.0 : 0.0};
        if (!options.printerGiven && !namedPaper) {
            // The pages draw on what the printer prints on, as in the window.
            if (const std::optional<TwipsSize> area = queuePrintableArea(*printTarget)) {
                settings.printerWidth = static_cast<Single>(area->width);
                settings.printerHeight = static_cast<Single>(area->height);
            }
        }
    }

    const std::string scriptName = options.script == "-" ? "<stdin>" : options.script;
    std::vector<std::string> lines;
    std::string error;
    if (!readScript(options.script, lines, error)) {
        std::fprintf(stderr, "%s: cannot read the script: %s\n", scriptName.c_str(), error.c_str());
        return 2;
    }
    TraceFile traceFile;
    if (!traceFile.open(options.trace, error)) {
        std::fprintf(stderr, "gridpages: cannot write the trace: %s\n", error.c_str());
        return 1;
    }

    int status = 0;
    int traceWriteError = 0;
    std::vector<std::string> failures;
    std::vector<std::string> warnings;
    {
        TraceWriter trace(traceFile.file());
        QtTextMeasurer measurer;
        ScriptedSession session(program, trace, &measurer, settings);
        std::unique_ptr<PdfSheetSink> pdf;
        if (!options.pdfDir.empty()) {
            pdf = std::make_unique<PdfSheetSink>(options.pdfDir, sheetPaper);
            session.addSheetSink(*pdf);
        }
        std::unique_ptr<SvgSheetSink> svg;
        if (!options.svgDir.empty()) {
            svg = std::make_unique<SvgSheetSink>(options.svgDir, sheetPaper);
            session.addSheetSink(*svg);
        }
        std::unique_ptr<PrintJobSink> printJob;
        if (printTarget) {
            FormSet& forms = session.forms();
            printJob = std::make_unique<PrintJobSink>(*printTarget, [&forms] {
                const Form* form = forms.activeForm();
                return form ? form->sheetName() : std::string();
            });
            session.addSheetSink(*printJob);
        }
        try {
            session.start();
            session.run(lines);
        } catch (const ScriptError& e) {
            trace.flush();
            std::fprintf(stderr, "%s:%d: %s\n", scriptName.c_str(), e.line, e.reason.c_str());
            status = 2;
        }
        failures = session.outputFailures();
        if (status == 0) warnings = session.answerWarnings();
        trace.flush();
        traceWriteError = trace.writeError();
    }
    const std::string traceError = traceFile.close(traceWriteError);
    if (!traceError.empty()) failures.push_back(traceError);
    for (const std::string& w : warnings) warn(scriptName, w);
    for (const std::string& f : failures) std::fprintf(stderr, "gridpages: not written: %s\n", f.c_str());
    if (status == 0 && !failures.empty()) status = 1;
    return status;
}

int printFormList(const Program& program) {
    for (const FormEntry& e : gp::listForms(program)) {
        const std::string caption = "\"" + e.caption + "\"";
        std::printf("%-16s %-36s %s\n", e.name.c_str(), caption.c_str(),
                    e.openedBy.empty() ? "(the start-up form)" : e.openedBy.c_str());
    }
    return 0;
}

int printFormDescription(const Program& program, const std::string& form) {
    const auto text = gp::describeForm(program, form);
    if (!text) {
        std::fprintf(stderr, "gridpages: there is no form %s (gridpages --list names them)\n", form.c_str());
        return 2;
    }
    std::fputs(text->c_str(), stdout);
    return 0;
}

} // namespace gp
