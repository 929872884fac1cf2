// The scripted session as a script meets it: lines it must refuse (and how
// it names them), answers that no dialog took or could take, and what a
// script writer can learn of the forms.
#include <gtest/gtest.h>

#include "all_forms.h"
#include "shell/script/form_catalog.h"
#include "support/test_app.h"

using namespace gp;
using gp::test::TestLog;

namespace {
// Runs the lines from the menu; the reason of the refused line, or "".
struct ScriptRun {
    TestLog log;
    ScriptedSession session{gridpagesProgram(), log, nullptr};
    std::string refused;
    int refusedLine = 0;
    explicit ScriptRun(const std::vector<std::string>& lines) {
        try {
            session.start();
            session.run(lines);
        } catch (const ScriptError& e) {
            refused = e.reason;
            refusedLine = e.line;
        }
    }
};
} // namespace

TEST(ScriptedSession, NumbersTheirTypeCannotHoldAreRefusedNotPassedOn) {
    const struct {
        const char* line;
        const char* says;
    } cases[] = {
        {"mousemove 4e38 100", "beyond the range"},   {"mousemove 100 -3.5e38", "beyond the range"},
        {"mousedown 1e39 0 1", "beyond the range"},   {"mousemove nan 1", "not a number"},
        {"mousemove inf 1", "not a number"},           {"mousedown 1 2 8", "not a whole number"},
        {"key 65536", "not a whole number"},           {"key -1", "not a whole number"},
        {"tick 10000001", "not a whole number"},       {"tick 99999999999999999999", "not a whole number"},
        {"printer 0 100", "not a whole number"},       {"mousedown lblNothing 1 2 1", "no control"},
    };
    for (const auto& c : cases) {
        ScriptRun r({"click cmdString2", c.line, "click Command1"});
        EXPECT_EQ(r.refusedLine, 2) << c.line;
        EXPECT_NE(r.refused.find(c.says), std::string::npos) << c.line << ": " << r.refused;
    }
    // What is typed into a box is never refused: it is the user's text.
    ScriptRun typed({"click cmdString2", "text txtTics 4e38", "type txtTics \xff\xfe", "answer 1e999", "mousemove 3.4e38 0"});
    EXPECT_EQ(typed.refused, "");
}

TEST(ScriptedSession, ALineWithANulOrALongUnknownWordIsRefusedAndQuotedShort) {
    ScriptRun nul({"click cmdTriangle", std::string("text txtLeng 1\0 2", 17)});
    EXPECT_EQ(nul.refusedLine, 2);
    EXPECT_NE(nul.refused.find("NUL"), std::string::npos);

    ScriptRun longWord({std::string(50000, 'z')});
    EXPECT_EQ(longWord.refusedLine, 1);
    EXPECT_LT(longWord.refused.size(), 200u) << longWord.refused.size();
    EXPECT_NE(longWord.refused.find("50000 bytes"), std::string::npos) << longWord.refused;
}

TEST(ScriptedSession, AnswersNoDialogTookOrThatDidNotFitAreWarnedOf) {
    // Exit of the menu has no dialog: the answer waits to the end.
    ScriptRun left({"answer 6", "click cmdTriangle"});
    ASSERT_EQ(left.session.answerWarnings().size(), 1u);
    EXPECT_NE(left.session.answerWarnings()[0].find("line 1"), std::string::npos);

    // String Art 2's Save with no drawing shows an OK box: 7 is no button of it.
    ScriptRun misfit({"click cmdString2", "click Command1", "answer 7", "menu mnuSave"});
    ASSERT_EQ(misfit.session.answerWarnings().size(), 1u);
    EXPECT_NE(misfit.session.answerWarnings()[0].find("no such button"), std::string::npos);
    ASSERT_FALSE(misfit.log.dialogs.empty());
    EXPECT_EQ(misfit.log.dialogs.back().kind, "msgbox");

    ScriptRun fits({"click cmdString2", "click Command1", "answer 1", "menu mnuSave"});
    EXPECT_TRUE(fits.session.answerWarnings().empty());
}

TEST(FormCatalog, ListsEveryFormWithItsButtonAndDescribesOne) {
    const std::vector<FormEntry> forms = listForms(gridpagesProgram());
    ASSERT_EQ(forms.size(), 14u);
    EXPECT_EQ(forms[0].name, "frmGrids");
    EXPECT_EQ(forms[0].openedBy, "");
    bool sixth = false;
    for (const FormEntry& e : forms) sixth |= e.name == "frmOneSixthCube" && e.openedBy == "Command1";
    EXPECT_TRUE(sixth);

    const auto text = describeForm(gridpagesProgram(), "frmString2");
    ASSERT_TRUE(text.has_value());
    for (const char* needle : {"frmString2 \"String Art Point Plotting\" (click cmdString2 on frmGrids)",
                               "canvas 13890 x 8985 twips", "text box txtTics \"15\": text txtTics VALUE | type txtTics VALUE",
                               "menu mnuFile \"&File\"", "    menu mnuOpen \"&Open\" [Click]: menu mnuOpen",
                               "menu mnuShapes", "mnuOcta3", "button Command1 \"Clear It\" [Click]: click Command1"})
        EXPECT_NE(text->find(needle), std::string::npos) << needle << "\n" << *text;
    EXPECT_FALSE(describeForm(gridpagesProgram(), "frmNothing").has_value());
}
