#include "Core/SmartPanel/OrvSmartPanel.h"

#include <cstdarg>

namespace OrvWebBridge
{
    std::string_view OrvAssetClassName(const FOrvAssetData& Asset)
    {
        // A top-level asset path: "/Script/Package.ClassName".
        const std::string_view Path = Asset.ClassPath;
        const std::size_t Dot = Path.find_last_of("./");
        return Dot == std::string_view::npos ? Path : Path.substr(Dot + 1);
    }

    FOrvSmartPanel::FOrvSmartPanel(const FOrvSmartPanelPorts& InPorts, std::string InSiteBaseUrl)
        : Ports(InPorts), SiteBaseUrl(std::move(InSiteBaseUrl))
    {
    }

    void FOrvSmartPanel::SetAutoDetect(bool bEnabled)
    {
        bAutoDetect = bEnabled;
        Logf(EOrvLogVerbosity::Display, "OrvSmartPanel: Auto-Detect %s", bEnabled ? "enabled" : "disabled");
    }

    void FOrvSmartPanel::OnViewportSelectionChanged()
    {
        const std::optional<std::vector<FOrvActorRef>> Actors = Ports.Selection.GetSelectedActors();
        if (!Actors)
        {
            return;
        }
        if (!bAutoDetect)
        {
            Logf(EOrvLogVerbosity::Verbose, "OrvSmartPanel: Selection changed but auto-navigate is disabled");
            return;
        }
        if (!Ports.Panel.IsOpen())
        {
            Logf(EOrvLogVerbosity::Verbose, "OrvSmartPanel: Selection changed but panel is not open");
            return;
        }
        Logf(EOrvLogVerbosity::Display,
             "OrvSmartPanel: Auto-navigate triggered - Viewport selection changed");
        if (const std::optional<std::string> ProductId = FindSelectedProduct(*Actors))
        {
            ShowUnlessDisplayed(*ProductId, /*bFinish=*/false);
        }
    }

    void FOrvSmartPanel::OnContentBrowserSelectionChanged(const std::vector<FOrvAssetData>& Selected)
    {
        if (!bAutoDetect || !Ports.Panel.IsOpen())
        {
            return;
        }
        // As in the viewport, the first selected item with an id decides: each load replaces the page, so
        // going on would only show the last one after flashing the others.
        for (const FOrvAssetData& Asset : Selected)
        {
            bool bFinish = false;
            if (const std::optional<std::string> Id = FindAssetId(Asset, bFinish))
            {
                ShowUnlessDisplayed(*Id, bFinish);
                return;
            }
        }
    }

    void FOrvSmartPanel::CopyUrl()
    {
        const std::string Url = Ports.Panel.GetUrl();
        Ports.Clipboard.ClipboardCopy(Url);
        Logf(EOrvLogVerbosity::Display, "OrvSmartPanel: Copied URL to clipboard: %s", Url.c_str());
    }

    std::optional<FOrvProductTag> FOrvSmartPanel::GetProductDataFromMesh(FOrvMeshRef Mesh)
    {
        if (!Mesh || !Ports.Meshes.IsMeshAlive(Mesh))
        {
            Logf(EOrvLogVerbosity::Verbose, "OrvSmartPanel: GetProductDataFromMesh - Mesh is null");
            return std::nullopt;
        }
        const std::string MeshName = Ports.Meshes.GetMeshName(Mesh);
        const std::optional<std::vector<FOrvAssetUserData>> UserData = Ports.Meshes.GetAssetUserData(Mesh);
        if (!UserData)
        {
            Logf(EOrvLogVerbosity::Verbose,
                 "OrvSmartPanel: GetProductDataFromMesh - No AssetUserData array on mesh %s",
                 MeshName.c_str());
            return std::nullopt;
        }
        Logf(EOrvLogVerbosity::Verbose,
             "OrvSmartPanel: GetProductDataFromMesh - Mesh %s has %d user data entries", MeshName.c_str(),
             static_cast<int>(UserData->size()));
        for (const FOrvAssetUserData& Entry : *UserData)
        {
            Logf(EOrvLogVerbosity::Verbose, "OrvSmartPanel: GetProductDataFromMesh - UserData class: %s",
                 Entry.ClassName.c_str());
            if (Entry.ProductData)
            {
                Logf(EOrvLogVerbosity::Display,
                     "OrvSmartPanel: GetProductDataFromMesh - Found OrvProductData with ID: %s",
                     Entry.ProductData->ProductID.c_str());
                return Entry.ProductData;
            }
        }
        Logf(EOrvLogVerbosity::Verbose,
             "OrvSmartPanel: GetProductDataFromMesh - No OrvProductData found on mesh %s", MeshName.c_str());
        return std::nullopt;
    }

    void FOrvSmartPanel::ShowUnlessDisplayed(const std::string& Id, bool bFinish)
    {
        // The callers found the id themselves; looking it up again would log the search twice.
        if (FOrvStrings::EqualsIgnoreCase(Id, LastDisplayedId))
        {
            Logf(EOrvLogVerbosity::Verbose, "OrvSmartPanel: %s %s already displayed, skipping reload",
                 bFinish ? "Finish" : "Product", Id.c_str());
        }
        else if (bFinish)
        {
            ShowFinish(Id);
        }
        else
        {
            ShowProduct(Id);
        }
    }

    void FOrvSmartPanel::ShowProduct(const std::string& ProductId)
    {
        LastDisplayedId = ProductId;
        const std::string Url = ProductUrl(ProductId);
        Logf(EOrvLogVerbosity::Display, "OrvSmartPanel: Navigating to product %s", ProductId.c_str());
        LoadInPanel(Url);
    }

    void FOrvSmartPanel::ShowFinish(const std::string& FinishId)
    {
        LastDisplayedId = FinishId;
        const std::string Url = FinishUrl(FinishId);
        Logf(EOrvLogVerbosity::Display, "OrvSmartPanel: Auto-navigate to finish collection %s",
             FinishId.c_str());
        LoadInPanel(Url);
    }

    std::optional<std::string> FOrvSmartPanel::FindSelectedProduct(const std::vector<FOrvActorRef>& Actors)
    {
        for (const FOrvActorRef Actor : Actors)
        {
            for (const FOrvMeshRef Mesh : Ports.World.GetStaticMeshComponents(Actor))
            {
                const std::optional<FOrvProductTag> Data = GetProductDataFromMesh(Mesh);
                if (Data && Data->bIsValid)
                {
                    return Data->ProductID;
                }
            }
        }
        return std::nullopt;
    }

    std::optional<std::string> FOrvSmartPanel::FindAssetId(const FOrvAssetData& Asset, bool& bFinish)
    {
        // Class names are names: compared ignoring case.
        const std::string_view ClassName = OrvAssetClassName(Asset);
        if (FOrvStrings::EqualsIgnoreCase(ClassName, MaterialInstanceClass))
        {
            std::optional<std::string> FinishId =
                Ports.Assets.LoadMaterialInstanceMetaData(Asset, FinishIdKey);
            bFinish = true;
            return FinishId && !FinishId->empty() ? FinishId : std::nullopt;
        }
        if (FOrvStrings::EqualsIgnoreCase(ClassName, StaticMeshClass))
        {
            const std::optional<FOrvProductTag> Data =
                GetProductDataFromMesh(Ports.Assets.LoadStaticMeshAsset(Asset));
            bFinish = false;
            return Data && Data->bIsValid ? std::optional<std::string>(Data->ProductID) : std::nullopt;
        }
        return std::nullopt;
    }

    void FOrvSmartPanel::LoadInPanel(const std::string& Url)
    {
        if (Ports.Panel.IsOpen())
        {
            Ports.Panel.LoadUrl(Url);
        }
    }

    std::string FOrvSmartPanel::ProductUrl(std::string_view ProductId) const
    {
        return SiteBaseUrl + "/go/product/" + std::string(ProductId);
    }

    std::string FOrvSmartPanel::FinishUrl(std::string_view FinishId) const
    {
        return SiteBaseUrl + "/go/finish/" + std::string(FinishId);
    }

    void FOrvSmartPanel::Logf(EOrvLogVerbosity Verbosity, const char* Format, ...)
    {
        va_list Args;
        va_start(Args, Format);
        const std::string Message = FOrvStrings::VPrintf(Format, Args);
        va_end(Args);
        Ports.Log.Log(EOrvLogCategory::LogTemp, Verbosity, Message);
    }
} // namespace OrvWebBridge
