// The widgets of a form view, one for each row of the design table, and its
// menu bar.
#include <QAction>
#include <QButtonGroup>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPalette>
#include <QPushButton>
#include <QRadioButton>

#include "platform/accessible_names.h"
#include "platform/focus_ring.h"
#include "platform/wrap_button.h"
#include "platform/form_view.h"
#include "platform/qt_drawing.h"
#include "shell/form_set.h"

namespace gp {

namespace {
bool hasColour(long colour) { return colour != kDefaultColor && colour != kTransparent; }

QColor colourOf(long colour) { return colour == kSystem3DHighlight ? QColor(255, 255, 255) : toQColor(colour); }

// A control's colours go into its palette, once. A style sheet looks the
// same, but it hands the style a newly made palette at every paint, and the
// style files its pixmap of a button under the palette's key: every repaint
// of a coloured button added an entry to the pixmap cache, and a form that
// repaints at every tick of its timer grew by megabytes a minute.
void setColours(QWidget* w, const ControlDesign& d) {
    if (!hasColour(d.backColor) && !hasColour(d.foreColor)) return;
    QPalette p = w->palette();
    if (hasColour(d.backColor)) {
        const QColor back = colourOf(d.backColor);
        for (QPalette::ColorRole role : {QPalette::Button, QPalette::Window, QPalette::Base}) p.setColor(role, back);
        // A button paints its own face; the others fill their rectangle.
        if (d.kind != ControlKind::Button) w->setAutoFillBackground(true);
    }
    if (hasColour(d.foreColor)) {
        const QColor fore = colourOf(d.foreColor);
        for (QPalette::ColorRole role : {QPalette::ButtonText, QPalette::WindowText, QPalette::Text})
            p.setColor(role, fore);
    }
    w->setPalette(p);
}
} // namespace

QWidget* FormView::buildControl(const ControlDesign& d, Control& c, QWidget* parent) {
    QWidget* w = nullptr;
    switch (d.kind) {
    case ControlKind::TextBox: {
        auto* e = new QLineEdit(qs(static_cast<TextBox&>(c).Text()), parent);
        connect(e, &QLineEdit::textEdited, this, [this, &c](const QString& t) {
            app_.guarded(form_, [&] { static_cast<TextBox&>(c).userEdit(t.toStdString()); });
            refreshCanvas();
        });
        e->setAccessibleName(accessibleNameOf(form_.design(), d));
        e->installEventFilter(this);
        w = e;
        break;
    }
    case ControlKind::Button: {
        auto* b = new WrapButton(qs(d.caption), parent);
        b->setAutoDefault(false);
        connect(b, &QPushButton::clicked, this, [this, &c] {
            EventArgs a;
            a.index = c.index();
            dispatch(c.name(), Event::Click, a);
        });
        w = b;
        break;
    }
    case ControlKind::Label: {
        auto* l = new QLabel(qs(d.caption), parent);
        l->setWordWrap(true);
        l->setAlignment(Qt::AlignLeft | Qt::AlignTop);
        l->setTextFormat(Qt::PlainText);
        l->installEventFilter(this);
        w = l;
        break;
    }
    case ControlKind::CheckBox: {
        auto* b = new RingedBox<QCheckBox>(qs(d.caption), parent);
        b->setChecked(d.value != 0);
        connect(b, &QCheckBox::clicked, this, [this, &c](bool on) {
            static_cast<CheckBox&>(c).setValue(on ? 1 : 0);
            dispatch(c.name(), Event::Click);
        });
        w = b;
        break;
    }
    case ControlKind::Option: {
        auto* b = new RingedBox<QRadioButton>(qs(d.caption), parent);
        b->setChecked(d.value != 0);
        connect(b, &QRadioButton::clicked, this, [this, &c] {
            static_cast<OptionButton&>(c).select();
            dispatch(c.name(), Event::Click);
        });
        w = b;
        break;
    }
    case ControlKind::Frame: {
        auto* g = new QGroupBox(qs(d.caption), parent);
        w = g;
        break;
    }
    default: return nullptr;
    }
    w->setGeometry(QRect(toPixels(d.left, d.top), QSize(pixelsOf(d.width), pixelsOf(d.height))));
    if (d.font) w->setFont(toQFont(*d.font));
    if (d.kind == ControlKind::CheckBox || d.kind == ControlKind::Option)
        w->setFont(boxCaptionFont(*static_cast<QAbstractButton*>(w), d.kind == ControlKind::Option));
    setColours(w, d);
    if (!d.toolTip.empty()) w->setToolTip(qs(d.toolTip));
    w->setVisible(d.visible);
    return w;
}

void FormView::buildMenus() {
    QHash<QString, QMenu*> menus;
    for (const auto& c : form_.controls()) {
        const ControlDesign& d = c->design();
        if (d.kind != ControlKind::Menu) continue;
        if (!menuBar_) menuBar_ = new QMenuBar(this);
        Control* ctl = c.get();
        if (d.container.empty()) {
            // A top-level entry with no entries under it is clicked directly.
            bool hasChildren = false;
            for (const auto& o : form_.controls())
                if (o->kind() == ControlKind::Menu && o->design().container == d.name) hasChildren = true;
            if (hasChildren) {
                menus[qs(d.name)] = menuBar_->addMenu(qs(d.caption));
            } else {
                QAction* a = menuBar_->addAction(qs(d.caption));
                connect(a, &QAction::triggered, this, [this, ctl] { dispatch(ctl->name(), Event::Click); });
            }
            continue;
        }
        QMenu* parent = menus.value(qs(d.container));
        if (!parent) continue;
        if (d.separator) {
            parent->addSeparator();
            continue;
        }
        QAction* a = parent->addAction(qs(d.caption));
        connect(a, &QAction::triggered, this, [this, ctl] { dispatch(ctl->name(), Event::Click); });
    }
}

} // namespace gp
