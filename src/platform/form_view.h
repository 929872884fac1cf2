#pragma once
// The one generic window: it builds real widgets from a form's design table
// (15 twips to a pixel; Qt scales for high-dpi screens), paints the canvas
// image behind them, and routes every widget event to the form's handlers
// through the guard. It also keeps the widgets in step when code changes a
// control.

#include <QDialog>
#include <QHash>
#include <QPointer>
#include <memory>

#include "shell/controls.h"
#include "shell/form.h"

class QEventLoop;
class QMouseEvent;
class QMenu;
class QMenuBar;
class QTimer;

namespace gp {

class CanvasDevice;
class FormSet;

constexpr double kTwipsPerPixel = 15.0;
inline int pixelsOf(int twips) { return static_cast<int>(twips / kTwipsPerPixel + 0.5); }

class FormView : public QDialog, public ControlObserver {
    Q_OBJECT
public:
    FormView(FormSet& app, Form& form);
    ~FormView() override;

    Form& form() { return form_; }
    void controlChanged(Control& control, ControlProperty property) override;
    // Blocks in a local event loop until the form is hidden.
    void runModal();
    void quitModal();
    // Repaints the canvas after a handler has drawn.
    void refreshCanvas();
    QWidget* clientArea() const;
    const CanvasDevice* canvas() const { return canvas_.get(); }
    // The form is being unloaded: stop timers and let go of it.
    void detach();
    // A menu of the platform's own beside those of the design table; the
    // client area keeps its design size below the menu bar.
    void addMenu(QMenu* menu);
    // Escape leaves the form as its Exit button does: on the page forms, not
    // on the menu, whose Exit ends the program.
    void setExitOnEscape(bool on) { exitOnEscape_ = on; }

protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void reject() override {}  // Esc does not close a form

private:
    class Client;
    void build();
    QWidget* buildControl(const ControlDesign& d, Control& c, QWidget* parent);
    void buildMenus();
    void dispatch(const std::string& control, Event event, const EventArgs& args = {});
    QPoint toPixels(int twipsX, int twipsY) const;
    void syncTimer(TimerControl& t);
    void canvasMouse(QMouseEvent* e, Event event);
    // Tells a screen reader what the canvas shows now.
    void describeCanvas();
    bool clickExit();

    FormSet& app_;
    Form& form_;
    Client* client_ = nullptr;
    QMenuBar* menuBar_ = nullptr;
    std::unique_ptr<CanvasDevice> canvas_;
    QHash<Control*, QWidget*> widgets_;
    QHash<QObject*, Control*> controlOf_;
    QHash<Control*, QTimer*> timers_;
    QEventLoop* loop_ = nullptr;
    bool detached_ = false;
    bool exitOnEscape_ = false;
};

} // namespace gp
