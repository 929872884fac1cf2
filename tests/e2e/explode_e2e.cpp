// frmExplodeIt through the program's batch mode: the interval question, the
// first frame, ticks on show and on the hidden form, a click, a refusal.
#include <gtest/gtest.h>

#include <algorithm>

#include "support/run_program.h"

TEST(ExplodeBatch, OpensRunsTicksOnWhileHiddenAndRefusesOnce) {
    auto r = gp::test::runProgram(GRIDPAGES_BIN,
                                  "answer 20\nclick cmdAnimate\nvalue txtX(1)\ntext txtSteps 2\nclick cmdBegin\n"
                                  "tick 3\nvalue Timer1\nclick cmdExit\ntick\nanswer\nclick cmdAnimate\n"
                                  "click cmdClear\nmousedown 6120 5040 1\ntext txtSteps 0\nclick cmdBegin\n");
    ASSERT_EQ(r.status, 0) << r.errors;
    auto has = [&](const std::string& line) { return std::count(r.trace.begin(), r.trace.end(), line); };
    ASSERT_GE(r.trace.size(), 2u);
    EXPECT_EQ(r.trace[0], R"({"op":"inputbox","title":"Time interval","prompt":"Enter the interval in )"
                          R"(thousandths of seconds","default":"500","answer":"20"})");
    EXPECT_EQ(r.trace[1], R"({"s":"frmExplodeIt","op":"line","x1":5724,"y1":5160,"x2":5856,"y2":5268,)"
                          R"("style":0,"width":1,"color":-1})");
    EXPECT_EQ(has(R"x({"op":"value","control":"txtX(1)","value":"-.7"})x"), 1);
    EXPECT_EQ(has(R"({"op":"value","control":"Timer1","value":{"enabled":true,"interval":20}})"), 1);
    // Frames 1, 2, then 3 wiped for 0; the last tick runs on the hidden form.
    std::string counters;
    for (const std::string& l : r.trace)
        if (l.find(R"("op":"print")") != std::string::npos) counters += l.substr(l.find("text") + 7, 3);
    EXPECT_EQ(counters, " 1  2  3  0  1 ");
    EXPECT_EQ(has(R"({"s":"frmExplodeIt","op":"print","x":8700,"y":1100,"text":" 2 ","font":"Arial","size":8.25})"), 1);
    EXPECT_EQ(has(R"({"op":"msgbox","title":"Time interval","prompt":"No interval was given, so the shape will )"
                  R"(change every 500 thousandths of a second.","buttons":0,"answer":1})"), 1);
    EXPECT_EQ(has(R"({"s":"frmExplodeIt","op":"pset","x":6120,"y":5040,"width":1,"color":-1})"), 1);
    EXPECT_EQ(has(R"({"op":"error","message":"The run did not start: Steps reads as 0, and the shape moves by )"
                  R"((End - Start) / Steps. Please type a number of steps other than 0."})"), 1);
}
