#pragma once
// The program with no window: the forms of a Program driven by script
// commands, dialogs answered from a queue, forms shown without windows, a
// fixed clock, every surface told to a SessionLog and every printed sheet
// handed to the sinks the caller gives. Batch mode, the tests and the
// benchmarks all run the forms through this one host.

#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "shell/form_set.h"
#include "shell/page.h"
#include "shell/program.h"
#include "shell/random.h"
#include "shell/session_log.h"

namespace gp {

// A script line that cannot be understood: nothing more is run after it.
struct ScriptError {
    int line;
    std::string reason;
};

struct SessionSettings {
    // The printable area of the Printer in twips, portrait.
    Single printerWidth = 11520;
    Single printerHeight = 15120;
    bool seeded = false;
    std::uint32_t seed = 0;
};

class ScriptedSession : public Dialogs, public FormHost, public ControlObserver, public Clock,
                        public OutputFailures {
public:
    ScriptedSession(const Program& program, SessionLog& log, const TextMeasurer* measurer,
                    const SessionSettings& settings = {});
    ~ScriptedSession() override;
    ScriptedSession(const ScriptedSession&) = delete;
    ScriptedSession& operator=(const ScriptedSession&) = delete;

    // Every printed sheet goes to each sink, at its EndDoc.
    void addSheetSink(PageSink& sink) { pages_.addSink(sink); }
    // Called with every form as it loads, after the session's own devices
    // are attached: a caller's extra devices go here.
    void onFormLoaded(std::function<void(Form&)> hook) { formLoadedHook_ = std::move(hook); }
    // Called with every form as it unloads, before it is gone: a window a
    // caller keeps of it lets go of it here, as the windowed host does.
    void onFormUnloading(std::function<void(Form&)> hook) { formUnloadingHook_ = std::move(hook); }

    // Shows the program's start-up form.
    void start();
    // Runs the lines in order, from the first, until their end or the end of
    // the program. Throws ScriptError for a line that cannot be understood.
    void run(const std::vector<std::string>& lines);
    // Runs one command now, with no lines left to answer a modal Show.
    void execute(const std::string& line);

    // What the commands do, for the command table and for callers that
    // drive the forms directly.
    Form& current();
    Control& control(const std::string& word);
    void dispatch(Control& control, Event event, EventArgs args = {});
    void dispatchToForm(Event event, const EventArgs& args);
    void edit(TextBox& box, const std::string& text);
    void type(TextBox& box, const std::string& text);
    void tick(long count);
    void closeCurrent();
    void writeValue(Control& control);
    void queueAnswer(const std::string& answer, int line);
    void setPrinterArea(Single width, Single height) { printer_.setScale(width, height); }
    void reseed(std::uint32_t seed) { random_.seed(seed); }
    [[noreturn]] void refuse(const std::string& reason) const;

    FormSet& forms() { return *forms_; }
    DrawingSurface& printer() { return printer_; }
    SessionLog& log() { return log_; }
    bool ended() const { return ended_; }
    int lineNumber() const { return lineNo_; }
    // Sheets that could not be written, and answers that no dialog took or
    // that a dialog of another kind took: what the caller reports.
    const std::vector<std::string>& outputFailures() const { return outputFailures_; }
    std::vector<std::string> answerWarnings() const;

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
    // Clock: a fixed noon, so that a run repeats.
    Single Timer() const override { return 43200.0f; }
    // OutputFailures
    void outputFailed(const std::string& message) override { outputFailures_.push_back(message); }

private:
    struct Answer {
        std::string text;
        int line;
    };
    void runUntil(Form* modal);
    bool takeAnswer(Answer& answer);

    Program program_;
    SessionLog& log_;
    const TextMeasurer* measurer_;
    DrawingSurface printer_;
    SurfaceLog printerLog_;
    PrinterPages pages_;
    RandomSource random_;
    std::unique_ptr<FormSet> forms_;
    std::vector<std::unique_ptr<SurfaceLog>> canvasLogs_;
    std::function<void(Form&)> formLoadedHook_;
    std::function<void(Form&)> formUnloadingHook_;
    std::vector<Form*> shown_;  // the forms on show, the one with the input last
    std::deque<Answer> answers_;
    std::vector<std::string> misfits_;  // answers a dialog could not take
    std::vector<std::string> outputFailures_;
    const std::vector<std::string>* lines_ = nullptr;
    size_t next_ = 0;
    int lineNo_ = 0;
    bool ended_ = false;
};

} // namespace gp
