#include "platform/qt_session.h"

#include <QApplication>
#include <QInputDialog>
#include <QMessageBox>
#include <QScreen>
#include <QSettings>
#include <QTime>

#include "platform/sheets_menu.h"

namespace gp {

namespace {
QWidget* activeParent() { return QApplication::activeWindow(); }
}

int QtDialogs::MsgBox(const std::string& prompt, int buttons, const std::string& title) {
    QMessageBox box(activeParent());
    box.setWindowTitle(qs(title));
    box.setText(qs(prompt));
    switch (buttons) {
    case vbYesNoCancel:
        box.setIcon(QMessageBox::Question);
        box.setStandardButtons(QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
        box.setDefaultButton(QMessageBox::Yes);
        break;
    case vbYesNo:
        box.setIcon(QMessageBox::Question);
        box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
        box.setDefaultButton(QMessageBox::Yes);
        break;
    case vbCritical:
        box.setIcon(QMessageBox::Critical);
        box.setStandardButtons(QMessageBox::Ok);
        break;
    default: box.setStandardButtons(QMessageBox::Ok); break;
    }
    switch (box.exec()) {
    case QMessageBox::Yes: return vbYes;
    case QMessageBox::No: return vbNo;
    case QMessageBox::Cancel: return vbCancel;
    default: return buttons == vbYesNoCancel ? vbCancel : (buttons == vbYesNo ? vbNo : vbOK);
    }
}

std::string QtDialogs::InputBox(const std::string& prompt, const std::string& title,
                                const std::string& defaultText, std::optional<int> x, std::optional<int> y) {
    QInputDialog dialog(activeParent());
    dialog.setWindowTitle(qs(title));
    dialog.setLabelText(qs(prompt));
    dialog.setTextValue(qs(defaultText));
    if (x && y) {
        // The caller places the box in twips from the screen's corner.
        const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
        dialog.move(screen.topLeft() + QPoint(static_cast<int>(*x / kTwipsPerPixel),
                                              static_cast<int>(*y / kTwipsPerPixel)));
    }
    if (dialog.exec() != QDialog::Accepted) return "";
    return dialog.textValue().toStdString();
}

void QtDialogs::showFault(const std::string& message) {
    QMessageBox::warning(activeParent(), "gridpages", qs(message));
}

void QtDialogs::formMissing(const std::string& formName) {
    QMessageBox::information(activeParent(), "gridpages",
                             qs("This page (" + formName + ") is not part of this version yet."));
}

void QtHost::formLoaded(Form& form) {
    form.Me().setTextMeasurer(&measurer_);
    auto* view = new FormView(*app_, form);
    view->setExitOnEscape(form.name() != startForm_);
    views_[&form] = view;
    if (startHook_ && form.name() == startForm_) startHook_(*view);
}

void QtHost::formShown(Form& form, bool modal) {
    FormView* view = views_.value(&form);
    if (!view) return;
    view->setWindowModality(modal ? Qt::ApplicationModal : Qt::NonModal);
    view->show();
    view->raise();
    view->activateWindow();
}

void QtHost::formHidden(Form& form) {
    if (FormView* view = views_.value(&form)) {
        view->hide();
        view->quitModal();
        activateOther(view);
    }
}

void QtHost::formUnloading(Form& form) {
    QPointer<FormView> view = views_.take(&form);
    if (!view) return;
    view->hide();
    view->quitModal();
    view->detach();
    view->deleteLater();
    activateOther(view);
}

// The keys go back to the form underneath (the menu) when a form goes away,
// also where no window manager hands the focus on by itself.
void QtHost::activateOther(FormView* gone) {
    for (FormView* v : views_)
        if (v && v != gone && v->isVisible()) {
            v->activateWindow();
            return;
        }
}

void QtHost::runModal(Form& form) {
    if (FormView* view = views_.value(&form)) view->runModal();
}

void QtHost::endProgram() {
    for (auto& v : views_)
        if (v) v->quitModal();
    QApplication::exit(0);
}

void WindowedOutputFailures::outputFailed(const std::string& message) {
    QMessageBox::warning(activeParent(), "Not printed",
                         qs("The sheet could not be printed or saved.\n\n" + message));
}

Single SystemClock::Timer() const {
    return static_cast<Single>(QTime::currentTime().msecsSinceStartOfDay() / 1000.0);
}

int runWindowed(const Program& program) {
    QSettings store("gridpages", "gridpages");
    SheetSettings settings = SheetSettings::load(store);
    SheetSettings stored = settings;
    DrawingSurface printer(DrawingSurface::Kind::Printer, "Printer", 0, 0);
    // The Printer's area follows the choice (and the printers installed);
    // its orientation starts at the chosen default and changes only when
    // that choice does, so a page that sets its own keeps it.
    int orientation = 0;
    auto follow = [&] {
        const SheetPlan plan = planSheets(settings);
        printer.setScale(static_cast<Single>(plan.area.width), static_cast<Single>(plan.area.height));
        if (settings.orientation != orientation) printer.setOrientation(orientation = settings.orientation);
        if (settings != stored) {
            settings.save(store);
            stored = settings;
        }
    };
    follow();

    FormSet* running = nullptr;
    SheetsMenu menu(settings, follow);
    SystemPrinterSink sink(
        settings,
        [&] {
            Form* form = running ? running->activeForm() : nullptr;
            return form ? form->sheetName() : std::string();
        },
        [&] { return menu.choosePrinter(activeParent()); }, follow);
    WindowedOutputFailures failures;
    PrinterPages pages(printer, failures);
    pages.addSink(sink);
    printer.attach(&pages);
    QtTextMeasurer measurer;
    printer.setTextMeasurer(&measurer);

    QtDialogs dialogs;
    QtHost host;
    host.onStartFormView(program.startForm, [&](FormView& view) { view.addMenu(menu.build(&view)); });
    RandomSource random;
    SystemClock clock;
    random.Randomize(clock.Timer());
    FormSet app(dialogs, host, printer, random, clock);
    running = &app;
    host.setApp(&app);
    program.registerForms(app);
    app.start(program.startForm);
    if (app.ended()) return 0;
    return QApplication::exec();
}

} // namespace gp
