#pragma once

#include <string>

namespace OrvWebBridge
{
    class FOrvOutlinerPanelModel;

    /** @brief The outliner panel drawn as text, for the host's console and commands. */
    struct FOrvOutlinerTextView
    {
        /**
         * The status line, then the login notice when signed out, else the whole tree: macro categories,
         * categories and products, two spaces deeper per level, each with its count as the rows show it
         * ("Chairs x4"); hidden categories are marked "(hidden)". Every line ends with a line feed.
         */
        static std::string Render(const FOrvOutlinerPanelModel& Panel);
    };
} // namespace OrvWebBridge
