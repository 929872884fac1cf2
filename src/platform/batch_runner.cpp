#include "platform/batch_runner.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <sstream>

#include "shell/utf8.h"

namespace gp {

namespace {

bool parseWhole(const std::string& s, long long& out) {
    if (s.empty()) return false;
    char* end = nullptr;
    errno = 0;
    out = std::strtoll(s.c_str(), &end, 10);
    return errno == 0 && end && *end == '\0';
}

bool parseDecimal(const std::string& s, double& out) {
    if (s.empty()) return false;
    char* end = nullptr;
    errno = 0;
    out = std::strtod(s.c_str(), &end);
    return errno == 0 && end && *end == '\0' && std::isfinite(out);
}

// The next word of `rest` up to a single blank; `rest` keeps what follows
// that blank.
std::string nextWord(std::string& rest) {
    const size_t blank = rest.find(' ');
    std::string word = rest.substr(0, blank);
    rest = blank == std::string::npos ? std::string() : rest.substr(blank + 1);
    return word;
}

std::vector<std::string> words(const std::string& s) {
    std::vector<std::string> out;
    std::istringstream in(s);
    std::string w;
    while (in >> w) out.push_back(w);
    return out;
}

// Splits UTF-8 text into its characters, so that typing never leaves half a
// character in a box; a byte that is no character is typed on its own.
std::vector<std::string> characters(const std::string& s) {
    std::vector<std::string> out;
    for (size_t i = 0; i < s.size();) {
        const size_t n = std::max<size_t>(1, utf8Length(s, i));
        out.push_back(s.substr(i, n));
        i += n;
    }
    return out;
}

[[noreturn]] void bad(int line, const std::string& reason) { throw ScriptError{line, reason}; }

} // namespace

bool parseBatchOptions(const std::vector<std::string>& args, BatchOptions& o, bool& batch, std::string& error) {
    batch = false;
    for (size_t i = 0; i < args.size(); ++i) {
        const std::string& a = args[i];
        auto need = [&](size_t n) {
            if (i + n >= args.size()) {
                error = a + " needs " + std::to_string(n) + (n == 1 ? " value" : " values");
                return false;
            }
            return true;
        };
        long long w = 0, h = 0;
        if (a == "--script") {
            if (!need(1)) return false;
            o.script = args[++i];
            batch = true;
        } else if (a == "--trace") {
            if (!need(1)) return false;
            o.trace = args[++i];
        } else if (a == "--pdf") {
            if (!need(1)) return false;
            o.pdfDir = args[++i];
        } else if (a == "--printer") {
            if (!need(2)) return false;
            if (!parseWhole(args[i + 1], w) || !parseWhole(args[i + 2], h) || w <= 0 || h <= 0 ||
                w > 1000000 || h > 1000000) {
                error = "--printer takes two whole numbers of twips above 0";
                return false;
            }
            o.printerWidth = static_cast<int>(w);
            o.printerHeight = static_cast<int>(h);
            i += 2;
        } else if (a == "--seed") {
            if (!need(1)) return false;
            if (!parseWhole(args[i + 1], w)) {
                error = "--seed takes a whole number";
                return false;
            }
            o.seeded = true;
            o.seed = static_cast<unsigned long>(w);
            ++i;
        } else {
            error = "unknown option " + a;
            return false;
        }
    }
    if (!batch && (!o.trace.empty() || !o.pdfDir.empty())) {
        error = "--trace and --pdf go with --script";
        return false;
    }
    return true;
}

BatchRunner::BatchRunner(const BatchOptions& options, std::FILE* traceOut)
    : options_(options),
      trace_(traceOut),
      printer_(DrawingSurface::Kind::Printer, "Printer", static_cast<Single>(options.printerWidth),
               static_cast<Single>(options.printerHeight)),
      printerTrace_(trace_, "Printer"),
      pdfPages_(printer_, *this) {
    printer_.attach(&printerTrace_);
    printer_.setTextMeasurer(&measurer_);
    if (!options.pdfDir.empty()) {
        pdf_ = std::make_unique<PdfSheetSink>(QString::fromStdString(options.pdfDir));
        pdfPages_.addSink(*pdf_);
        printer_.attach(&pdfPages_);
    }
    if (options.seeded) random_.seed(static_cast<std::uint32_t>(options.seed));
}

BatchRunner::~BatchRunner() {
    app_.reset();
    trace_.flush();
}

int BatchRunner::run(const std::vector<std::string>& lines, const std::string& fileName,
                     const Program& program, std::FILE* err) {
    lines_ = &lines;
    next_ = 0;
    try {
        start(program);
        runUntil(nullptr);
    } catch (const ScriptError& e) {
        trace_.flush();
        std::fprintf(err, "%s:%d: %s\n", fileName.c_str(), e.line, e.reason.c_str());
        return 2;
    }
    trace_.flush();
    return outputFailed_ ? 1 : 0;
}

void BatchRunner::outputFailed(const std::string& message) {
    outputFailed_ = true;
    std::fprintf(stderr, "gridpages: %s\n", message.c_str());
}

void BatchRunner::start(const Program& program) {
    static const std::vector<std::string> none;
    if (!lines_) lines_ = &none;
    app_ = std::make_unique<FormSet>(*this, *this, printer_, random_, *this);
    program.registerForms(*app_);
    app_->start(program.startForm);
}

void BatchRunner::runUntil(Form* modal) {
    while (!ended_ && next_ < lines_->size()) {
        if (modal && (!modal->visible() || modal->unloaded())) return;
        lineNo_ = static_cast<int>(next_) + 1;
        const std::string line = (*lines_)[next_++];
        execute(line);
    }
}

Form& BatchRunner::current() {
    if (shown_.empty()) bad(lineNo_, "no form is on show");
    return *shown_.back();
}

Control& BatchRunner::control(const std::string& word) {
    std::string name = word;
    int index = -1;
    const size_t open = word.find('(');
    if (open != std::string::npos && word.back() == ')') {
        long long i = 0;
        if (!parseWhole(word.substr(open + 1, word.size() - open - 2), i) || i < 0 || i > 32767)
            bad(lineNo_, "bad control index in " + word);
        name = word.substr(0, open);
        index = static_cast<int>(i);
    }
    Form& f = current();
    Control* c = f.find(name, index);
    if (!c && index < 0) {
        // A bare name of a control array means its first element.
        for (const auto& other : f.controls())
            if (other->name() == name) { c = other.get(); break; }
    }
    if (!c) bad(lineNo_, "there is no control " + word + " on " + f.name());
    return *c;
}

void BatchRunner::execute(const std::string& raw) {
    std::string line = raw;
    if (!line.empty() && line.back() == '\r') line.pop_back();
    const size_t first = line.find_first_not_of(" \t");
    if (first == std::string::npos || line[first] == '#') return;
    std::string rest = line.substr(first);
    const std::string cmd = nextWord(rest);
    const std::vector<std::string> args = words(rest);
    auto expectArgs = [&](size_t n) {
        if (args.size() != n)
            bad(lineNo_, cmd + " takes " + std::to_string(n) + (n == 1 ? " word" : " words"));
    };
    auto whole = [&](const std::string& s, long long lo, long long hi) {
        long long v = 0;
        if (!parseWhole(s, v) || v < lo || v > hi) bad(lineNo_, "\"" + s + "\" is not a whole number here");
        return v;
    };
    auto decimal = [&](const std::string& s) {
        double v = 0;
        if (!parseDecimal(s, v)) bad(lineNo_, "\"" + s + "\" is not a number");
        return v;
    };

    if (cmd == "printer") {
        expectArgs(2);
        printer_.setScale(static_cast<Single>(whole(args[0], 1, 1000000)),
                          static_cast<Single>(whole(args[1], 1, 1000000)));
    } else if (cmd == "seed") {
        expectArgs(1);
        random_.seed(static_cast<std::uint32_t>(whole(args[0], -4294967296LL, 4294967295LL)));
    } else if (cmd == "click" || cmd == "menu") {
        expectArgs(1);
        Control& c = control(args[0]);
        if (cmd == "menu" && c.kind() != ControlKind::Menu) bad(lineNo_, args[0] + " is not a menu entry");
        if (cmd == "click" && c.kind() == ControlKind::Menu) bad(lineNo_, args[0] + " is a menu entry: use menu");
        EventArgs a;
        a.index = c.index();
        app_->dispatch(c.form(), c.name(), Event::Click, a);
    } else if (cmd == "text" || cmd == "type") {
        std::string value = rest;
        const std::string name = nextWord(value);
        if (name.empty()) bad(lineNo_, cmd + " needs a control name");
        auto* box = dynamic_cast<TextBox*>(&control(name));
        if (!box) bad(lineNo_, name + " is not a text box");
        Form& f = box->form();
        if (cmd == "text") {
            app_->guarded(f, [&] { box->userEdit(value); });
        } else {
            if (!box->Text().empty()) app_->guarded(f, [&] { box->userEdit(""); });
            std::string typed;
            for (const std::string& ch : characters(value)) {
                // A handler may unload the form between two keystrokes.
                if (f.unloaded() || ended_) break;
                typed += ch;
                app_->guarded(f, [&] { box->userEdit(typed); });
            }
        }
    } else if (cmd == "check") {
        expectArgs(2);
        auto* box = dynamic_cast<CheckBox*>(&control(args[0]));
        if (!box) bad(lineNo_, args[0] + " is not a check box");
        box->setValue(static_cast<int>(whole(args[1], 0, 1)));
    } else if (cmd == "option") {
        expectArgs(1);
        auto* opt = dynamic_cast<OptionButton*>(&control(args[0]));
        if (!opt) bad(lineNo_, args[0] + " is not an option button");
        opt->select();
    } else if (cmd == "blur") {
        expectArgs(1);
        auto* box = dynamic_cast<TextBox*>(&control(args[0]));
        if (!box) bad(lineNo_, args[0] + " is not a text box");
        EventArgs a;
        a.index = box->index();
        app_->dispatch(box->form(), box->name(), Event::LostFocus, a);
    } else if (cmd == "mousedown") {
        EventArgs a;
        if (args.size() == 3) {
            a.x = static_cast<Single>(decimal(args[0]));
            a.y = static_cast<Single>(decimal(args[1]));
            a.button = static_cast<int>(whole(args[2], 0, 7));
            app_->dispatch(current(), kFormEvents, Event::MouseDown, a);
        } else if (args.size() == 4) {
            Control& c = control(args[0]);
            a.index = c.index();
            a.x = static_cast<Single>(decimal(args[1]));
            a.y = static_cast<Single>(decimal(args[2]));
            a.button = static_cast<int>(whole(args[3], 0, 7));
            app_->dispatch(c.form(), c.name(), Event::MouseDown, a);
        } else {
            bad(lineNo_, "mousedown takes X Y B or NAME X Y B");
        }
    } else if (cmd == "mousemove") {
        expectArgs(2);
        EventArgs a;
        a.x = static_cast<Single>(decimal(args[0]));
        a.y = static_cast<Single>(decimal(args[1]));
        app_->dispatch(current(), kFormEvents, Event::MouseMove, a);
    } else if (cmd == "key") {
        expectArgs(1);
        EventArgs a;
        a.keyCode = static_cast<int>(whole(args[0], 0, 65535));
        app_->dispatch(current(), kFormEvents, Event::KeyDown, a);
    } else if (cmd == "tick") {
        if (args.size() > 1) bad(lineNo_, "tick takes at most one number");
        tick(args.empty() ? 1 : static_cast<int>(whole(args[0], 0, 10000000)));
    } else if (cmd == "answer") {
        answers_.push_back(rest);
    } else if (cmd == "close") {
        expectArgs(0);
        app_->closeByFrame(current());
    } else if (cmd == "value") {
        expectArgs(1);
        Control& c = control(args[0]);
        const std::string name = c.displayName();
        if (auto* t = dynamic_cast<TextBox*>(&c)) trace_.valueText(name, t->Text());
        else if (auto* k = dynamic_cast<CheckBox*>(&c)) trace_.valueNumber(name, k->Value());
        else if (auto* o = dynamic_cast<OptionButton*>(&c)) trace_.valueBool(name, o->Value());
        else if (auto* tm = dynamic_cast<TimerControl*>(&c)) trace_.valueTimer(name, tm->Enabled(), tm->Interval());
        else if (auto* l = dynamic_cast<Label*>(&c)) trace_.valueText(name, l->Caption());
        else bad(lineNo_, args[0] + " has no value");
    } else {
        bad(lineNo_, "unknown command \"" + cmd + "\"");
    }
}

void BatchRunner::tick(int count) {
    for (int i = 0; i < count && !ended_; ++i) {
        // The timer of the form on show, or of a hidden form that still runs.
        TimerControl* timer = nullptr;
        if (!shown_.empty()) timer = shown_.back()->formTimer();
        if (!timer || !timer->Enabled()) {
            timer = nullptr;
            for (Form* f : app_->loadedForms()) {
                TimerControl* t = f->formTimer();
                if (t && t->Enabled()) { timer = t; break; }
            }
        }
        if (!timer || !timer->Enabled() || timer->Interval() <= 0) return;
        app_->dispatch(timer->form(), timer->name(), Event::Timer);
    }
}

int BatchRunner::MsgBox(const std::string& prompt, int buttons, const std::string& title) {
    int answer = (buttons == vbYesNoCancel || buttons == vbYesNo) ? vbYes : vbOK;
    if (!answers_.empty()) {
        long long v = 0;
        const std::string given = answers_.front();
        answers_.pop_front();
        const bool ok = parseWhole(given, v) &&
                        ((buttons == vbYesNoCancel && (v == vbYes || v == vbNo || v == vbCancel)) ||
                         (buttons == vbYesNo && (v == vbYes || v == vbNo)) ||
                         ((buttons == vbOKOnly || buttons == vbCritical) && v == vbOK));
        if (ok) answer = static_cast<int>(v);
    }
    trace_.msgbox(title, prompt, buttons, answer);
    return answer;
}

std::string BatchRunner::InputBox(const std::string& prompt, const std::string& title,
                                  const std::string& defaultText, std::optional<int>, std::optional<int>) {
    std::string answer = defaultText;
    if (!answers_.empty()) {
        answer = answers_.front();
        answers_.pop_front();
    }
    trace_.inputbox(title, prompt, defaultText, answer);
    return answer;
}

void BatchRunner::showFault(const std::string& message) { trace_.error(message); }

void BatchRunner::formMissing(const std::string& formName) {
    trace_.msgbox("gridpages", "This page (" + formName + ") is not part of this version yet.", vbOKOnly, vbOK);
}

void BatchRunner::formLoaded(Form& form) {
    canvasTraces_.push_back(std::make_unique<RecordingDevice>(trace_, form.name()));
    form.Me().attach(canvasTraces_.back().get());
    form.Me().setTextMeasurer(&measurer_);
    form.setObserver(this);
}

void BatchRunner::formShown(Form& form, bool) {
    shown_.erase(std::remove(shown_.begin(), shown_.end(), &form), shown_.end());
    shown_.push_back(&form);
}

void BatchRunner::formHidden(Form& form) {
    shown_.erase(std::remove(shown_.begin(), shown_.end(), &form), shown_.end());
}

void BatchRunner::formUnloading(Form& form) {
    formHidden(form);
    form.setObserver(nullptr);
    // The canvas goes with the form; its recorder is kept, unattached, so
    // nothing dangles while the form's last handler unwinds.
}

void BatchRunner::runModal(Form& form) { runUntil(&form); }

void BatchRunner::endProgram() { ended_ = true; }

void BatchRunner::controlChanged(Control& control, ControlProperty property) {
    if (property == ControlProperty::Visible) trace_.visible(control.displayName(), control.Visible());
}

int runBatch(const BatchOptions& options, const Program& program) {
    std::vector<std::string> lines;
    std::string fileName = options.script == "-" ? "<stdin>" : options.script;
    {
        std::ifstream file;
        std::istream* in = &std::cin;
        if (options.script != "-") {
            file.open(options.script, std::ios::binary);
            if (!file) {
                std::fprintf(stderr, "%s: cannot open the script\n", fileName.c_str());
                return 2;
            }
            in = &file;
        }
        std::string l;
        while (std::getline(*in, l)) lines.push_back(l);
    }
    std::FILE* traceOut = nullptr;
    bool closeTrace = false;
    if (options.trace == "-") {
        traceOut = stdout;
    } else if (!options.trace.empty()) {
        traceOut = std::fopen(options.trace.c_str(), "wb");
        if (!traceOut) {
            std::fprintf(stderr, "%s: cannot write the trace\n", options.trace.c_str());
            return 2;
        }
        closeTrace = true;
    }
    int status;
    {
        BatchRunner runner(options, traceOut);
        status = runner.run(lines, fileName, program, stderr);
    }
    if (closeTrace) std::fclose(traceOut);
    return status;
}

} // namespace gp
