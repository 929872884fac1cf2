// The harness's check of a trace line: what a broken number or string in a
// trace would look like must be caught, and every kind of line the trace
// writes must pass.
#include <gtest/gtest.h>

#include "fuzz/json_line.h"

using gp::fuzz::checkJsonLine;

TEST(JsonLine, TheTracesOwnLinesPass) {
    for (const char* line : {
             R"({"s":"Printer","op":"line","x1":720,"y1":0,"x2":2160,"y2":0,"style":0,"width":2,"color":-1})",
             R"({"op":"value","control":"txtLeng","value":" 45 "})",
             R"j({"s":"frmString2","op":"print","text":"(1.5E+38,-.25)","x":-0.33333334,"y":1e+30})j",
             "{\"op\":\"error\",\"text\":\"a\\\"b\\\\c\\nd\\u0001 \\u00e9 \xcf\x80\"}",
             R"({"a":[1,2.5e-3,{"b":null}],"t":true,"f":false,"e":{},"z":[]})",
         })
        EXPECT_EQ(checkJsonLine(line), "") << line;
}

TEST(JsonLine, NumbersOutsideJsonsGrammarAreCaught) {
    for (const char* line : {R"({"x":inf})", R"({"x":-inf})", R"({"x":nan})", R"({"x":NaN})", R"({"x":Infinity})",
                             R"({"x":1.#INF})", R"({"x":.5})", R"({"x":5.})", R"({"x":012})", R"({"x":+1})",
                             R"({"x":1e})", R"({"x":-})", R"({"x":})", R"({"x":1 2})"})
        EXPECT_NE(checkJsonLine(line), "") << line;
}

TEST(JsonLine, BrokenStringsAndShapesAreCaught) {
    const std::string cases[] = {
        R"({"x":"cut)", "{\"x\":\"a\tb\"}", R"({"x":"\q"})", R"({"x":"\u12"})",
        "{\"x\":\"\xff\"}",          // no UTF-8 at all
        "{\"x\":\"\xc0\xaf\"}",      // an overlong '/'
        "{\"x\":\"\xed\xa0\x80\"}",  // a surrogate
        "{\"x\":\"\xe2\x82\"}",      // cut short
        std::string("{\"x\":\"a\0b\"}", 11),
        R"(["not an object"])", R"({"x":1} {"y":2})", R"({"x":1,})", R"({x:1})", R"({"x" 1})", "", "{",
        std::string(100, '[')};
    for (const std::string& line : cases) EXPECT_NE(checkJsonLine(line), "") << line;
}
