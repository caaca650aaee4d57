#pragma once

#include "Core/Outliner/OrvOutlinerNameKey.h"
#include "Core/Outliner/OrvOutlinerScanner.h"
#include "Core/Outliner/OrvOutlinerTreeItems.h"
#include "Core/Ports/IOrvActorEditing.h"
#include "Core/Ports/IOrvAssetRegistry.h"
#include "Core/Ports/IOrvCatalogApi.h"
#include "Core/Ports/IOrvEditorSelection.h"
#include "Core/Ports/IOrvEditorUi.h"
#include "Core/Ports/IOrvEditorWorld.h"
#include "Core/Ports/IOrvEnvironment.h"
#include "Core/Ports/IOrvFiles.h"
#include "Core/Ports/IOrvLog.h"
#include "Core/Ports/IOrvTimers.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace OrvWebBridge
{
    /** @brief Everything of the editor the outliner panel reaches. */
    struct FOrvOutlinerPanelPorts
    {
        IOrvEditorWorld& World;
        IOrvLevelEvents& LevelEvents;
        IOrvStaticMeshes& Meshes;
        IOrvCatalogApi& Api;
        IOrvEditorSelection& Selection;
        IOrvActorEditing& Editing;
        IOrvTimers& Timers;
        IOrvEditorUi& Ui;
        IOrvFiles& Files;
        IOrvEnvironment& Environment;
        IOrvLog& Log;
    };

    /** @brief Hands the export dialog's project name and revision back. */
    using FOrvOutlinerExportCallback =
        std::function<void(const std::string& ProjectName, const std::string& Revision)>;

    /** @brief Opens the export dialog with a default project name (SOrvOutlinerExportDialog::OpenDialog). */
    using FOrvOutlinerOpenExportDialog =
        std::function<void(const std::string& DefaultProjectName, FOrvOutlinerExportCallback OnExport)>;

    /**
     * @brief What the "Orv Outliner" panel shows and does, without the widgets: the status text, the tree,
     * the expansion and hidden states kept by name across rescans, the row actions, the debounced rescan on
     * level changes and the schedule export. SOrvOutlinerPanel only draws it. Game thread only.
     */
    class FOrvOutlinerPanelModel
    {
    public:
        static constexpr double RefreshDebounceDelay = 0.5;

        explicit FOrvOutlinerPanelModel(const FOrvOutlinerPanelPorts& InPorts);
        ~FOrvOutlinerPanelModel();
        FOrvOutlinerPanelModel(const FOrvOutlinerPanelModel&) = delete;
        FOrvOutlinerPanelModel& operator=(const FOrvOutlinerPanelModel&) = delete;

        /** Called whenever the status text or the tree changed, so the view redraws. */
        void SetOnChanged(std::function<void()> InOnChanged) { OnChanged = std::move(InOnChanged); }

        /** How the export button opens the export dialog. */
        void SetOpenExportDialog(FOrvOutlinerOpenExportDialog InOpenExportDialog)
        {
            OpenExportDialog = std::move(InOpenExportDialog);
        }

        /** Registers for the level's actor changes and starts the first scan. */
        void Construct();

        /** Rescans unless a scan is already running. */
        void RefreshPanel();
        void OnRefreshClicked() { RefreshPanel(); }

        /** The sign-in gate: the tree page is shown only when true, else the login notice. */
        bool IsUserLoggedIn() const { return Ports.Ui.IsUserLoggedIn(); }

        // What the view draws.
        const std::string& GetStatusText() const { return StatusText; }
        const FOrvOutlinerTreeItems& GetRootItems() const { return RootItems; }
        std::int32_t GetProductCount() const { return ProductCount; }
        bool IsRefreshing() const { return bIsRefreshing; }
        const FOrvOutlinerScanner& GetScanner() const { return *Scanner; }
        FOrvOutlinerTreeItems OnGetChildren(const FOrvOutlinerTreeItem& Item) const
        {
            return Item.GetChildren();
        }

        /** A product row's count: its actors that still exist. */
        std::int32_t GetProductRowCount(const FOrvOutlinerProductItem& Item) const;

        // Expansion, kept by name across rescans.
        void OnItemExpansionChanged(const FOrvOutlinerTreeItem& Item, bool bIsExpanded);
        bool IsItemExpanded(const FOrvOutlinerTreeItem& Item) const;
        /** The macro category and category items (nested or at the root) to expand after the last rescan. */
        FOrvOutlinerTreeItems GetItemsToExpand() const;

        // Row actions.
        void OnSelectActorsClicked(const FOrvOutlinerProductItem& Item);
        void OnSelectCategoryClicked(const FOrvOutlinerCategoryItem& Item);
        void OnSelectMacroCategoryClicked(const FOrvOutlinerMacroCategoryItem& Item);
        void OnToggleCategoryVisibility(const FOrvOutlinerCategoryItem& Item);
        void OnToggleMacroCategoryVisibility(const FOrvOutlinerMacroCategoryItem& Item);
        bool IsCategoryHidden(std::string_view CategoryName) const
        {
            return HiddenCategories.contains(CategoryName);
        }
        bool IsMacroCategoryHidden(std::string_view Name) const
        {
            return HiddenMacroCategories.contains(Name);
        }
        void OnNavigateToMeshClicked(const FOrvOutlinerProductItem& Item);
        void OnOpenWebPanelClicked(const FOrvOutlinerProductItem& Item);
        void NavigateWebPanelToProduct(std::string_view ProductID);

        // Export.
        void OnExportCSVClicked();
        /** Writes the schedule through the save dialog; true when a file was written. */
        bool OnExportConfirmed(const std::string& ProjectName, const std::string& Revision);
        /** The editor map's name without a play-in-editor prefix; "Untitled Project" when empty. */
        std::string GetDefaultProjectName() const;
        /** "<project>_ProductSchedule_R<revision>.csv" with blanks, "/" and "\" made file-name safe. */
        static std::string MakeDefaultFileName(std::string_view ProjectName, std::string_view Revision);

        // Level events.
        void OnActorSpawned(FOrvActorRef Actor);
        void OnActorDeleted(FOrvActorRef Actor);
        void OnLevelActorDeleted(FOrvActorRef Actor) { OnActorDeleted(Actor); }
        void ScheduleDebouncedRefresh();
        void CancelDebouncedRefresh();

        // Map changes: the editor replaces its world, and with it the actor notifications and the timers.
        /** The world is about to go: drops its actor registrations, the pending rescan and a running scan. */
        void OnWorldTornDown();
        /** A map was loaded or created: follows the new world's actor changes and rescans it. */
        void OnMapOpened();

    private:
        void RegisterForLevelChanges();
        void OnScanComplete(const FOrvOutlinerTreeItems& InRootItems);
        void SetStatusText(std::string Text);
        void NotifyChanged();
        std::vector<FOrvActorRef> CollectLiveActors(const FOrvOutlinerCategoryItem& Item) const;
        std::vector<FOrvActorRef> CollectLiveActors(const FOrvOutlinerMacroCategoryItem& Item) const;
        void AppendLiveActors(const FOrvSceneProduct& Product, std::vector<FOrvActorRef>& OutActors) const;
        int SelectOnly(const std::vector<FOrvActorRef>& Actors);
        void SetActorsVisibility(const std::vector<FOrvActorRef>& Actors, bool bVisible);
        /** Shows the actors when Name is in HiddenSet, else hides them; true when they were shown. */
        bool ToggleHidden(FOrvOutlinerNameSet& HiddenSet, const std::string& Name,
                          const std::vector<FOrvActorRef>& Actors);

        FOrvOutlinerPanelPorts Ports;
        std::unique_ptr<FOrvOutlinerScanner> Scanner;
        FOrvOutlinerTreeItems RootItems;
        FOrvOutlinerNameSet ExpandedMacroCategories;
        FOrvOutlinerNameSet ExpandedCategories;
        FOrvOutlinerNameSet HiddenMacroCategories;
        FOrvOutlinerNameSet HiddenCategories;
        std::int32_t ProductCount = 0;
        bool bIsRefreshing = false;
        std::string StatusText;
        FOrvTimerHandle DebounceTimer;
        FOrvActorEventsHandle ActorEventsHandle;
        std::function<void()> OnChanged;
        FOrvOutlinerOpenExportDialog OpenExportDialog;
    };
} // namespace OrvWebBridge
