#pragma once
// The Printing menu of the start-up form: where "Print It" sends a sheet.
// The system's print dialog chooses the printer and the number of copies,
// page setup the paper and the orientation of pages that leave it open,
// and three entries choose between the printer, a PDF file and an SVG
// file. A choice holds for every later sheet and is kept for the next run.

#include <QObject>
#include <functional>

#include "platform/sheet_settings.h"

class QAction;
class QMenu;
class QWidget;

namespace gp {

class SheetsMenu : public QObject {
    Q_OBJECT
public:
    // `changed` is called after every change of `settings`.
    SheetsMenu(SheetSettings& settings, std::function<void()> changed);

    // The menu, for a window's menu bar; the caller takes it.
    QMenu* build(QWidget* parent);

    // The print dialog: printer, copies (and paper, in its properties).
    // Returns whether the user chose; the destination is then the printer.
    bool choosePrinter(QWidget* parent);
    // Page setup: the paper and the orientation of pages that leave it open.
    bool pageSetup(QWidget* parent);
    void setDestination(SheetSettings::Destination destination);

    // One line that says where the next sheet goes: "GridPages, A4, 30 copies".
    QString summary() const;

private:
    void update();

    SheetSettings& settings_;
    std::function<void()> changed_;
    QAction* summary_ = nullptr;
    QAction* toPrinter_ = nullptr;
    QAction* toPdf_ = nullptr;
    QAction* toSvg_ = nullptr;
};

// The menu's entries, as a user (and a test) finds them.
namespace menu_text {
inline const char* const kMenu = "&Printing";
inline const char* const kChoosePrinter = "Choose &Printer and Copies...";
inline const char* const kPageSetup = "Page &Setup (Paper, Orientation)...";
inline const char* const kToPrinter = "Print It Sends the Sheet to the P&rinter";
inline const char* const kToPdf = "Print It Saves the Sheet as a P&DF File";
inline const char* const kToSvg = "Print It Saves the Sheet as an S&VG File";
} // namespace menu_text

} // namespace gp
