#pragma once

#include "Core/Ports/IOrvWebPanel.h"

#include <string>
#include <vector>

namespace OrvWebBridge
{
    /** @brief A catalogue panel that records what it is asked to load and run. */
    class FOrvFakeWebPanel : public IOrvWebPanel
    {
    public:
        bool IsOpen() const override { return bOpen; }
        void LoadUrl(std::string_view Url) override
        {
            Loads.emplace_back(Url);
            CurrentUrl = Url;
        }
        void ExecuteJavascript(std::string_view Script) override { Scripts.emplace_back(Script); }
        std::string GetUrl() const override { return bOpen ? CurrentUrl : std::string(); }

        bool bOpen = true;
        std::string CurrentUrl;
        std::vector<std::string> Loads;
        std::vector<std::string> Scripts;
    };
} // namespace OrvWebBridge
