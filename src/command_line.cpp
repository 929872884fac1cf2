#include "command_line.h"

#include "shell/script/script_line.h"

namespace gp {

const char* const kUsage =
    "usage: gridpages                      the menu in a window\n"
    "       gridpages --script FILE [--trace OUT] [--pdf DIR] [--svg DIR]\n"
    "                 [--printer W H | --paper NAME] [--print QUEUE [--copies N]] [--seed N]\n"
    "       gridpages --list               the forms a script can open\n"
    "       gridpages --describe FORM      the controls of one form\n"
    "  NAME is letter, legal, a3, a4, a5 or system; QUEUE is a printer or default.\n";

bool parseCommandLine(const std::vector<std::string>& args, CommandLine& o, std::string& error) {
    bool batchOnly = false;  // an option that means nothing without --script
    for (size_t i = 0; i < args.size(); ++i) {
        const std::string& a = args[i];
        auto value = [&](size_t n) {
            if (i + n >= args.size()) {
                error = a + " needs " + std::to_string(n) + (n == 1 ? " value" : " values");
                return false;
            }
            return true;
        };
        long long w = 0, h = 0;
        if (a == "--help" || a == "-h") {
            o.mode = CommandLine::Mode::Help;
            return true;
        } else if (a == "--script") {
            if (!value(1)) return false;
            o.script = args[++i];
            o.mode = CommandLine::Mode::Batch;
        } else if (a == "--trace" || a == "--pdf" || a == "--svg" || a == "--paper" || a == "--print") {
            if (!value(1)) return false;
            std::string& target = a == "--trace" ? o.trace : a == "--pdf" ? o.pdfDir : a == "--svg" ? o.svgDir
                                  : a == "--paper" ? o.paper : o.printQueue;
            target = args[++i];
            if (target.empty()) {
                error = a + " needs a value that is not empty";
                return false;
            }
            batchOnly = true;
        } else if (a == "--printer") {
            if (!value(2)) return false;
            if (!parseWhole(args[i + 1], w) || !parseWhole(args[i + 2], h) || w <= 0 || h <= 0 ||
                w > 1000000 || h > 1000000) {
                error = "--printer takes two whole numbers of twips above 0";
                return false;
            }
            o.printerGiven = true;
            o.printerWidth = static_cast<int>(w);
            o.printerHeight = static_cast<int>(h);
            i += 2;
            batchOnly = true;
        } else if (a == "--copies") {
            if (!value(1)) return false;
            if (!parseWhole(args[i + 1], w) || w < 1 || w > 999) {
                error = "--copies takes a whole number from 1 to 999";
                return false;
            }
            o.copies = static_cast<int>(w);
            ++i;
            batchOnly = true;
        } else if (a == "--seed") {
            if (!value(1)) return false;
            if (!parseWhole(args[i + 1], w)) {
                error = "--seed takes a whole number";
                return false;
            }
            o.seeded = true;
            o.seed = static_cast<unsigned long>(w);
            ++i;
            batchOnly = true;
        } else if (a == "--list") {
            o.mode = CommandLine::Mode::List;
        } else if (a == "--describe") {
            if (!value(1)) return false;
            o.describe = args[++i];
            o.mode = CommandLine::Mode::Describe;
        } else {
            error = "unknown option " + a;
            return false;
        }
    }
    const bool lists = o.mode == CommandLine::Mode::List || o.mode == CommandLine::Mode::Describe;
    if (lists && (batchOnly || !o.script.empty())) {
        error = "--list and --describe stand alone";
        return false;
    }
    if (o.mode == CommandLine::Mode::Window && batchOnly) {
        error = "--trace, --pdf, --svg, --printer, --paper, --print, --copies and --seed go with --script";
        return false;
    }
    if (o.printerGiven && !o.paper.empty()) {
        error = "--printer and --paper both set the sheet: give one of them";
        return false;
    }
    if (o.copies != 1 && o.printQueue.empty()) {
        error = "--copies goes with --print";
        return false;
    }
    return true;
}

} // namespace gp
