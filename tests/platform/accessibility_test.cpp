// What a screen reader finds on each form: every input named, each text box
// by the label that stands by it, and a canvas that says what it shows.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QLineEdit>
#include <QtTest/QTest>
#include <functional>

#include "platform/form_view.h"
#include "support/test_app.h"

// Failures show text, not code units.
inline void PrintTo(const QString& s, std::ostream* os) { *os << '"' << s.toStdString() << '"'; }

using namespace gp;
using gp::test::TestApp;

namespace {
const char* const kForms[] = {
    "frmGrids",       "frmTriangle",    "frmSquares",     "frmSquares2",    "frmHexagon",
    "frmParabola",    "frmHalfCube",    "frmRhombiCube",  "frmOneSixthCube", "frmRhombiDodec",
    "frmGreatDodeca", "frmExplodeIt",   "frmStickCurves", "frmString2",
};

bool isInput(QAccessible::Role role) {
    switch (role) {
    case QAccessible::EditableText:
    case QAccessible::PushButton:
    case QAccessible::CheckBox:
    case QAccessible::RadioButton:
    case QAccessible::ComboBox:
    case QAccessible::SpinBox: return true;
    default: return false;
    }
}

void walk(QAccessibleInterface* node, const std::function<void(QAccessibleInterface*)>& visit) {
    if (!node) return;
    visit(node);
    for (int i = 0; i < node->childCount(); ++i) walk(node->child(i), visit);
}

// Every text box of the window, by its accessible name, in tab order.
QStringList boxNames(FormView& view) {
    QStringList names;
    walk(QAccessible::queryAccessibleInterface(&view), [&](QAccessibleInterface* n) {
        if (n->role() == QAccessible::EditableText) names << n->text(QAccessible::Name);
    });
    return names;
}

QLineEdit* boxNamed(FormView& view, const QString& name) {
    for (QLineEdit* e : view.findChildren<QLineEdit*>())
        if (e->accessibleName() == name) return e;
    return nullptr;
}

struct OpenForm {
    TestApp t;
    Form* form;
    std::unique_ptr<FormView> view;
    explicit OpenForm(const std::string& name) {
        t.answer("500");  // Explode It asks for its interval
        form = &t.show(name);
        view = std::make_unique<FormView>(t.app(), *form);
        view->show();
    }
    ~OpenForm() { view->detach(); }
};
} // namespace

TEST(Accessibility, NoFormHasAnUnnamedInput) {
    for (const char* name : kForms) {
        SCOPED_TRACE(name);
        OpenForm f(name);
        int inputs = 0;
        QStringList unnamed;
        walk(QAccessible::queryAccessibleInterface(f.view.get()), [&](QAccessibleInterface* n) {
            if (!isInput(n->role()) || n->state().invisible) return;
            ++inputs;
            if (n->text(QAccessible::Name).trimmed().isEmpty())
                unnamed << QString("role %1 at %2,%3").arg(int(n->role())).arg(n->rect().x()).arg(n->rect().y());
        });
        EXPECT_GT(inputs, 0);
        EXPECT_TRUE(unnamed.isEmpty()) << unnamed.join("; ").toStdString();
        // Names are told apart: two boxes called alike would be one to a listener.
        const QStringList boxes = boxNames(*f.view);
        EXPECT_EQ(boxes.size(), QSet<QString>(boxes.begin(), boxes.end()).size()) << boxes.join("|").toStdString();
        // The canvas says what it shows.
        QAccessibleInterface* canvas = QAccessible::queryAccessibleInterface(f.view->clientArea());
        ASSERT_NE(canvas, nullptr);
        EXPECT_FALSE(canvas->text(QAccessible::Description).isEmpty());
    }
}

TEST(Accessibility, TextBoxesAreCalledByTheirLabels) {
    {
        OpenForm f("frmTriangle");
        EXPECT_EQ(boxNames(*f.view), QStringList({"Length (inches)", "Angle (degrees)", "Thickness (points)"}));
    }
    {
        // Beside its own label, not the one further left on the same row.
        OpenForm f("frmHexagon");
        EXPECT_EQ(boxNames(*f.view), QStringList({"Length (inches)", "Thickness (points)", "Scaling Factor"}));
    }
    {
        OpenForm f("frmStickCurves");  // "Angle =" and "Distance=" read without their signs
        EXPECT_EQ(boxNames(*f.view), QStringList({"Angle", "Distance"}));
    }
    {
        OpenForm f("frmString2");  // one label above, one label over two boxes
        EXPECT_EQ(boxNames(*f.view),
                  QStringList({"Number of tics on each line", "Set Position X", "Set Position Y"}));
    }
    {
        // Start, End and Steps are headed from above, though the point table's
        // heading stands on the same row further left.
        OpenForm f("frmExplodeIt");
        const QStringList names = boxNames(*f.view);
        ASSERT_EQ(names.size(), 29);
        EXPECT_EQ(names[0], "x of point 1");
        EXPECT_EQ(names[10], "x of point 11");
        EXPECT_EQ(names[21], "y of point 11");
        EXPECT_EQ(names.mid(22, 3), QStringList({"Start", "End", "Steps"}));
        EXPECT_EQ(names[28], "Multiplier, row 2, column 2");
    }
    {
        OpenForm f("frmHalfCube");
        EXPECT_EQ(boxNames(*f.view), QStringList({"Side Length : (inches)"}));
    }
}

TEST(Accessibility, ATemplatePreviewIsDescribedWithItsSideAsTyped) {
    OpenForm f("frmHalfCube");
    QAccessibleInterface* canvas = QAccessible::queryAccessibleInterface(f.view->clientArea());
    auto description = [&] { return canvas->text(QAccessible::Description); };
    EXPECT_EQ(description(), "Preview of the half cube template, 1 inch sides");
    QLineEdit* side = boxNamed(*f.view, "Side Length : (inches)");
    ASSERT_NE(side, nullptr);
    side->setFocus();
    side->selectAll();
    QTest::keyClicks(side, "2.5");
    EXPECT_EQ(description(), "Preview of the half cube template, 2.5 inch sides");
    // Out of range the preview is cleared, and the description says so.
    side->selectAll();
    QTest::keyClicks(side, "4");
    EXPECT_EQ(description(), "Preview of the half cube template, empty: the side length is out of range");
    // Code that writes the box is followed too.
    static_cast<TextBox*>(f.form->find("txtLeng"))->setText("1.5");
    EXPECT_EQ(description(), "Preview of the half cube template, 1.5 inch sides");

    OpenForm pyramid("frmOneSixthCube");
    EXPECT_EQ(QAccessible::queryAccessibleInterface(pyramid.view->clientArea())->text(QAccessible::Description),
              "Preview of the one-sixth cube pyramid template, 1 inch sides");
}
