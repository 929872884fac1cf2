#include "platform/form_view.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QCheckBox>
#include <QCloseEvent>
#include <QEventLoop>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>
#include <QVBoxLayout>

#include "platform/canvas_device.h"
#include "platform/qt_drawing.h"
#include "platform/qt_input.h"
#include "shell/form_set.h"

namespace gp {

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
        if (view_.detached_) return;  // its form is gone
        QPainter p(this);
        // The newest finished image: a big preview still being painted
        // shows when it is done, the one before it stays until then.
        if (view_.canvas_) p.drawImage(QPointF(0, 0), view_.canvas_->imageForPaint());
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

QPoint FormView::toPixels(int twipsX, int twipsY) const { return QPoint(pixelsOf(twipsX), pixelsOf(twipsY)); }

void FormView::build() {
    const FormDesign& fd = form_.design();
    const int w = pixelsOf(fd.clientWidth), h = pixelsOf(fd.clientHeight);
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
    client_->setAccessibleName("Canvas");
    describeCanvas();
    client_->setFixedSize(w, h);
    client_->setAutoFillBackground(false);
    layout->addWidget(client_);
    layout->activate();

    const double dpr = devicePixelRatioF() > 0 ? devicePixelRatioF() : 1.0;
    canvas_ = std::make_unique<CanvasDevice>(static_cast<int>(w * dpr), static_cast<int>(h * dpr),
                                             fd.canvasWidth(), fd.canvasHeight(),
                                             fd.backColor == kSystem3DHighlight ? 0xFFFFFF : fd.backColor,
                                             dpr, fd.previewStrokeLimit);
    form_.Me().attach(canvas_.get());
    canvas_->onImageReady([this] { client_->update(); });

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
    } else if (c->kind() == ControlKind::Label &&
               (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonRelease)) {
        // A label gets every kind of event; only these two are mouse events.
        const auto* me = static_cast<QMouseEvent*>(event);
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
    // A form with a KeyDown of its own keeps every key, Escape too.
    if (exitOnEscape_ && event->key() == Qt::Key_Escape && event->modifiers() == Qt::NoModifier &&
        !event->isAutoRepeat() && !form_.handles(kFormEvents, Event::KeyDown) && clickExit())
        return;
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

bool FormView::clickExit() {
    Control* exit = form_.find("cmdExit");
    auto* button = qobject_cast<QAbstractButton*>(widgets_.value(exit));
    if (!button || !button->isVisible() || !button->isEnabled()) return false;
    button->click();
    return true;
}

void FormView::describeCanvas() {
    // An unloaded form is gone: nothing left to describe.
    if (detached_ || !client_) return;
    const QString now = qs(form_.canvasDescription());
    if (client_->accessibleDescription() != now) client_->setAccessibleDescription(now);
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
        describeCanvas();
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

QWidget* FormView::clientArea() const { return client_; }

void FormView::addMenu(QMenu* menu) {
    if (!menuBar_) {
        menuBar_ = new QMenuBar(this);
        layout()->setMenuBar(menuBar_);
    }
    menuBar_->addMenu(menu);
}

} // namespace gp
