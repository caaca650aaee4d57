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
} // namespace OrvWebBridge
