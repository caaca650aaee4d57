#include "Host/Catalog/OrvHostCatalog.h"

#include "Host/Catalog/OrvOfflineCatalogApi.h"
#include "Host/Editor/OrvDemoScene.h"
#include "Host/Runtime/OrvHostEventLoop.h"
#include "Host/Runtime/OrvHttpCatalogApi.h"

namespace OrvWebBridge
{
    FOrvHostCatalog FOrvHostCatalog::Open(const FOrvCatalogSourceOptions& Options, FOrvHostEventLoop& Loop)
    {
        FOrvHostCatalog Catalog;
        if (!Options.ApiUrl.empty())
        {
            std::string Problem;
            if (!FOrvHttpCatalogApi::IsValidBaseUrl(Options.ApiUrl, Problem))
            {
                Catalog.Error = "--api " + Options.ApiUrl + ": " + Problem;
                return Catalog;
            }
            Catalog.Api = std::make_unique<FOrvHttpCatalogApi>(Loop, Options.ApiUrl);
            Catalog.Description = "catalogue service at " + Options.ApiUrl;
            return Catalog;
        }

        auto Offline = std::make_unique<FOrvOfflineCatalogApi>(Loop.GameThread());
        const bool bFromFile = !Options.CatalogFile.empty();
        const FOrvOfflineCatalogLoad Load =
            bFromFile ? Offline->LoadFile(Options.CatalogFile)
                      : Offline->LoadText(FOrvDemoScene::CatalogJson(), "built-in demo catalogue");
        if (!Load.bOk)
        {
            Catalog.Error = Load.Error;
            return Catalog;
        }
        Catalog.Description = (bFromFile ? "offline catalogue " + Options.CatalogFile
                                         : std::string("built-in demo catalogue")) +
                              " (" + std::to_string(Offline->GetProductCount()) + " products)";
        Catalog.Api = std::move(Offline);
        return Catalog;
    }
} // namespace OrvWebBridge
