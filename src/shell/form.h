#pragma once
// A form: a design table, the control objects built from it, a canvas, and
// the event handlers that its subclass registers under the event's name
// (cmdPrintIt_Click, txtLeng_Change, Form_Activate ...).

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "shell/controls.h"
#include "shell/drawing_surface.h"
#include "shell/form_design.h"
#include "shell/form_events.h"
#include "shell/platform.h"

namespace gp {

class FormSet;
class RandomSource;

struct EventArgs {
    int index = -1;      // the element of a control array
    int button = 0;      // 1 left, 2 right, 4 middle
    int shift = 0;
    Single x = 0, y = 0; // in the canvas's units
    int keyCode = 0;
};

// The name under which form-level events are registered.
inline const std::string kFormEvents = "Form";

class Form {
public:
    Form(FormSet& app, FormDesign design);
    virtual ~Form();
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;

    const std::string& name() const { return design_.name; }
    const FormDesign& design() const { return design_; }

    DrawingSurface& Me() { return canvas_; }
    DrawingSurface& Printer();

    Control* find(const std::string& name, int index = -1) const;
    // The form's timer, where it has one: what a script's tick fires.
    TimerControl* formTimer() const;
    const std::vector<std::unique_ptr<Control>>& controls() const { return controls_; }

    using Handler = std::function<void(const EventArgs&)>;
    // Binds control_event (every element of a control array at once). A
    // control the design does not have, or an event its kind is never
    // sent, throws std::logic_error naming the form, control and event.
    void on(const std::string& control, Event event, Handler handler);
    bool handles(const std::string& control, Event event) const;
    // Runs the handler now, inside whatever handler is running: what code
    // that changes a Text or calls cmdExit_Click does. Events from outside
    // go through FormSet::dispatch, which guards them.
    void raise(const std::string& control, Event event, const EventArgs& args = {});

    // The window lifecycle, as handlers call it.
    void Hide();
    void UnloadMe();
    void End();

    // Dialogs and the random sequence, as handlers call them.
    int MsgBox(const std::string& prompt, int buttons, const std::string& title);
    std::string InputBox(const std::string& prompt, const std::string& title,
                         const std::string& defaultText);
    std::string InputBox(const std::string& prompt, const std::string& title,
                         const std::string& defaultText, int x, int y);
    Single Rnd();
    void RandomizeTimer();
    Single Timer() const;
    // Charges one unit of work to the running handler: loops whose end
    // depends on typed values call it, so that no value can hang the form.
    void work(std::uint64_t amount = 1);

    FormSet& app() const { return app_; }

    // What a sheet printed from this form is called where it is saved or
    // queued: "Half Cube 2 in - 1.pdf", a job named "Triangles 1 in". The
    // caption unless the form knows a better name.
    virtual std::string sheetName() const;
    // What the form's canvas shows, told to a screen reader: "Preview of
    // the half cube template, 1 inch sides". The caption unless the form
    // can say more.
    virtual std::string canvasDescription() const;

    bool visible() const { return visible_; }
    bool unloaded() const { return unloaded_; }

    void setObserver(ControlObserver* observer) { observer_ = observer; }
    ControlObserver* observer() const { return observer_; }

protected:
    TextBox& textBox(const std::string& name, int index = -1) const;
    Label& label(const std::string& name, int index = -1) const;
    CheckBox& checkBox(const std::string& name) const;
    OptionButton& option(const std::string& name) const;
    TimerControl& timer(const std::string& name) const;

private:
    friend class FormSet;
    template <typename T>
    T& typed(const std::string& name, int index) const;

    FormSet& app_;
    FormDesign design_;
    DrawingSurface canvas_;
    std::vector<std::unique_ptr<Control>> controls_;
    std::map<std::pair<std::string, Event>, Handler> handlers_;
    ControlObserver* observer_ = nullptr;
    bool visible_ = false;
    bool unloaded_ = false;
};

} // namespace gp
