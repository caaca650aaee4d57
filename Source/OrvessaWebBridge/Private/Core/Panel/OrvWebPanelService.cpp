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

    void FOrvWebPanelService::LogConsoleMessage(IOrvLog& Log, int Severity, std::string_view Message,
                                                std::string_view Source, int Line)
    {
        OrvLogf(Log, EOrvLogCategory::LogTemp, EOrvLogVerbosity::Log,
                "[OrvBridge JS Console][%d] %.*s (at %.*s:%d)", Severity, static_cast<int>(Message.size()),
                Message.data(), static_cast<int>(Source.size()), Source.data(), Line);
    }

    void FOrvWebPanelService::LogLoadCompleted(IOrvLog& Log)
    {
        OrvLogf(Log, EOrvLogCategory::LogTemp, EOrvLogVerbosity::Log, "[OrvBridge] Load completed.");
    }

    void FOrvWebPanelService::LogLoadError(IOrvLog& Log)
    {
        OrvLogf(Log, EOrvLogCategory::LogTemp, EOrvLogVerbosity::Error,
                "[OrvBridge] Load ERROR (no details provided by delegate)");
    }
} // namespace OrvWebBridge
