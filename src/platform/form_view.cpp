#include "platform/form_view.h"

#include <QAction>
#include <QButtonGroup>
#include <QCheckBox>
#include <QCloseEvent>
#include <QEventLoop>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>
#include <QVBoxLayout>
#include <QWindow>

#include "platform/canvas_device.h"
#include "platform/qt_drawing.h"
#include "platform/wrap_button.h"
#include "shell/form_set.h"

namespace gp {

namespace {
int px(int twips) { return static_cast<int>(twips / kTwipsPerPixel + 0.5); }

QString colourSheet(const char* property, long colour) {
    if (colour == kDefaultColor) return {};
    if (colour == kTransparent) return QString("%1: transparent;").arg(property);
    const QColor c = colour == kSystem3DHighlight ? QColor(255, 255, 255) : toQColor(colour);
    return QString("%1: %2;").arg(property, c.name());
}

// Qt's key codes to the classic ones that handlers test.
int classicKeyCode(const QKeyEvent* e) {
    const int k = e->key();
    if ((k >= Qt::Key_A && k <= Qt::Key_Z) || (k >= Qt::Key_0 && k <= Qt::Key_9)) return k;
    if (k >= Qt::Key_F1 && k <= Qt::Key_F24) return 112 + (k - Qt::Key_F1);
    switch (k) {
    case Qt::Key_Backspace: return 8;
    case Qt::Key_Tab: return 9;
    case Qt::Key_Return:
    case Qt::Key_Enter: return 13;
    case Qt::Key_Shift: return 16;
    case Qt::Key_Control: return 17;
    case Qt::Key_Alt: return 18;
    case Qt::Key_Escape: return 27;
    case Qt::Key_Space: return 32;
    case Qt::Key_PageUp: return 33;
    case Qt::Key_PageDown: return 34;
    case Qt::Key_End: return 35;
    case Qt::Key_Home: return 36;
    case Qt::Key_Left: return 37;
    case Qt::Key_Up: return 38;
    case Qt::Key_Right: return 39;
    case Qt::Key_Down: return 40;
    case Qt::Key_Insert: return 45;
    case Qt::Key_Delete: return 46;
    default: return k & 0xFFFF;
    }
}

int mouseButton(Qt::MouseButton b) {
    switch (b) {
    case Qt::LeftButton: return 1;
    case Qt::RightButton: return 2;
    case Qt::MiddleButton: return 4;
    default: return 0;
    }
}

int shiftState(Qt::KeyboardModifiers m) {
    return (m & Qt::ShiftModifier ? 1 : 0) | (m & Qt::ControlModifier ? 2 : 0) |
           (m & Qt::AltModifier ? 4 : 0);
}
} // namespace

// The client area: the canvas image, then the shapes and lines that sit on
// it, then the widgets (children) above them.
class FormView::Client : public QWidget {
public:
    Client(FormView& view) : QWidget(&view), view_(view) {
        setMouseTracking(true);
        setFocusPolicy(Qt::ClickFocus);
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter p(this);
        if (view_.canvas_) p.drawImage(QPointF(0, 0), view_.canvas_->image());
        for (const auto& c : view_.form_.controls()) {
            const ControlDesign& d = c->design();
            if (!c->Visible()) continue;
            if (d.kind == ControlKind::Shape) {
                p.setPen(QPen(Qt::black, 1));
                p.setBrush(d.backColor >= 0 ? QBrush(toQColor(d.backColor)) : QBrush(Qt::NoBrush));
                p.drawRect(QRectF(d.left / kTwipsPerPixel, d.top / kTwipsPerPixel,
                                  d.width / kTwipsPerPixel - 1, d.height / kTwipsPerPixel - 1));
            } else if (d.kind == ControlKind::Line) {
                p.setPen(QPen(toQColor(d.foreColor), 1));
                p.drawLine(QPointF(d.left / kTwipsPerPixel, d.top / kTwipsPerPixel),
                           QPointF(d.width / kTwipsPerPixel, d.height / kTwipsPerPixel));
            }
        }
    }
    void mousePressEvent(QMouseEvent* e) override { view_.canvasMouse(e, Event::MouseDown); }
    void mouseMoveEvent(QMouseEvent* e) override { view_.canvasMouse(e, Event::MouseMove); }

private:
    FormView& view_;
};

FormView::FormView(FormSet& app, Form& form) : QDialog(nullptr), app_(app), form_(form) {
    setAttribute(Qt::WA_DeleteOnClose, false);
    setWindowTitle(qs(form.design().caption));
    build();
    form_.setObserver(this);
}

FormView::~FormView() = default;

QPoint FormView::toPixels(int twipsX, int twipsY) const { return QPoint(px(twipsX), px(twipsY)); }

void FormView::build() {
    const FormDesign& fd = form_.design();
    const int w = px(fd.clientWidth), h = px(fd.clientHeight);
    setFont(toQFont(fd.font));
    buildMenus();
    // The menu bar sits above the client area, which keeps its design size;
    // a layout lets the bar lay out its entries across the whole width.
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    if (menuBar_) layout->setMenuBar(menuBar_);
    client_ = new Client(*this);
    client_->setFixedSize(w, h);
    client_->setAutoFillBackground(false);
    layout->addWidget(client_);
    layout->activate();

    const double dpr = devicePixelRatioF() > 0 ? devicePixelRatioF() : 1.0;
    canvas_ = std::make_unique<CanvasDevice>(static_cast<int>(w * dpr), static_cast<int>(h * dpr),
                                             fd.canvasWidth(), fd.canvasHeight(),
                                             fd.backColor == kSystem3DHighlight ? 0xFFFFFF : fd.backColor,
                                             dpr);
    form_.Me().attach(canvas_.get());

    QHash<QString, QWidget*> frames;
    QHash<QString, QButtonGroup*> groups;
    for (const auto& c : form_.controls()) {
        const ControlDesign& d = c->design();
        if (d.kind == ControlKind::Menu || d.kind == ControlKind::Shape || d.kind == ControlKind::Line)
            continue;
        if (d.kind == ControlKind::Timer) {
            auto* t = new QTimer(this);
            t->setTimerType(Qt::PreciseTimer);
            timers_[c.get()] = t;
            Control* ctl = c.get();
            connect(t, &QTimer::timeout, this, [this, ctl] {
                // A tick of a timer switched off meanwhile does nothing.
                auto& tc = static_cast<TimerControl&>(*ctl);
                if (tc.Enabled() && tc.Interval() > 0) dispatch(ctl->name(), Event::Timer);
            });
            syncTimer(static_cast<TimerControl&>(*c));
            continue;
        }
        QWidget* parent = client_;
        if (!d.container.empty() && frames.contains(qs(d.container))) parent = frames[qs(d.container)];
        QWidget* w = buildControl(d, *c, parent);
        if (!w) continue;
        if (d.kind == ControlKind::Frame) frames[qs(d.name)] = w;
        if (d.kind == ControlKind::Option) {
            QButtonGroup*& g = groups[qs(d.container)];
            if (!g) g = new QButtonGroup(this);
            g->addButton(static_cast<QRadioButton*>(w));
        }
        widgets_[c.get()] = w;
        controlOf_[w] = c.get();
    }
}

QWidget* FormView::buildControl(const ControlDesign& d, Control& c, QWidget* parent) {
    QWidget* w = nullptr;
    QString sheet;
    switch (d.kind) {
    case ControlKind::TextBox: {
        auto* e = new QLineEdit(qs(static_cast<TextBox&>(c).Text()), parent);
        connect(e, &QLineEdit::textEdited, this, [this, &c](const QString& t) {
            app_.guarded(form_, [&] { static_cast<TextBox&>(c).userEdit(t.toStdString()); });
            refreshCanvas();
        });
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
        if (d.backColor == kDefaultColor) sheet += "background: transparent;";
        w = l;
        break;
    }
    case ControlKind::CheckBox: {
        auto* b = new QCheckBox(qs(d.caption), parent);
        b->setChecked(d.value != 0);
        connect(b, &QCheckBox::clicked, this, [this, &c](bool on) {
            static_cast<CheckBox&>(c).setValue(on ? 1 : 0);
            dispatch(c.name(), Event::Click);
        });
        w = b;
        break;
    }
    case ControlKind::Option: {
        auto* b = new QRadioButton(qs(d.caption), parent);
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
    w->setGeometry(QRect(toPixels(d.left, d.top), QSize(px(d.width), px(d.height))));
    if (d.font) w->setFont(toQFont(*d.font));
    sheet += colourSheet("background-color", d.backColor == kTransparent ? kDefaultColor : d.backColor);
    sheet += colourSheet("color", d.foreColor);
    if (!sheet.isEmpty()) w->setStyleSheet(sheet);
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

void FormView::dispatch(const std::string& control, Event event, const EventArgs& args) {
    QPointer<FormView> self(this);
    app_.dispatch(form_, control, event, args);
    if (self) refreshCanvas();
}

void FormView::canvasMouse(QMouseEvent* e, Event event) {
    const FormDesign& fd = form_.design();
    EventArgs a;
    a.button = event == Event::MouseDown ? mouseButton(e->button()) : mouseButton(Qt::MouseButton(int(e->buttons())));
    a.shift = shiftState(e->modifiers());
    a.x = static_cast<Single>(e->position().x() * fd.canvasWidth() / client_->width());
    a.y = static_cast<Single>(e->position().y() * fd.canvasHeight() / client_->height());
    dispatch(kFormEvents, event, a);
}

bool FormView::eventFilter(QObject* watched, QEvent* event) {
    Control* c = controlOf_.value(watched);
    if (!c) return QDialog::eventFilter(watched, event);
    if (c->kind() == ControlKind::TextBox && event->type() == QEvent::FocusOut) {
        const auto reason = static_cast<QFocusEvent*>(event)->reason();
        // Focus that goes to a dialog or another program is not a LostFocus.
        if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason) {
            EventArgs a;
            a.index = c->index();
            dispatch(c->name(), Event::LostFocus, a);
        }
    } else if (c->kind() == ControlKind::Label) {
        auto* me = static_cast<QMouseEvent*>(event);
        if (event->type() == QEvent::MouseButtonPress) {
            EventArgs a;
            a.index = c->index();
            a.button = mouseButton(me->button());
            a.shift = shiftState(me->modifiers());
            a.x = static_cast<Single>(me->position().x() * kTwipsPerPixel);
            a.y = static_cast<Single>(me->position().y() * kTwipsPerPixel);
            dispatch(c->name(), Event::MouseDown, a);
            return true;
        }
        if (event->type() == QEvent::MouseButtonRelease && me->button() == Qt::LeftButton &&
            static_cast<QWidget*>(watched)->rect().contains(me->position().toPoint())) {
            EventArgs a;
            a.index = c->index();
            dispatch(c->name(), Event::Click, a);
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}

void FormView::keyPressEvent(QKeyEvent* event) {
    // Only keys that reach the form itself, not those a control holds.
    QWidget* f = focusWidget();
    if (f == nullptr || f == this || f == client_) {
        EventArgs a;
        a.keyCode = classicKeyCode(event);
        a.shift = shiftState(event->modifiers());
        dispatch(kFormEvents, Event::KeyDown, a);
        return;
    }
    QDialog::keyPressEvent(event);
}

void FormView::closeEvent(QCloseEvent* event) {
    event->ignore();
    if (detached_) return;
    QPointer<FormView> self(this);
    app_.closeByFrame(form_);
    if (self && !detached_) refreshCanvas();
}

void FormView::controlChanged(Control& control, ControlProperty property) {
    if (TimerControl* t = dynamic_cast<TimerControl*>(&control)) {
        syncTimer(*t);
        return;
    }
    QWidget* w = widgets_.value(&control);
    if (!w) {
        if (control.kind() == ControlKind::Shape || control.kind() == ControlKind::Line) client_->update();
        return;
    }
    switch (property) {
    case ControlProperty::Text:
        if (auto* e = qobject_cast<QLineEdit*>(w)) {
            const QString t = qs(static_cast<TextBox&>(control).Text());
            if (e->text() != t) e->setText(t);
        }
        break;
    case ControlProperty::Caption:
        if (auto* l = qobject_cast<QLabel*>(w)) l->setText(qs(static_cast<Label&>(control).Caption()));
        if (auto* b = qobject_cast<QPushButton*>(w)) b->setText(qs(static_cast<Label&>(control).Caption()));
        break;
    case ControlProperty::Value:
        if (auto* b = qobject_cast<QCheckBox*>(w)) b->setChecked(static_cast<CheckBox&>(control).Value() != 0);
        if (auto* r = qobject_cast<QRadioButton*>(w)) r->setChecked(static_cast<OptionButton&>(control).Value());
        break;
    case ControlProperty::Visible: w->setVisible(control.Visible()); break;
    case ControlProperty::Focus: w->setFocus(Qt::OtherFocusReason); break;
    default: break;
    }
}

void FormView::syncTimer(TimerControl& t) {
    QTimer* q = timers_.value(&t);
    if (!q) return;
    if (t.Enabled() && t.Interval() > 0) {
        // One pending tick at most: a frame slower than the interval delays
        // the next tick instead of piling them up.
        if (!q->isActive() || q->interval() != t.Interval()) q->start(t.Interval());
    } else {
        q->stop();
    }
}

void FormView::runModal() {
    QEventLoop loop;
    loop_ = &loop;
    loop.exec(QEventLoop::DialogExec);
    loop_ = nullptr;
}

void FormView::quitModal() {
    if (loop_) loop_->quit();
}

void FormView::detach() {
    detached_ = true;
    for (QTimer* t : timers_) t->stop();
    form_.Me().detach(canvas_.get());
    form_.setObserver(nullptr);
}

void FormView::refreshCanvas() {
    if (client_) client_->update();
}

} // namespace gp

namespace gp {
QWidget* FormView::clientArea() const { return client_; }
} // namespace gp
