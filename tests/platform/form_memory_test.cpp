// A window that repaints at every tick of its timer, for hours: each paint
// of its coloured controls must reuse what the style drew before, not add
// to it.
#include <gtest/gtest.h>

#include <malloc.h>

#include <QPushButton>

#include "platform/form_view.h"
#include "support/test_app.h"

using namespace gp;
using gp::test::TestApp;

namespace {
double heapInUseMb() { return static_cast<double>(mallinfo2().uordblks) / (1024.0 * 1024.0); }
} // namespace

TEST(FormMemory, RepaintingColouredButtonsKeepsTheHeapFlat) {
    TestApp t;
    t.answer("1");
    Form& f = t.show("frmExplodeIt");
    FormView view(t.app(), f);
    view.show();
    // Begin, Quit, New Graph and Plot Points have colours of their own.
    int coloured = 0;
    for (QPushButton* b : view.findChildren<QPushButton*>())
        coloured += b->palette().color(QPalette::Button) != view.palette().color(QPalette::Button);
    EXPECT_EQ(coloured, 4);
    for (int i = 0; i < 50; ++i) view.grab();  // the style's first pictures and caches
    const double before = heapInUseMb();
    // As many frames as a run at a 1 ms interval paints in half a second;
    // each used to leave a new picture of every coloured button behind.
    for (int i = 0; i < 500; ++i) view.grab();
    EXPECT_LT(heapInUseMb() - before, 1.0);
    view.detach();
}
