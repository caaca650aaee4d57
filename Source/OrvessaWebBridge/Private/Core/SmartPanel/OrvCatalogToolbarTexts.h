#pragma once

#include "Core/Common/OrvLocText.h"

namespace OrvWebBridge
{
    /** @brief The catalogue tab's toolbar row above the site: its check box, hint and button, with tooltips.
     * The editor's tab and the host's panel page show the same texts. */
    struct FOrvCatalogToolbarTexts
    {
        static constexpr const char* Namespace = "FOrvessaWebBridgeModule";

        static constexpr FOrvLocText AutoDetect{"AutoDetectLabel", "Auto-Detect"};
        static constexpr FOrvLocText AutoDetectTooltip{
            "AutoDetectTooltip",
            "Automatically detects Orv products in viewport and finish materials in Content "
            "Browser, navigating to their details page"};
        static constexpr FOrvLocText Hint{"AltRHint", "Select asset > Alt+R for details"};
        static constexpr FOrvLocText HintTooltip{
            "AltRHintTooltip", "Select an Orv product in viewport or finish material in Content "
                               "Browser, then press Alt+R to view details"};
        static constexpr FOrvLocText CopyUrl{"CopyURLLabel", "Copy URL"};
        static constexpr FOrvLocText CopyUrlTooltip{"CopyURLTooltip", "Copy current URL to clipboard"};
    };
} // namespace OrvWebBridge
