// The outliner panel's row actions and the schedule export.
#include "Core/Common/OrvConstants.h"
#include "Core/Common/OrvLogging.h"
#include "Core/Common/OrvStrings.h"
#include "Core/Outliner/OrvOutlinerCSVExporter.h"
#include "Core/Outliner/OrvOutlinerPanelModel.h"

namespace OrvWebBridge
{
    void FOrvOutlinerPanelModel::AppendLiveActors(const FOrvSceneProduct& Product,
                                                  std::vector<FOrvActorRef>& OutActors) const
    {
        for (const FOrvActorRef Actor : Product.Actors)
        {
            if (Ports.World.IsActorAlive(Actor))
            {
                OutActors.push_back(Actor);
            }
        }
    }

    std::vector<FOrvActorRef>
    FOrvOutlinerPanelModel::CollectLiveActors(const FOrvOutlinerCategoryItem& Item) const
    {
        std::vector<FOrvActorRef> Actors;
        for (const auto& ProductItem : Item.Products)
        {
            if (ProductItem->Product)
            {
                AppendLiveActors(*ProductItem->Product, Actors);
            }
        }
        return Actors;
    }

    std::vector<FOrvActorRef>
    FOrvOutlinerPanelModel::CollectLiveActors(const FOrvOutlinerMacroCategoryItem& Item) const
    {
        std::vector<FOrvActorRef> Actors;
        for (const auto& Category : Item.Categories)
        {
            const std::vector<FOrvActorRef> CategoryActors = CollectLiveActors(*Category);
            Actors.insert(Actors.end(), CategoryActors.begin(), CategoryActors.end());
        }
        return Actors;
    }

    int FOrvOutlinerPanelModel::SelectOnly(const std::vector<FOrvActorRef>& Actors)
    {
        Ports.Selection.SelectNone();
        for (const FOrvActorRef Actor : Actors)
        {
            Ports.Selection.SelectActor(Actor);
        }
        Ports.Selection.NoteSelectionChange();
        return static_cast<int>(Actors.size());
    }

    void FOrvOutlinerPanelModel::OnSelectActorsClicked(const FOrvOutlinerProductItem& Item)
    {
        if (!Item.Product)
        {
            return;
        }
        std::vector<FOrvActorRef> Actors;
        AppendLiveActors(*Item.Product, Actors);
        const int Count = SelectOnly(Actors);
        OrvLogf(Ports.Log, EOrvLogCategory::LogTemp, EOrvLogVerbosity::Log,
                "OrvOutlinerPanel: Selected %d actors for product %s", Count, Item.Product->Name.c_str());
    }

    void FOrvOutlinerPanelModel::OnSelectCategoryClicked(const FOrvOutlinerCategoryItem& Item)
    {
        const int Count = SelectOnly(CollectLiveActors(Item));
        OrvLogf(Ports.Log, EOrvLogCategory::LogTemp, EOrvLogVerbosity::Log,
                "OrvOutlinerPanel: Selected %d actors for category %s", Count, Item.CategoryName.c_str());
    }

    void FOrvOutlinerPanelModel::OnSelectMacroCategoryClicked(const FOrvOutlinerMacroCategoryItem& Item)
    {
        const int Count = SelectOnly(CollectLiveActors(Item));
        OrvLogf(Ports.Log, EOrvLogCategory::LogTemp, EOrvLogVerbosity::Log,
                "OrvOutlinerPanel: Selected %d actors for macro-category %s", Count,
                Item.MacroCategoryName.c_str());
    }

    void FOrvOutlinerPanelModel::SetActorsVisibility(const std::vector<FOrvActorRef>& Actors, bool bVisible)
    {
        for (const FOrvActorRef Actor : Actors)
        {
            if (Actor)
            {
                Ports.Editing.SetTemporarilyHidden(Actor, !bVisible);
            }
        }
    }

    // The hidden sets hold names and survive rescans; actors placed later in a hidden category are left
    // visible (the user just placed them), and the next toggle shows or hides the whole category again.
    bool FOrvOutlinerPanelModel::ToggleHidden(FOrvOutlinerNameSet& HiddenSet, const std::string& Name,
                                              const std::vector<FOrvActorRef>& Actors)
    {
        const bool bWasHidden = HiddenSet.contains(Name);
        SetActorsVisibility(Actors, bWasHidden);
        if (bWasHidden)
        {
            HiddenSet.erase(Name);
        }
        else
        {
            HiddenSet.insert(Name);
        }
        NotifyChanged();
        return bWasHidden;
    }

    void FOrvOutlinerPanelModel::OnToggleCategoryVisibility(const FOrvOutlinerCategoryItem& Item)
    {
        const std::vector<FOrvActorRef> Actors = CollectLiveActors(Item);
        const bool bShown = ToggleHidden(HiddenCategories, Item.CategoryName, Actors);
        OrvLogf(Ports.Log, EOrvLogCategory::LogTemp, EOrvLogVerbosity::Log,
                "OrvOutlinerPanel: %s %d actors in category %s", bShown ? "Showing" : "Hiding",
                static_cast<int>(Actors.size()), Item.CategoryName.c_str());
    }

    void FOrvOutlinerPanelModel::OnToggleMacroCategoryVisibility(const FOrvOutlinerMacroCategoryItem& Item)
    {
        const std::vector<FOrvActorRef> Actors = CollectLiveActors(Item);
        const bool bShown = ToggleHidden(HiddenMacroCategories, Item.MacroCategoryName, Actors);
        OrvLogf(Ports.Log, EOrvLogCategory::LogTemp, EOrvLogVerbosity::Log,
                "OrvOutlinerPanel: %s %d actors in macro-category %s", bShown ? "Showing" : "Hiding",
                static_cast<int>(Actors.size()), Item.MacroCategoryName.c_str());
    }

    void FOrvOutlinerPanelModel::OnNavigateToMeshClicked(const FOrvOutlinerProductItem& Item)
    {
        if (!Item.Product || !Item.Product->Mesh || !Ports.Meshes.IsMeshAlive(Item.Product->Mesh))
        {
            return;
        }
        Ports.Ui.SyncContentBrowserToMesh(Item.Product->Mesh);
        OrvLogf(Ports.Log, EOrvLogCategory::LogTemp, EOrvLogVerbosity::Log,
                "OrvOutlinerPanel: Navigated Content Browser to %s",
                Ports.Meshes.GetMeshPathName(Item.Product->Mesh).c_str());
    }

    void FOrvOutlinerPanelModel::OnOpenWebPanelClicked(const FOrvOutlinerProductItem& Item)
    {
        if (Item.Product)
        {
            NavigateWebPanelToProduct(Item.Product->ProductID);
        }
    }

    void FOrvOutlinerPanelModel::NavigateWebPanelToProduct(std::string_view ProductID)
    {
        const std::string Id(ProductID);
        Ports.Ui.NavigateWebPanel(
            FOrvStrings::Printf("%s/go/product/%s", FOrvConstants::CatalogSiteBaseUrl, Id.c_str()));
        OrvLogf(Ports.Log, EOrvLogCategory::LogTemp, EOrvLogVerbosity::Log,
                "OrvOutlinerPanel: Opening web panel for product %s", Id.c_str());
    }

    void FOrvOutlinerPanelModel::OnExportCSVClicked()
    {
        if (Scanner->GetSceneProducts().IsEmpty())
        {
            OrvLogf(Ports.Log, EOrvLogCategory::LogTemp, EOrvLogVerbosity::Warning,
                    "OrvOutlinerPanel: No products to export");
            return;
        }
        if (OpenExportDialog)
        {
            OpenExportDialog(GetDefaultProjectName(),
                             [this](const std::string& ProjectName, const std::string& Revision)
                             { OnExportConfirmed(ProjectName, Revision); });
        }
    }

    bool FOrvOutlinerPanelModel::OnExportConfirmed(const std::string& ProjectName,
                                                   const std::string& Revision)
    {
        // Checked again: the level may have been rescanned while the dialog was open.
        const FOrvSceneProductMap& Products = Scanner->GetSceneProducts();
        if (Products.IsEmpty())
        {
            OrvLogf(Ports.Log, EOrvLogCategory::LogTemp, EOrvLogVerbosity::Warning,
                    "OrvOutlinerPanel: No products to export");
            return false;
        }
        const std::string CSVContent = FOrvOutlinerCSVExporter::GenerateCSV(Products, ProjectName, Revision,
                                                                            Ports.World, Ports.Environment);
        const bool bSaved =
            FOrvOutlinerCSVExporter::SaveCSVToFile(CSVContent, MakeDefaultFileName(ProjectName, Revision),
                                                   Ports.Files, Ports.Environment, Ports.Log);
        if (bSaved)
        {
            OrvLogf(Ports.Log, EOrvLogCategory::LogTemp, EOrvLogVerbosity::Log,
                    "OrvOutlinerPanel: CSV export completed successfully");
        }
        return bSaved;
    }

    std::string FOrvOutlinerPanelModel::MakeDefaultFileName(std::string_view ProjectName,
                                                            std::string_view Revision)
    {
        std::string SafeName = FOrvStrings::ReplaceAll(ProjectName, " ", "_");
        SafeName = FOrvStrings::ReplaceAll(SafeName, "/", "-");
        SafeName = FOrvStrings::ReplaceAll(SafeName, "\\", "-");
        return SafeName + "_ProductSchedule_R" + std::string(Revision) + ".csv";
    }

    std::string FOrvOutlinerPanelModel::GetDefaultProjectName() const
    {
        std::string MapName = Ports.World.GetMapName();
        // Play-in-editor worlds are named "UEDPIE_<instance>_<map>".
        if (MapName.find('_') != std::string::npos && FOrvStrings::StartsWithIgnoreCase(MapName, "UEDPIE"))
        {
            MapName = MapName.substr(MapName.rfind('_') + 1);
        }
        return MapName.empty() ? "Untitled Project" : MapName;
    }
} // namespace OrvWebBridge
