#include "Core/Outliner/OrvOutlinerPanelModel.h"

#include "Core/Common/OrvLogging.h"
#include "Core/Outliner/OrvOutlinerTexts.h"
#include "Core/Outliner/OrvOutlinerTreeBuilder.h"

namespace OrvWebBridge
{
    FOrvOutlinerPanelModel::FOrvOutlinerPanelModel(const FOrvOutlinerPanelPorts& InPorts)
        : Ports(InPorts), Scanner(std::make_unique<FOrvOutlinerScanner>(FOrvOutlinerScannerPorts{
                              InPorts.World, InPorts.Meshes, InPorts.Api, InPorts.Log})),
          StatusText(FOrvOutlinerPanelTexts::Scanning.Text)
    {
    }

    FOrvOutlinerPanelModel::~FOrvOutlinerPanelModel()
    {
        // The timer first, so that no rescan fires while the rest is torn down.
        CancelDebouncedRefresh();
        Ports.LevelEvents.RemoveActorHandlers(ActorEventsHandle);
        Scanner->CancelScan();
    }

    void FOrvOutlinerPanelModel::Construct()
    {
        RegisterForLevelChanges();
        RefreshPanel();
    }

    void FOrvOutlinerPanelModel::RegisterForLevelChanges()
    {
        if (!Ports.World.HasEditorWorld())
        {
            return;
        }
        ActorEventsHandle =
            Ports.LevelEvents.AddActorHandlers([this](FOrvActorRef Actor) { OnActorSpawned(Actor); },
                                               [this](FOrvActorRef Actor) { OnActorDeleted(Actor); });
        if (ActorEventsHandle.IsValid())
        {
            OrvLogf(Ports.Log, EOrvLogCategory::LogTemp, EOrvLogVerbosity::Log,
                    "OrvOutlinerPanel: Registered for world actor changes");
        }
    }

    void FOrvOutlinerPanelModel::OnWorldTornDown()
    {
        CancelDebouncedRefresh();
        Ports.LevelEvents.RemoveActorHandlers(ActorEventsHandle);
        ActorEventsHandle = {};
        if (bIsRefreshing)
        {
            // The old level's catalogue answer must not fill the new level's tree.
            Scanner->CancelScan();
            bIsRefreshing = false;
        }
    }

    void FOrvOutlinerPanelModel::OnMapOpened()
    {
        // Also covers a map change that came without a tear-down notice.
        OnWorldTornDown();
        RegisterForLevelChanges();
        RefreshPanel();
    }

    void FOrvOutlinerPanelModel::RefreshPanel()
    {
        if (bIsRefreshing)
        {
            return;
        }
        bIsRefreshing = true;
        SetStatusText(FOrvOutlinerPanelTexts::Scanning.Text);
        Scanner->ScanScene([this](const FOrvOutlinerTreeItems& Items) { OnScanComplete(Items); });
    }

    void FOrvOutlinerPanelModel::OnScanComplete(const FOrvOutlinerTreeItems& InRootItems)
    {
        bIsRefreshing = false;
        RootItems = InRootItems;
        // Tagged actors, not unique products: ten chairs of one kind read "10 products in scene".
        ProductCount = Scanner->GetTotalProductCount();
        SetStatusText(FOrvOutlinerPanelTexts::FormatStatus(ProductCount));
    }

    void FOrvOutlinerPanelModel::SetStatusText(std::string Text)
    {
        StatusText = std::move(Text);
        NotifyChanged();
    }

    void FOrvOutlinerPanelModel::NotifyChanged()
    {
        if (OnChanged)
        {
            OnChanged();
        }
    }

    std::int32_t FOrvOutlinerPanelModel::GetProductRowCount(const FOrvOutlinerProductItem& Item) const
    {
        return Item.Product ? FOrvOutlinerTreeBuilder::CountLiveActors(*Item.Product, Ports.World) : 0;
    }

    void FOrvOutlinerPanelModel::OnItemExpansionChanged(const FOrvOutlinerTreeItem& Item, bool bIsExpanded)
    {
        FOrvOutlinerNameSet* Names = nullptr;
        const std::string* Name = nullptr;
        if (const FOrvOutlinerMacroCategoryItem* Macro = Item.AsMacroCategory())
        {
            Names = &ExpandedMacroCategories;
            Name = &Macro->MacroCategoryName;
        }
        else if (const FOrvOutlinerCategoryItem* Category = Item.AsCategory())
        {
            Names = &ExpandedCategories;
            Name = &Category->CategoryName;
        }
        if (!Names)
        {
            return;
        }
        if (bIsExpanded)
        {
            Names->insert(*Name);
        }
        else
        {
            Names->erase(*Name);
        }
    }

    bool FOrvOutlinerPanelModel::IsItemExpanded(const FOrvOutlinerTreeItem& Item) const
    {
        if (const FOrvOutlinerMacroCategoryItem* Macro = Item.AsMacroCategory())
        {
            return ExpandedMacroCategories.contains(Macro->MacroCategoryName);
        }
        if (const FOrvOutlinerCategoryItem* Category = Item.AsCategory())
        {
            return ExpandedCategories.contains(Category->CategoryName);
        }
        return false;
    }

    FOrvOutlinerTreeItems FOrvOutlinerPanelModel::GetItemsToExpand() const
    {
        FOrvOutlinerTreeItems Items;
        for (const FOrvOutlinerTreeItemPtr& Root : RootItems)
        {
            if (IsItemExpanded(*Root))
            {
                Items.push_back(Root);
            }
            if (const FOrvOutlinerMacroCategoryItem* Macro = Root->AsMacroCategory())
            {
                for (const auto& Category : Macro->Categories)
                {
                    if (IsItemExpanded(*Category))
                    {
                        Items.push_back(Category);
                    }
                }
            }
        }
        return Items;
    }

    void FOrvOutlinerPanelModel::OnActorSpawned(FOrvActorRef Actor)
    {
        // Lights, cameras and volumes cannot be catalogue products.
        if (!Ports.World.GetStaticMeshComponents(Actor).empty())
        {
            ScheduleDebouncedRefresh();
        }
    }

    void FOrvOutlinerPanelModel::OnActorDeleted(FOrvActorRef)
    {
        ScheduleDebouncedRefresh();
    }

    void FOrvOutlinerPanelModel::ScheduleDebouncedRefresh()
    {
        CancelDebouncedRefresh();
        DebounceTimer = Ports.Timers.SetTimer(RefreshDebounceDelay,
                                              [this]()
                                              {
                                                  DebounceTimer = {};
                                                  RefreshPanel();
                                              });
    }

    void FOrvOutlinerPanelModel::CancelDebouncedRefresh()
    {
        if (DebounceTimer.IsValid())
        {
            Ports.Timers.ClearTimer(DebounceTimer);
        }
    }
} // namespace OrvWebBridge
