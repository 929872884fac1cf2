// frmString2 through the batch runner: a preset saved to a file, the file
// opened again, and the figure printed scaled to a PDF sheet.
#include <gtest/gtest.h>

#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "support/run_program.h"

using gp::test::runProgram;

TEST(String2Batch, Triangle1SavedOpenedAndPrinted) {
    const std::filesystem::path dir =
        std::filesystem::temp_directory_path() / ("string2_e2e_" + std::to_string(::getpid()));
    std::filesystem::create_directories(dir);
    const std::string file = (dir / "tri").string();
    auto r = runProgram(GRIDPAGES_BIN,
                        "click cmdString2\nclick Command1\nmenu mnuTriangle1\nanswer " + file +
                            "\nmenu mnuSave\nclick Command1\nanswer " + file +
                            "\nmenu mnuOpen\nanswer 6\nanswer 7\nclick cmdPrintIt\n",
                        {"--pdf", "{dir}/pdf"});
    ASSERT_EQ(r.status, 0) << r.errors;
    std::stringstream bytes;
    bytes << std::ifstream(file, std::ios::binary).rdbuf();
    EXPECT_EQ(bytes.str(), " 6 \r\n 5 \r\n 1000 \r\n 100 \r\n 11000 \r\n 100 \r\n 6000 \r\n 8760 \r\n"
                           " 1000 \r\n 100 \r\n 11000 \r\n 100 \r\n");
    const auto has = [&](const std::string& needle) {
        return std::any_of(r.trace.begin(), r.trace.end(),
                           [&](const std::string& l) { return l.find(needle) != std::string::npos; });
    };
    EXPECT_TRUE(has(R"("title":"Save File Name")"));
    EXPECT_TRUE(has(R"("prompt":"File: )" + file + R"( has been stored successfully")"));
    EXPECT_TRUE(has(R"("title":"Open File Name")"));
    EXPECT_FALSE(has(R"("prompt":"Open has been cancelled.")"));
    // The opened triangle's first segment on the canvas, then the sheet.
    EXPECT_TRUE(has(R"({"s":"frmString2","op":"line","x1":2560,"y1":8885,"x2":12560,"y2":8885,"style":0,"width":1,"color":0})"));
    EXPECT_EQ(r.trace.back(), R"({"s":"Printer","op":"enddoc"})");
    EXPECT_TRUE(std::filesystem::exists(r.dir + "/pdf/sheet-0001.pdf"));
    std::filesystem::remove_all(dir);
}
