// Alt+R: the details page of what is selected where the keyboard focus is. Unlike auto-detect it works
// whether or not auto-detect is on, always loads, and leaves the remembered id alone, so a later automatic
// selection of the same item still loads it once.
#include "Core/SmartPanel/OrvSmartPanel.h"

namespace OrvWebBridge
{
    void FOrvSmartPanel::ViewProductDetails()
    {
        Logf(EOrvLogVerbosity::Display, "OrvSmartPanel: Alt+R pressed!");
        const std::optional<std::vector<FOrvActorRef>> Actors = Ports.Selection.GetSelectedActors();
        if (!Actors)
        {
            Logf(EOrvLogVerbosity::Error, "OrvSmartPanel: Alt+R - GEditor is null");
            return;
        }
        if (IsContentBrowserFocused())
        {
            AltRFromContentBrowser();
        }
        else
        {
            AltRFromViewport(*Actors);
        }
    }

    bool FOrvSmartPanel::IsContentBrowserFocused()
    {
        // From the focused widget up: the browser's own widget, or its asset view inside another host.
        for (const std::string& Type : Ports.Focus.GetFocusedWidgetTypes())
        {
            if (FOrvStrings::ContainsIgnoreCase(Type, "SContentBrowser") ||
                FOrvStrings::ContainsIgnoreCase(Type, "SAssetView"))
            {
                Logf(EOrvLogVerbosity::Display,
                     "OrvSmartPanel: Alt+R - Content Browser has focus (detected: %s)", Type.c_str());
                return true;
            }
        }
        Logf(EOrvLogVerbosity::Display, "OrvSmartPanel: Alt+R - Viewport/other panel has focus");
        return false;
    }

    void FOrvSmartPanel::AltRFromViewport(const std::vector<FOrvActorRef>& Actors)
    {
        Logf(EOrvLogVerbosity::Display,
             "OrvSmartPanel: Alt+R - Checking viewport selection, %d actors selected",
             static_cast<int>(Actors.size()));
        for (const FOrvActorRef Actor : Actors)
        {
            for (const FOrvMeshRef Mesh : Ports.World.GetStaticMeshComponents(Actor))
            {
                if (!Mesh)
                {
                    continue;
                }
                const std::string MeshName = Ports.Meshes.GetMeshName(Mesh);
                Logf(EOrvLogVerbosity::Display, "OrvSmartPanel: Alt+R - Found mesh: %s", MeshName.c_str());
                const std::optional<FOrvProductTag> Data = GetProductDataFromMesh(Mesh);
                if (!Data)
                {
                    Logf(EOrvLogVerbosity::Warning, "OrvSmartPanel: Alt+R - No ProductData found on mesh %s",
                         MeshName.c_str());
                    continue;
                }
                Logf(EOrvLogVerbosity::Display,
                     "OrvSmartPanel: Alt+R - Found ProductData, ProductID: %s, IsValid: %d",
                     Data->ProductID.c_str(), Data->bIsValid ? 1 : 0);
                if (Data->bIsValid)
                {
                    Logf(EOrvLogVerbosity::Display, "OrvSmartPanel: Alt+R - Navigating to product %s",
                         Data->ProductID.c_str());
                    LoadInPanel(ProductUrl(Data->ProductID));
                    return;
                }
            }
        }
        Logf(EOrvLogVerbosity::Warning, "OrvSmartPanel: Alt+R pressed but no Orv asset selected in viewport");
    }

    void FOrvSmartPanel::AltRFromContentBrowser()
    {
        const std::vector<FOrvAssetData> Selected = Ports.ContentBrowser.GetSelectedAssets();
        Logf(EOrvLogVerbosity::Display, "OrvSmartPanel: Alt+R - Checking Content Browser, %d assets selected",
             static_cast<int>(Selected.size()));
        for (const FOrvAssetData& Asset : Selected)
        {
            const std::string ClassName(OrvAssetClassName(Asset));
            Logf(EOrvLogVerbosity::Display, "OrvSmartPanel: Alt+R - Asset: %s, Class: %s",
                 Asset.AssetName.c_str(), ClassName.c_str());
            bool bNavigated = false;
            if (FOrvStrings::EqualsIgnoreCase(ClassName, MaterialInstanceClass))
            {
                bNavigated = AltRMaterialInstance(Asset);
            }
            else if (FOrvStrings::EqualsIgnoreCase(ClassName, StaticMeshClass))
            {
                bNavigated = AltRStaticMesh(Asset);
            }
            if (bNavigated)
            {
                return;
            }
        }
        Logf(EOrvLogVerbosity::Warning,
             "OrvSmartPanel: Alt+R pressed but no Orv asset selected in Content Browser");
    }

    bool FOrvSmartPanel::AltRMaterialInstance(const FOrvAssetData& Asset)
    {
        Logf(EOrvLogVerbosity::Display, "OrvSmartPanel: Alt+R - Found MaterialInstanceConstant: %s",
             Asset.AssetName.c_str());
        const std::optional<std::string> FinishId =
            Ports.Assets.LoadMaterialInstanceMetaData(Asset, FinishIdKey);
        if (!FinishId)
        {
            Logf(EOrvLogVerbosity::Warning, "OrvSmartPanel: Alt+R - Failed to load material instance");
            return false;
        }
        if (FinishId->empty())
        {
            Logf(EOrvLogVerbosity::Warning,
                 "OrvSmartPanel: Alt+R - No Orv_FinishID parameter found on material");
            return false;
        }
        Logf(EOrvLogVerbosity::Display, "OrvSmartPanel: Alt+R - Found FinishID parameter: %s",
             FinishId->c_str());
        Logf(EOrvLogVerbosity::Display, "OrvSmartPanel: Alt+R - Navigating to finish collection %s",
             FinishId->c_str());
        LoadInPanel(FinishUrl(*FinishId));
        return true;
    }

    bool FOrvSmartPanel::AltRStaticMesh(const FOrvAssetData& Asset)
    {
        Logf(EOrvLogVerbosity::Display, "OrvSmartPanel: Alt+R - Found StaticMesh: %s",
             Asset.AssetName.c_str());
        const FOrvMeshRef Mesh = Ports.Assets.LoadStaticMeshAsset(Asset);
        if (!Mesh)
        {
            Logf(EOrvLogVerbosity::Warning, "OrvSmartPanel: Alt+R - Failed to load static mesh");
            return false;
        }
        const std::optional<FOrvProductTag> Data = GetProductDataFromMesh(Mesh);
        if (!Data)
        {
            Logf(EOrvLogVerbosity::Warning, "OrvSmartPanel: Alt+R - No OrvProductData found on static mesh");
            return false;
        }
        Logf(EOrvLogVerbosity::Display, "OrvSmartPanel: Alt+R - Found ProductID: %s",
             Data->ProductID.c_str());
        if (!Data->bIsValid)
        {
            // A tag the import module no longer vouches for: same rule as in the viewport.
            return false;
        }
        Logf(EOrvLogVerbosity::Display, "OrvSmartPanel: Alt+R - Navigating to product %s",
             Data->ProductID.c_str());
        LoadInPanel(ProductUrl(Data->ProductID));
        return true;
    }
} // namespace OrvWebBridge
