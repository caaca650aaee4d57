#include "Core/SmartPanel/OrvInputKeyPredicate.h"

#include "Core/Common/OrvLogging.h"
#include "Core/Common/OrvStrings.h"
#include "Core/SmartPanel/OrvSmartPanel.h"

namespace OrvWebBridge
{
    bool FOrvInputKeyPredicate::IsAltR(const FOrvKeyEvent& Event, IOrvLog& Log)
    {
        // Key names are names: compared ignoring case.
        const bool bKeyMatch = FOrvStrings::EqualsIgnoreCase(Event.KeyName, "R");
        const bool bCharMatch = Event.Character == 'R' || Event.Character == 'r';
        if (Event.bAltDown || bKeyMatch || bCharMatch)
        {
            const bool bPrintable = Event.Character >= 0x20 && Event.Character <= 0x7E;
            OrvLogf(Log, EOrvLogCategory::LogTemp, EOrvLogVerbosity::Log,
                    "OrvInputProcessor: Key=%s (Code=%d, Char=%d '%c') Modifiers: Alt=%d Ctrl=%d Shift=%d",
                    Event.KeyName.c_str(), static_cast<int>(Event.KeyCode), static_cast<int>(Event.Character),
                    bPrintable ? static_cast<char>(Event.Character) : '?', Event.bAltDown ? 1 : 0,
                    Event.bControlDown ? 1 : 0, Event.bShiftDown ? 1 : 0);
        }
        if (!(bKeyMatch || bCharMatch) || !Event.bAltDown || Event.bControlDown || Event.bShiftDown)
        {
            return false;
        }
        OrvLogf(Log, EOrvLogCategory::LogTemp, EOrvLogVerbosity::Display,
                "OrvInputProcessor: Alt+R detected! (Key=%s, ByChar=%d)", Event.KeyName.c_str(),
                bCharMatch && !bKeyMatch ? 1 : 0);
        return true;
    }

    bool FOrvInputKeyPredicate::HandleKeyDown(const FOrvKeyEvent& Event, IOrvLog& Log,
                                              FOrvSmartPanel* SmartPanel)
    {
        if (!IsAltR(Event, Log) || !SmartPanel)
        {
            return false;
        }
        SmartPanel->ViewProductDetails();
        return true;
    }
} // namespace OrvWebBridge
