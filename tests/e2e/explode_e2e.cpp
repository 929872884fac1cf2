// frmExplodeIt driven through the program's batch mode: the interval
// question, the first frame, ticks on show and on the hidden form, clicks,
// and the messages of the run's limits, as trace lines.
#include <gtest/gtest.h>

#include <algorithm>

#include "support/run_program.h"

using gp::test::runProgram;

namespace {
int countOf(const std::vector<std::string>& trace, const std::string& needle) {
    return static_cast<int>(std::count_if(trace.begin(), trace.end(), [&](const std::string& l) {
        return l.find(needle) != std::string::npos;
    }));
}
std::vector<std::string> matching(const std::vector<std::string>& trace, const std::string& needle) {
    std::vector<std::string> out;
    for (const std::string& l : trace)
        if (l.find(needle) != std::string::npos) out.push_back(l);
    return out;
}
}

TEST(ExplodeBatch, OpensAsksRunsAndTicksOnWhileHidden) {
    auto r = runProgram(GRIDPAGES_BIN,
                        "answer 20\n"
                        "click cmdAnimate\n"
                        "value txtX(1)\n"
                        "value Timer1\n"
                        "text txtSteps 2\n"
                        "click cmdBegin\n"
                        "tick 3\n"
                        "click cmdExit\n"
                        "tick\n"
                        "value cmdAnimate\n");
    ASSERT_EQ(r.status, 0) << r.errors;
    ASSERT_GE(r.trace.size(), 3u);
    EXPECT_EQ(r.trace[0], R"({"op":"inputbox","title":"Time interval","prompt":"Enter the interval in )"
                          R"(thousandths of seconds","default":"500","answer":"20"})");
    EXPECT_EQ(r.trace[1], R"({"s":"frmExplodeIt","op":"line","x1":5724,"y1":5160,"x2":5856,"y2":5268,)"
                          R"("style":0,"width":1,"color":-1})");
    EXPECT_EQ(countOf(r.trace, R"x({"op":"value","control":"txtX(1)","value":"-.7"})x"), 1);
    EXPECT_EQ(countOf(r.trace, R"("control":"Timer1","value":{"enabled":false,"interval":20})"), 1);

    // Frames 1, 2, then 3 wiped for 0; the fourth tick runs on the hidden form.
    const auto prints = matching(r.trace, R"("op":"print")");
    ASSERT_EQ(prints.size(), 5u);
    EXPECT_EQ(prints[0], R"({"s":"frmExplodeIt","op":"print","x":8700,"y":1100,"text":" 1 ","font":"Arial","size":8.25})");
    EXPECT_NE(prints[2].find(R"("text":" 3 ")"), std::string::npos);
    EXPECT_NE(prints[3].find(R"("text":" 0 ")"), std::string::npos);
    EXPECT_NE(prints[4].find(R"("text":" 1 ")"), std::string::npos);
    EXPECT_EQ(countOf(r.trace, R"("op":"cls")"), 5);
    EXPECT_EQ(countOf(r.trace, R"("op":"line")"), 23 * 6);
    EXPECT_EQ(countOf(r.trace, R"({"op":"value","control":"cmdAnimate","value":"Explode It"})"), 1);
}

TEST(ExplodeBatch, ClicksMakeAShapeAndTheLimitsSpeakOnce) {
    auto r = runProgram(GRIDPAGES_BIN,
                        "answer\n"
                        "click cmdAnimate\n"
                        "click cmdClear\n"
                        "mousedown 6120 5040 1\n"
                        "mousedown 12200 5040 1\n"
                        "mousedown 6360 5280 1\n"
                        "value txtX(1)\n"
                        "option optUp\n"
                        "text txtSteps 300\n"
                        "click cmdBegin\n"
                        "tick 140\n"
                        "value Timer1\n"
                        "text txtSteps 0\n"
                        "click cmdBegin\n");
    ASSERT_EQ(r.status, 0) << r.errors;
    // Cancel: one message, and the default interval.
    const auto boxes = matching(r.trace, R"("op":"msgbox")");
    ASSERT_EQ(boxes.size(), 1u);
    EXPECT_NE(boxes[0].find(R"("title":"Time interval")"), std::string::npos);
    EXPECT_EQ(countOf(r.trace, R"({"s":"frmExplodeIt","op":"pset","x":6120,"y":5040,"width":1,"color":-1})"), 1);
    EXPECT_EQ(countOf(r.trace, R"("op":"pset")"), 2);  // X = 12200 is outside
    EXPECT_EQ(countOf(r.trace, R"({"s":"frmExplodeIt","op":"line","x1":6120,"y1":5040,"x2":6360,"y2":5280,)"
                               R"("style":0,"width":1,"color":-1})"),
              1);
    EXPECT_EQ(countOf(r.trace, R"x({"op":"value","control":"txtX(1)","value":" 1.5"})x"), 1);
    // Up mode: 136 frames of one segment, then one message and the timer off.
    EXPECT_EQ(countOf(r.trace, R"("text":" 136 ")"), 1);
    EXPECT_EQ(countOf(r.trace, R"("text":" 137 ")"), 0);
    const auto errors = matching(r.trace, R"("op":"error")");
    ASSERT_EQ(errors.size(), 2u);
    EXPECT_NE(errors[0].find("Up mode"), std::string::npos);
    EXPECT_NE(errors[1].find("Steps"), std::string::npos);
    EXPECT_EQ(countOf(r.trace, R"("control":"Timer1","value":{"enabled":false,"interval":500})"), 1);
}
