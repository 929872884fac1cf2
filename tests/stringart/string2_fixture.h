#pragma once
// A shown frmString2 driven through the guard, as the window drives it.

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "stringart/frm_string2.h"
#include "support/test_app.h"

namespace gp::string2test {

using Seg = std::array<float, 5>;  // x1, y1, x2, y2, colour
using Pts = std::vector<std::pair<int, int>>;

class String2Test : public ::testing::Test {
protected:
    explicit String2Test(Single printerW = 11520, Single printerH = 15120) : t(printerW, printerH) {}
    void SetUp() override { f = &t.show<FrmString2>("frmString2"); t.clear(); }
    void click(double x, double y) {
        EventArgs a;
        a.button = 1;
        a.x = Single(x);
        a.y = Single(y);
        t.fire(*f, kFormEvents, Event::MouseDown, a);
    }
    void press(const std::string& control) { t.fire(*f, control, Event::Click); }
    void print(const char* scaled, const char* colours) {  // the two questions' answers
        t.clear();
        t.answer(scaled);
        t.answer(colours);
        press("cmdPrintIt");
    }
    void type(const std::string& box, const std::string& text) { t.edit(*f, box, text); }
    void tick(int v) { static_cast<CheckBox*>(f->find("chkColorIt"))->setValue(v); }
    void setPos(int x, int y) { type("txtX", std::to_string(x)); type("txtY", std::to_string(y)); press("lblSetPos"); }
    void chain(const Pts& pts) {  // Clear It, then typed points
        press("Command1");
        for (auto [x, y] : pts) setPos(x, y);
    }
    Pts points(int from, int to) const {
        Pts out;
        for (int i = from; i <= to; ++i) out.push_back({f->pointX(i), f->pointY(i)});
        return out;
    }
    std::vector<Seg> segs(const std::string& surface = "frmString2") const {
        std::vector<Seg> out;
        for (const Stroke& s : t.lines(surface)) out.push_back({s.x1, s.y1, s.x2, s.y2, float(s.color)});
        return out;
    }
    std::vector<test::DialogRecord> boxes() {
        std::vector<test::DialogRecord> out;
        for (const auto& d : t.dialogs())
            if (d.kind == "msgbox") out.push_back(d);
        return out;
    }
    // Title and prompt of the last message box.
    std::string last() { const auto b = boxes(); return b.empty() ? "" : b.back().title + "|" + b.back().prompt; }

    test::TestApp t;
    FrmString2* f = nullptr;
};

} // namespace gp::string2test
