#pragma once

#include "Core/Common/OrvLocText.h"

#include <array>

namespace OrvWebBridge
{
    /** @brief A key with modifiers, as the engine's FInputChord; no key means no default chord. */
    struct FOrvInputChord
    {
        const char* Key = nullptr; ///< the engine's key name ("R"); null for none
        bool bAlt = false;
        bool bControl = false;
        bool bShift = false;
        bool bCommand = false;
    };

    /**
     * @brief One UI command: its name (also the label's localisation key; the tooltip's key is the name
     * followed by "_ToolTip", as UI_COMMAND makes them), label, tooltip and default chord. Every command of
     * this plugin is a button.
     */
    struct FOrvCommandEntry
    {
        const char* Name;
        const char* Label;
        const char* Tooltip;
        FOrvInputChord DefaultChord;
    };

    /** @brief The command set FOrvessaWebBridgeCommands. */
    struct FOrvCommandTable
    {
        /** The binding context's name; commands' icons are looked up as "<ContextName>.<Name>". */
        static constexpr const char* ContextName = "OrvessaWebBridge";

        /** The context's description, NSLOCTEXT in namespace ContextNamespace. */
        static constexpr const char* ContextNamespace = "Contexts";
        static constexpr FOrvLocText ContextDescription{"OrvessaWebBridge", "OrvessaWebBridge Plugin"};

        /** The localisation namespace of the commands' labels and tooltips. */
        static constexpr const char* Namespace = "FOrvessaWebBridgeModule";

        static constexpr FOrvCommandEntry OpenPluginWindow{
            "OpenPluginWindow", "Orv Catalog", "Browse and download ORVESSA assets", {}};

        static constexpr FOrvCommandEntry ViewProductDetails{
            "ViewProductDetails",
            "View Orv Product/Finish Details",
            "Open product or finish details for selected Orv asset",
            {"R", /*bAlt=*/true}};

        static constexpr std::array<FOrvCommandEntry, 2> Commands{OpenPluginWindow, ViewProductDetails};
    };
} // namespace OrvWebBridge
