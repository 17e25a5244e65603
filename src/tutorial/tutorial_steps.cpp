#include "tutorial/tutorial_steps.h"

namespace zolt::tutorial {
namespace {

ExpectedRow connector(const std::string& name, const std::string& pins) {
    return {{{0, name}, {1, pins, false}}};
}

// A group row is found by its connector pin, which no two groups may share.
ExpectedRow groupPin(const std::string& group, const std::string& connector,
                     const std::string& pin) {
    return {{{1, connector}, {2, pin}, {0, group, false}}};
}

ExpectedRow fixturePin(const std::string& connector, const std::string& pin) {
    return {{{1, connector}, {2, pin}}};
}

} // namespace

const std::vector<TutorialStep>& GroupsTutorialSteps() {
    static const std::vector<TutorialStep> steps = {
        {"The group method",
         "This tutorial describes a small harness by the group method: two connectors, J1 and "
         "J2, with four pins each, and three groups. A group lists the connector pins that the "
         "harness joins into one circuit; you never name the wires.\n\n"
         "Each step says what to type and waits until the tables hold it. The window and the "
         "cell to type in are brought forward for you. Next (Alt+PgDn) checks the step, Back "
         "(Alt+PgUp) returns to the step before, Skip types the step for you, Quit ends the "
         "tutorial.\n\n"
         "The example is a new, unnamed project: nothing of yours is changed.",
         StepKind::Read,
         table::Connector,
         {},
         0},
        {"Connector J1",
         "In the Connectors window, type J1 in the Connector cell of the new row, press Tab, "
         "type 4 in Pins Qty and press Enter.\n\nJ1 is a connector with four pins.",
         StepKind::Rows,
         table::Connector,
         {connector("J1", "4")},
         0},
        {"Connector J2",
         "Press F5 (Next): a new row opens with J2 already in it, the name after J1. Type 4 in "
         "Pins Qty and press Enter.",
         StepKind::Rows,
         table::Connector,
         {connector("J2", "4")},
         0},
        {"Group 1",
         "In the Groups window, press F5 (Next Group number): the new row gets group 1. Type J1 "
         "in Connector, press Tab, type 1 in Pin and press Enter.",
         StepKind::Rows,
         table::Groups,
         {groupPin("1", "J1", "1")},
         0},
        {"Group 1, second pin",
         "With the cursor on the row of group 1, press F6 (Same Group number): a row of group 1 "
         "opens below it. Type J2, Tab, 1 and press Enter.\n\nGroup 1 now joins J1 pin 1 to J2 "
         "pin 1: one circuit, one wire in the harness.",
         StepKind::Rows,
         table::Groups,
         {groupPin("1", "J2", "1")},
         1},
        {"Group 2",
         "Press F5 for the next group number, 2. Type J1, Tab, 2 and press Enter.",
         StepKind::Rows,
         table::Groups,
         {groupPin("2", "J1", "2")},
         0},
        {"Group 2, a bridge",
         "A group may join more than two pins. On the row of group 2, press F6 and type J2, Tab, "
         "2, Enter. The cursor then waits on the new-row line: press Up to come back to a row of "
         "group 2, press F6 again and type J2, Tab, 3, Enter.\n\nJ1 pin 2, J2 pin 2 and J2 pin "
         "3 are now one circuit.",
         StepKind::Rows,
         table::Groups,
         {groupPin("2", "J2", "2"), groupPin("2", "J2", "3")},
         3},
        {"Group 3, a crossed circuit",
         "Press F5 for group 3 and type J1, Tab, 3, Enter. Press Up to come back to that row, "
         "then F6, and type J2, Tab, 4, Enter.\n\nJ1 pin 4 is in no group: the harness leaves it "
         "unconnected, and the analyzer will check that it touches nothing.",
         StepKind::Rows,
         table::Groups,
         {groupPin("3", "J1", "3"), groupPin("3", "J2", "4")},
         0},
        {"Fixture connections",
         "In the Fixture Connections window, press F8 (AutoGen) and answer OK.\n\nZOLT gives "
         "every pin of J1 and J2 one test point of the analyzer, in order, from the Auto Start "
         "Test Point setting on.",
         StepKind::Generate,
         table::Fixture,
         {fixturePin("J1", "1"), fixturePin("J1", "2"), fixturePin("J1", "3"),
          fixturePin("J1", "4"), fixturePin("J2", "1"), fixturePin("J2", "2"),
          fixturePin("J2", "3"), fixturePin("J2", "4")},
         0},
        {"Save the example",
         "The harness is described. Press Save Example... (or Ctrl+S) and give the program a "
         "name: it is saved as a program file and stays open when the tutorial ends.\n\nFinish "
         "(Alt+PgDn) ends the tutorial.",
         StepKind::Save,
         table::Groups,
         {},
         0},
    };
    return steps;
}

} // namespace zolt::tutorial
