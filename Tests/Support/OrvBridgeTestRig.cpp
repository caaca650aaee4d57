#include "Tests/Support/OrvBridgeTestRig.h"

namespace OrvWebBridge
{
    FOrvBridgeTestRig::FOrvBridgeTestRig()
        : Session(FOrvWebPanelSessionPorts{PanelService, Windows,
                                           [this]() -> IOrvCatalogApi* { return bHasJar ? &Jar : nullptr; },
                                           [this] { return CookiesLookup; }, Log},
                  FOrvCatalogSite{"https://site.example", "https://api.site.example", ".site.example"}),
          Bridge(FOrvScriptBridgePorts{
              [this]() -> IOrvCatalogAccount* { return bHasAccount ? &Account : nullptr; },
              [this]() -> FOrvWebPanelSession* { return bHasModule ? &Session : nullptr; }, Windows, Log})
    {
    }

    std::vector<std::string> FOrvBridgeTestRig::Problems() const
    {
        std::vector<std::string> Found;
        for (const FOrvRecordingLog::FLine& Line : Log.Lines)
        {
            if (Line.Verbosity == EOrvLogVerbosity::Warning || Line.Verbosity == EOrvLogVerbosity::Error)
            {
                Found.push_back(std::string(OrvLogVerbosityName(Line.Verbosity)) + ": " + Line.Message);
            }
        }
        return Found;
    }
} // namespace OrvWebBridge
