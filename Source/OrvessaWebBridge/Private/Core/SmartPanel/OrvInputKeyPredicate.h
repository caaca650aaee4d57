#pragma once

#include "Core/Ports/IOrvLog.h"

#include <cstdint>
#include <string>

namespace OrvWebBridge
{
    class FOrvSmartPanel;

    /** @brief A key-down event as the input pre-processor sees it (FKeyEvent). */
    struct FOrvKeyEvent
    {
        std::string KeyName;         ///< the key's name, "R" for EKeys::R
        std::uint32_t KeyCode = 0;   ///< the platform's key code
        std::uint32_t Character = 0; ///< the character code the key produced
        bool bAltDown = false;       ///< left or right Alt
        bool bControlDown = false;
        bool bShiftDown = false;
    };

    /**
     * @brief The key test of the Alt+R input pre-processor (FOrvInputProcessor). It sees every key before
     * the editor does, including keys typed into the catalogue page, so Alt+R works wherever the focus is.
     */
    struct FOrvInputKeyPredicate
    {
        /** Whether the event is Alt+R (by key, or by character on layouts whose R key reports another key),
         *  with Alt and without Ctrl or Shift. Logs R keys and Alt chords, and a detection. */
        static bool IsAltR(const FOrvKeyEvent& Event, IOrvLog& Log);

        /** The pre-processor's key-down handler: Alt+R runs SmartPanel's Alt+R action and is consumed (true);
         *  anything else, or Alt+R without a smart panel, goes on to the editor (false). */
        static bool HandleKeyDown(const FOrvKeyEvent& Event, IOrvLog& Log, FOrvSmartPanel* SmartPanel);
    };
} // namespace OrvWebBridge
