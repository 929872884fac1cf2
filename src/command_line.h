#pragma once
// The program's command line: nothing for the window, --script and its
// options for a batch run, --list and --describe for what a script can name.

#include <string>
#include <vector>

namespace gp {

struct CommandLine {
    enum class Mode { Window, Batch, List, Describe, Help };
    Mode mode = Mode::Window;

    std::string script;       // "-" for standard input
    std::string trace;        // "" for none, "-" for standard output
    std::string pdfDir;       // "" for none
    std::string svgDir;       // "" for none
    std::string paper;        // "" unless --paper NAME
    std::string printQueue;   // "" unless --print QUEUE
    int copies = 1;
    bool printerGiven = false;
    int printerWidth = 11520;  // twips, portrait
    int printerHeight = 15120;
    bool seeded = false;
    unsigned long seed = 0;
    std::string describe;     // the form of --describe
};

// Parses the arguments after the program's name. Returns false with a
// reason where they cannot be understood.
bool parseCommandLine(const std::vector<std::string>& args, CommandLine& line, std::string& error);

extern const char* const kUsage;

} // namespace gp
