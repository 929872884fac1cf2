#include "shell/script/script_commands.h"

#include "shell/script/script_line.h"
#include "shell/script/scripted_session.h"

namespace gp {

namespace {

template <typename T>
T& controlOfKind(ScriptedSession& s, const std::string& name, const char* kind) {
    auto* c = dynamic_cast<T*>(&s.control(name));
    if (!c) s.refuse(name + " is not " + kind);
    return *c;
}

void printer(ScriptedSession& s, const ScriptLine& l) {
    l.expectWords(2);
    s.setPrinterArea(static_cast<Single>(l.whole(l.words()[0], 1, 1000000)),
                     static_cast<Single>(l.whole(l.words()[1], 1, 1000000)));
}

void seed(ScriptedSession& s, const ScriptLine& l) {
    l.expectWords(1);
    s.reseed(static_cast<std::uint32_t>(l.whole(l.words()[0], -4294967296LL, 4294967295LL)));
}

void click(ScriptedSession& s, const ScriptLine& l) {
    l.expectWords(1);
    Control& c = s.control(l.words()[0]);
    if (c.kind() == ControlKind::Menu) s.refuse(l.words()[0] + " is a menu entry: use menu");
    s.dispatch(c, Event::Click);
}

void menu(ScriptedSession& s, const ScriptLine& l) {
    l.expectWords(1);
    Control& c = s.control(l.words()[0]);
    if (c.kind() != ControlKind::Menu) s.refuse(l.words()[0] + " is not a menu entry");
    s.dispatch(c, Event::Click);
}

TextBox& textBoxNamed(ScriptedSession& s, const ScriptLine& l, std::string& value) {
    std::string name;
    value = l.valueAfterName(name);
    if (name.empty()) s.refuse(l.command() + " needs a control name");
    return controlOfKind<TextBox>(s, name, "a text box");
}

void text(ScriptedSession& s, const ScriptLine& l) {
    std::string value;
    TextBox& box = textBoxNamed(s, l, value);
    s.edit(box, value);
}

void type(ScriptedSession& s, const ScriptLine& l) {
    std::string value;
    TextBox& box = textBoxNamed(s, l, value);
    s.type(box, value);
}

void check(ScriptedSession& s, const ScriptLine& l) {
    l.expectWords(2);
    auto& box = controlOfKind<CheckBox>(s, l.words()[0], "a check box");
    box.setValue(static_cast<int>(l.whole(l.words()[1], 0, 1)));
}

void option(ScriptedSession& s, const ScriptLine& l) {
    l.expectWords(1);
    controlOfKind<OptionButton>(s, l.words()[0], "an option button").select();
}

void blur(ScriptedSession& s, const ScriptLine& l) {
    l.expectWords(1);
    s.dispatch(controlOfKind<TextBox>(s, l.words()[0], "a text box"), Event::LostFocus);
}

void mousedown(ScriptedSession& s, const ScriptLine& l) {
    const auto& w = l.words();
    if (w.size() != 3 && w.size() != 4) s.refuse("mousedown takes X Y B or NAME X Y B");
    const size_t at = w.size() - 3;
    EventArgs a;
    Control* c = at == 1 ? &s.control(w[0]) : nullptr;
    a.x = l.coordinate(w[at]);
    a.y = l.coordinate(w[at + 1]);
    a.button = static_cast<int>(l.whole(w[at + 2], 0, 7));
    if (c) s.dispatch(*c, Event::MouseDown, a);
    else s.dispatchToForm(Event::MouseDown, a);
}

void mousemove(ScriptedSession& s, const ScriptLine& l) {
    l.expectWords(2);
    EventArgs a;
    a.x = l.coordinate(l.words()[0]);
    a.y = l.coordinate(l.words()[1]);
    s.dispatchToForm(Event::MouseMove, a);
}

void key(ScriptedSession& s, const ScriptLine& l) {
    l.expectWords(1);
    EventArgs a;
    a.keyCode = static_cast<int>(l.whole(l.words()[0], 0, 65535));
    s.dispatchToForm(Event::KeyDown, a);
}

void tick(ScriptedSession& s, const ScriptLine& l) {
    if (l.words().size() > 1) s.refuse("tick takes at most one number");
    s.tick(l.words().empty() ? 1 : l.whole(l.words()[0], 0, 10000000));
}

void answer(ScriptedSession& s, const ScriptLine& l) { s.queueAnswer(l.rest(), s.lineNumber()); }

void close(ScriptedSession& s, const ScriptLine& l) {
    l.expectWords(0);
    s.closeCurrent();
}

void value(ScriptedSession& s, const ScriptLine& l) {
    l.expectWords(1);
    s.writeValue(s.control(l.words()[0]));
}

const ScriptCommand kCommands[] = {
    {"printer", printer}, {"seed", seed},           {"click", click},         {"menu", menu},
    {"text", text},       {"type", type},           {"check", check},         {"option", option},
    {"blur", blur},       {"mousedown", mousedown}, {"mousemove", mousemove}, {"key", key},
    {"tick", tick},       {"answer", answer},       {"close", close},         {"value", value},
};

} // namespace

const ScriptCommand* findScriptCommand(const std::string& name) {
    for (const ScriptCommand& c : kCommands)
        if (name == c.name) return &c;
    return nullptr;
}

} // namespace gp
