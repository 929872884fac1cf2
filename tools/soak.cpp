// gridpages_soak [MINUTES] [INTERVAL_MS]: runs Explode It in the real window
// as a pupil leaves it running through a lesson (Begin, then nothing), with
// the timer at INTERVAL_MS, and prints the program's resident memory once a
// minute. A window that leaks a little at every frame shows here as a
// steady climb; a cache that settles shows as a flat line after the first
// minute. Run it under Xvfb (or QT_QPA_PLATFORM=offscreen).

#include <QAbstractButton>
#include <QApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QInputDialog>
#include <QTimer>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>

#include "all_forms.h"
#include "platform/qt_session.h"

namespace {

// Resident memory of this process in KiB, from the kernel's own count.
long residentKib() {
    std::ifstream status("/proc/self/status");
    std::string key;
    long kib = 0;
    while (status >> key) {
        if (key == "VmRSS:") {
            status >> kib;
            return kib;
        }
        status.ignore(1 << 12, '\n');
    }
    return -1;
}

QWidget* shownWindow(const QString& title) {
    for (QWidget* w : QApplication::topLevelWidgets())
        if (w->isVisible() && w->windowTitle() == title) return w;
    return nullptr;
}

bool press(const QString& window, const QString& caption) {
    QWidget* w = shownWindow(window);
    if (!w) return false;
    for (QAbstractButton* b : w->findChildren<QAbstractButton*>())
        if (b->text().remove('&') == caption && b->isVisible()) {
            QMetaObject::invokeMethod(b, "click", Qt::QueuedConnection);
            return true;
        }
    return false;
}

// Counts the paints of the Explode It window, so that the figures are
// known to come from a window that was really drawing its frames.
class PaintCounter : public QObject {
public:
    long paints = 0;
    bool eventFilter(QObject* target, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            auto* w = qobject_cast<QWidget*>(target);
            if (w && w->window()->windowTitle() == "Explode It") ++paints;
        }
        return false;
    }
};

} // namespace

int main(int argc, char** argv) {
    const int minutes = argc > 1 ? std::atoi(argv[1]) : 10;
    const QString interval = argc > 2 ? QString::fromLocal8Bit(argv[2]) : QStringLiteral("1");
    if (minutes < 1) {
        std::fprintf(stderr, "usage: %s [MINUTES] [INTERVAL_MS]\n", argv[0]);
        return 2;
    }
    QApplication app(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    PaintCounter counter;
    app.installEventFilter(&counter);

    enum { OpenForm, Interval, Begin, Running } stage = OpenForm;
    QElapsedTimer clock;
    QTimer robot;
    robot.setInterval(50);
    QObject::connect(&robot, &QTimer::timeout, [&] {
        switch (stage) {
        case OpenForm:
            if (press("Types of Grid Pages", "Explode It")) stage = Interval;
            return;
        case Interval:
            if (auto* ask = qobject_cast<QInputDialog*>(QApplication::activeModalWidget())) {
                ask->setTextValue(interval);
                QMetaObject::invokeMethod(ask, "accept", Qt::QueuedConnection);
                stage = Begin;
            }
            return;
        case Begin:
            if (press("Explode It", "Begin")) {
                stage = Running;
                clock.start();
                std::printf("minute  resident KiB  paints\n%6d  %12ld  %6ld\n", 0, residentKib(), counter.paints);
                std::fflush(stdout);
                robot.setInterval(60000);
            }
            return;
        case Running: {
            const int minute = static_cast<int>((clock.elapsed() + 30000) / 60000);
            std::printf("%6d  %12ld  %6ld\n", minute, residentKib(), counter.paints);
            std::fflush(stdout);
            if (minute >= minutes) QApplication::exit(0);
            return;
        }
        }
    });
    robot.start();
    const int status = gp::runWindowed(gp::gridpagesProgram());
    if (stage != Running) std::fprintf(stderr, "soak: Explode It never began running\n");
    return status != 0 || stage != Running ? 1 : 0;
}
