#include "platform/sheets_menu.h"

#include <algorithm>

#include <QAction>
#include <QActionGroup>
#include <QMenu>
#include <QMessageBox>
#include <QPageSetupDialog>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>

#include "platform/system_printer.h"

namespace gp {

namespace {
QPageLayout::Orientation qtOrientation(int orientation) {
    return orientation == 2 ? QPageLayout::Landscape : QPageLayout::Portrait;
}

// A paper the user confirmed in a dialog is kept as the choice where it
// differs from what applied anyway, or where a paper was chosen before.
void takePaper(SheetSettings& s, const QPageSize& shown, const QPageSize& confirmed) {
    if (s.paper || !confirmed.isEquivalentTo(shown)) s.paper = confirmed;
}
} // namespace

SheetsMenu::SheetsMenu(SheetSettings& settings, std::function<void()> changed)
    : settings_(settings), changed_(std::move(changed)) {}

QMenu* SheetsMenu::build(QWidget* parent) {
    auto* menu = new QMenu(menu_text::kMenu, parent);
    summary_ = menu->addAction(QString());
    summary_->setEnabled(false);
    menu->addSeparator();
    connect(menu->addAction(menu_text::kChoosePrinter), &QAction::triggered, this,
            [this, parent] { choosePrinter(parent); });
    connect(menu->addAction(menu_text::kPageSetup), &QAction::triggered, this, [this, parent] { pageSetup(parent); });
    menu->addSeparator();
    auto* group = new QActionGroup(menu);
    auto destination = [&](const char* text, SheetSettings::Destination d) {
        QAction* a = menu->addAction(text);
        a->setCheckable(true);
        group->addAction(a);
        connect(a, &QAction::triggered, this, [this, d] { setDestination(d); });
        return a;
    };
    toPrinter_ = destination(menu_text::kToPrinter, SheetSettings::Destination::Printer);
    toPdf_ = destination(menu_text::kToPdf, SheetSettings::Destination::PdfFile);
    toSvg_ = destination(menu_text::kToSvg, SheetSettings::Destination::SvgFile);
    // Printers come and go while the program runs: the line is written
    // anew each time the menu opens.
    connect(menu, &QMenu::aboutToShow, this, [this] { update(); });
    update();
    return menu;
}

void SheetsMenu::update() {
    if (!summary_) return;
    summary_->setText(summary());
    toPrinter_->setChecked(settings_.destination == SheetSettings::Destination::Printer);
    toPdf_->setChecked(settings_.destination == SheetSettings::Destination::PdfFile);
    toSvg_->setChecked(settings_.destination == SheetSettings::Destination::SvgFile);
}

QString SheetsMenu::summary() const {
    const SheetPlan plan = planSheets(settings_);
    const QString turned = settings_.orientation == 2 ? ", landscape" : "";
    switch (plan.kind) {
    case SheetPlan::Kind::Printer: {
        const QPageSize paper =
            plan.target.paper ? *plan.target.paper : QPrinterInfo::printerInfo(plan.target.queue).defaultPageSize();
        const QString copies = settings_.copies == 1 ? "1 copy" : QString("%1 copies").arg(settings_.copies);
        return QString("Print It: printer %1, %2, %3%4").arg(plan.target.queue, paper.name(), copies, turned);
    }
    case SheetPlan::Kind::AskForPrinter: return "Print It: asks which printer (none is the default)";
    case SheetPlan::Kind::PdfFile: return QString("Print It: a PDF file, %1%2").arg(plan.paper.name(), turned);
    case SheetPlan::Kind::SvgFile: return QString("Print It: an SVG file, %1%2").arg(plan.paper.name(), turned);
    case SheetPlan::Kind::NoPrinter: break;
    }
    return QString("Print It: no printer installed, PDF files on %1%2").arg(plan.paper.name(), turned);
}

bool SheetsMenu::choosePrinter(QWidget* parent) {
    SheetSettings chosen = settings_;
    chosen.destination = SheetSettings::Destination::Printer;
    const SheetPlan plan = planSheets(chosen);
    if (plan.kind != SheetPlan::Kind::Printer && plan.kind != SheetPlan::Kind::AskForPrinter) {
        QMessageBox::information(parent, "No printer", "No printer is installed on this computer.");
        return false;
    }
    QPrinter printer(QPrinter::HighResolution);
    printer.setPrinterName(plan.target.queue);
    const QPageSize shown =
        chosen.paper ? *chosen.paper : QPrinterInfo::printerInfo(plan.target.queue).defaultPageSize();
    printer.setPageSize(shown);
    printer.setPageOrientation(qtOrientation(chosen.orientation));
    printer.setCopyCount(chosen.copies);
    QPrintDialog dialog(&printer, parent);
    dialog.setWindowTitle("Choose the printer and the number of copies");
    // Files are chosen in the menu, where each sheet gets a save dialog.
    dialog.setOptions(QAbstractPrintDialog::PrintShowPageSize);
    if (dialog.exec() != QDialog::Accepted || printer.outputFormat() != QPrinter::NativeFormat) return false;
    chosen.printer = printer.printerName();
    chosen.copies = std::clamp(printer.copyCount(), 1, kMaxCopies);
    chosen.orientation = printer.pageLayout().orientation() == QPageLayout::Landscape ? 2 : 1;
    if (chosen.printer != plan.target.queue && !chosen.paper) {
        // Another printer: its own paper applies unless one was picked.
        const QPageSize own = QPrinterInfo::printerInfo(chosen.printer).defaultPageSize();
        takePaper(chosen, own, printer.pageLayout().pageSize());
    } else {
        takePaper(chosen, shown, printer.pageLayout().pageSize());
    }
    settings_ = chosen;
    update();
    if (changed_) changed_();
    return true;
}

bool SheetsMenu::pageSetup(QWidget* parent) {
    const SheetPlan plan = planSheets(settings_);
    const bool onPrinter = plan.kind == SheetPlan::Kind::Printer;
    QPrinter printer(QPrinter::HighResolution);
    // A printer offers the papers it has; a file may be on any paper.
    if (onPrinter) printer.setPrinterName(plan.target.queue);
    else printer.setOutputFormat(QPrinter::PdfFormat);
    const QPageSize shown = settings_.paper ? *settings_.paper
                            : onPrinter     ? QPrinterInfo::printerInfo(plan.target.queue).defaultPageSize()
                                            : plan.paper;
    printer.setPageSize(shown);
    printer.setPageOrientation(qtOrientation(settings_.orientation));
    QPageSetupDialog dialog(&printer, parent);
    dialog.setWindowTitle("Paper and orientation of the sheets");
    if (dialog.exec() != QDialog::Accepted) return false;
    takePaper(settings_, shown, printer.pageLayout().pageSize());
    settings_.orientation = printer.pageLayout().orientation() == QPageLayout::Landscape ? 2 : 1;
    update();
    if (changed_) changed_();
    return true;
}

void SheetsMenu::setDestination(SheetSettings::Destination destination) {
    settings_.destination = destination;
    update();
    if (changed_) changed_();
}

} // namespace gp
