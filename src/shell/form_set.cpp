#include "shell/form_set.h"

#include <new>
#include <stdexcept>

namespace gp {

FormSet::FormSet(Dialogs& dialogs, FormHost& host, DrawingSurface& printer, RandomSource& random,
                 const Clock& clock)
    : dialogs_(dialogs), host_(host), printer_(printer), random_(random), clock_(clock) {
    printer_.setWorkMeter(&meter_);
}

FormSet::~FormSet() {
    for (auto& [name, form] : instances_) host_.formUnloading(*form);
}

void FormSet::registerForm(const std::string& name, Factory factory) {
    factories_[name] = std::move(factory);
}

std::vector<std::string> FormSet::formNames() const {
    std::vector<std::string> out;
    for (const auto& [name, factory] : factories_) out.push_back(name);
    return out;
}

Form* FormSet::loaded(const std::string& name) const {
    auto it = instances_.find(name);
    return it == instances_.end() ? nullptr : it->second.get();
}

std::vector<Form*> FormSet::loadedForms() const {
    std::vector<Form*> out;
    for (const auto& [name, form] : instances_) out.push_back(form.get());
    return out;
}

Form& FormSet::load(const std::string& name) {
    if (Form* f = loaded(name)) return *f;
    std::unique_ptr<Form> form = factories_.at(name)(*this);
    Form& ref = *form;
    instances_[name] = std::move(form);
    host_.formLoaded(ref);
    dispatch(ref, kFormEvents, Event::Load);
    return ref;
}

Form& FormSet::start(const std::string& name) {
    startName_ = name;
    Form& f = load(name);
    f.visible_ = true;
    host_.formShown(f, false);
    dispatch(f, kFormEvents, Event::Activate);
    return f;
}

void FormSet::Show1(const std::string& name) {
    if (ended_) return;
    if (!knows(name)) {
        dialogs_.formMissing(name);
        return;
    }
    Form& f = load(name);
    if (f.unloaded_ || f.visible_) return;
    f.visible_ = true;
    host_.formShown(f, true);
    dispatch(f, kFormEvents, Event::Activate);
    if (f.visible_ && !f.unloaded_ && !ended_) host_.runModal(f);
    collectUnloaded();
}

void FormSet::hide(Form& form) {
    if (!form.visible_) return;
    form.visible_ = false;
    host_.formHidden(form);
}

void FormSet::unload(Form& form) {
    if (form.unloaded_) return;
    form.raise(kFormEvents, Event::QueryUnload);
    hide(form);
    if (form.unloaded_) return;  // the query handler unloaded it already
    form.unloaded_ = true;
    host_.formUnloading(form);
    auto it = instances_.find(form.name());
    if (it != instances_.end() && it->second.get() == &form) {
        unloadedForms_.push_back(std::move(it->second));
        instances_.erase(it);
    }
    if (depth_ == 0) collectUnloaded();
}

void FormSet::closeByFrame(Form& form) {
    if (ended_ || form.unloaded_) return;
    const bool startForm = form.name() == startName_;
    guarded(form, [&] { unload(form); });
    // Closing the menu leaves nothing to choose from: the program ends.
    if (startForm) end();
}

void FormSet::end() {
    if (ended_) return;
    ended_ = true;
    host_.endProgram();
}

void FormSet::dispatch(Form& form, const std::string& control, Event event, const EventArgs& args) {
    guarded(form, [&] { form.raise(control, event, args); });
}

void FormSet::guarded(Form& form, const std::function<void()>& work) {
    if (ended_ || form.unloaded_) return;
    // A nested event (inside a modal Show) has its own budget; the waiting
    // handler gets its own back afterwards.
    const std::uint64_t outerWork = meter_.used();
    meter_.reset();
    struct Depth {
        int& d;
        Form*& active;
        Form* outer;
        Depth(int& depth, Form*& a, Form& f) : d(depth), active(a), outer(a) {
            ++d;
            active = &f;
        }
        ~Depth() {
            --d;
            active = outer;
        }
    };
    {
    Depth level(depth_, active_, form);
    try {
        work();
    } catch (const Fault& fault) {
        printer_.abortPage();
        dialogs_.showFault(fault.what());
    } catch (const std::bad_alloc&) {
        printer_.abortPage();
        dialogs_.showFault("There is not enough memory to draw this. Please try other values.");
    } catch (const std::exception& e) {
        // A fault of the program itself: the user still keeps the form.
        printer_.abortPage();
        dialogs_.showFault(std::string("This could not be done: ") + e.what());
    }
    }
    meter_.restore(outerWork);
    if (depth_ == 0) collectUnloaded();
}

void FormSet::collectUnloaded() {
    if (depth_ == 0) unloadedForms_.clear();
}

} // namespace gp
