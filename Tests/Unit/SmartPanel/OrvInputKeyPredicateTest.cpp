// Which key presses the Alt+R pre-processor takes away from the editor, and what it logs about them.
#include "Core/SmartPanel/OrvInputKeyPredicate.h"

#include "Tests/Unit/SmartPanel/OrvSmartPanelTestRig.h"

using namespace OrvWebBridge;

namespace
{
    FOrvKeyEvent Key(const char* Name, std::uint32_t Character, bool bAlt, bool bCtrl = false,
                     bool bShift = false)
    {
        return FOrvKeyEvent{Name, 82, Character, bAlt, bCtrl, bShift};
    }
} // namespace

using FOrvInputKeyPredicateTest = FOrvSmartPanelTestRig;

TEST_F(FOrvInputKeyPredicateTest, OnlyAltWithoutCtrlOrShiftOnTheRKeyOrItsCharacterIsTaken)
{
    struct FCase
    {
        FOrvKeyEvent Event;
        bool bTaken;
        int ByChar; ///< -1: not detected
    };
    const FCase Cases[] = {
        {Key("R", 'r', true), true, 0},
        {Key("r", 0, true), true, 0},   // key names ignore case
        {Key("K", 'r', true), true, 1}, // a layout whose R key reports another key
        {Key("K", 'R', true), true, 1},
        {Key("R", 'R', true, false, true), false, -1}, // Alt+Shift+R
        {Key("R", 'r', true, true), false, -1},        // Ctrl+Alt+R
        {Key("R", 'r', false), false, -1},
        {Key("T", 't', true), false, -1},
        {Key("K", 'r' + 0x10000, true), false, -1},
    };
    for (const FCase& Case : Cases)
    {
        FOrvRecordingLog CaseLog;
        EXPECT_EQ(FOrvInputKeyPredicate::IsAltR(Case.Event, CaseLog), Case.bTaken) << Case.Event.KeyName;
        const std::string Detected = "OrvInputProcessor: Alt+R detected! (Key=" + Case.Event.KeyName +
                                     ", ByChar=" + std::to_string(Case.ByChar) + ")";
        EXPECT_EQ(CaseLog.Contains(EOrvLogVerbosity::Display, Detected), Case.bTaken) << Case.Event.KeyName;
    }
}

TEST_F(FOrvInputKeyPredicateTest, LogsRKeysAndAltChordsWithAPrintableCharacterOrAQuestionMark)
{
    FOrvInputKeyPredicate::IsAltR(FOrvKeyEvent{"T", 84, 't', false, false, false}, Log);
    FOrvInputKeyPredicate::IsAltR(FOrvKeyEvent{"R", 82, 'r', false, true, false}, Log);
    FOrvInputKeyPredicate::IsAltR(FOrvKeyEvent{"F4", 115, 0, true, false, false}, Log);

    EXPECT_EQ(Log.Transcript(),
              (std::vector<std::string>{
                  "Log: OrvInputProcessor: Key=R (Code=82, Char=114 'r') Modifiers: Alt=0 Ctrl=1 Shift=0",
                  "Log: OrvInputProcessor: Key=F4 (Code=115, Char=0 '?') Modifiers: Alt=1 Ctrl=0 Shift=0"}));
}

TEST_F(FOrvInputKeyPredicateTest, AltRRunsTheDetailsActionAndIsConsumedOnlyWithASmartPanel)
{
    SelectActors({"Chair"});

    EXPECT_TRUE(FOrvInputKeyPredicate::HandleKeyDown(Key("R", 'r', true), Log, &SmartPanel));
    EXPECT_FALSE(FOrvInputKeyPredicate::HandleKeyDown(Key("R", 'r', true), Log, nullptr));
    EXPECT_FALSE(FOrvInputKeyPredicate::HandleKeyDown(Key("R", 'R', true, false, true), Log, &SmartPanel));

    EXPECT_EQ(Panel.Loads, std::vector<std::string>{ProductPage("CHAIR-1")});
}
