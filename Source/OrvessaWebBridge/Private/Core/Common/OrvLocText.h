#pragma once

namespace OrvWebBridge
{
    /**
     * @brief A user-visible text with its localisation key. The Slate layer restates it as a LOCTEXT or
     * NSLOCTEXT literal, because localisation gathering reads literals only; a test keeps the two equal.
     */
    struct FOrvLocText
    {
        const char* Key;
        const char* Text;
    };
} // namespace OrvWebBridge
