#include "Core/Panel/OrvWebPanelService.h"

#include "Core/Common/OrvLogging.h"

namespace OrvWebBridge
{
    void FOrvWebPanelService::Navigate(std::string_view Url)
    {
        if (!Panel.IsOpen())
        {
            OrvLogf(Log, EOrvLogCategory::LogTemp, EOrvLogVerbosity::Warning,
                    "OrvProductInfoPanel: WebBrowserWidget not valid, cannot navigate");
            return;
        }
        OrvLogf(Log, EOrvLogCategory::LogTemp, EOrvLogVerbosity::Display,
                "OrvProductInfoPanel: Navigating WebBrowser to %.*s", static_cast<int>(Url.size()),
                Url.data());
        Panel.LoadUrl(Url);
    }

    void FOrvWebPanelService::ExecuteScript(std::string_view Script)
    {
        if (!Panel.IsOpen())
        {
            OrvLogf(Log, EOrvLogCategory::LogTemp, EOrvLogVerbosity::Warning,
                    "OrvProductInfoPanel: WebBrowserWidget not valid, cannot execute JavaScript");
            return;
        }
        OrvLogf(Log, EOrvLogCategory::LogTemp, EOrvLogVerbosity::Display,
                "OrvProductInfoPanel: Executing JavaScript in WebBrowser");
        Panel.ExecuteJavascript(Script);
    }
} // namespace OrvWebBridge
