#include "Core/Outliner/OrvOutlinerPanelModel.h"
#include "Core/Outliner/OrvOutlinerTexts.h"
#include "Tests/Unit/Outliner/OrvOutlinerTestRig.h"

#include <gtest/gtest.h>

using namespace OrvWebBridge;

namespace
{
    /** Six actors of three products: two macro categories and a root-level category. */
    struct FOrvOutlinerPanelModelTest : ::testing::Test
    {
        FOrvOutlinerRig Rig;
        std::vector<FOrvActorRef> Chairs;
        std::vector<FOrvActorRef> Lamps;
        std::vector<FOrvActorRef> Rugs;
        FOrvMeshRef ChairMesh;

        void SetUp() override
        {
            ChairMesh = Rig.AddProductMesh("SM_Chair", "P-CHAIR");
            Chairs = Rig.AddActors(ChairMesh, 3);
            Lamps = Rig.AddActors(Rig.AddProductMesh("SM_Lamp", "P-LAMP"), 2);
            Rugs = Rig.AddActors(Rig.AddProductMesh("SM_Rug", "P-RUG"), 1);
        }

        static std::string Answer()
        {
            return OrvTestAnswer(
                {{"P-CHAIR", OrvTestRecord("P-CHAIR", "Hay", "About", "Chairs", "Seating")},
                 {"P-LAMP", OrvTestRecord("P-LAMP", "Flos", "Arco", "Floor Lamps", "Lighting")},
                 {"P-RUG", OrvTestRecord("P-RUG", "Vitra", "Rug", "Rugs")}});
        }

        /** A constructed panel whose first scan has its answer. */
        std::unique_ptr<FOrvOutlinerPanelModel> MakeScannedPanel()
        {
            auto Panel = std::make_unique<FOrvOutlinerPanelModel>(Rig.PanelPorts());
            Panel->Construct();
            Rig.Api.Answer(Answer());
            return Panel;
        }

        static const FOrvOutlinerMacroCategoryItem& Macro(const FOrvOutlinerPanelModel& Panel,
                                                          std::size_t Index)
        {
            return *Panel.GetRootItems().at(Index)->AsMacroCategory();
        }

        static const FOrvOutlinerCategoryItem& RootCategory(const FOrvOutlinerPanelModel& Panel)
        {
            return *Panel.GetRootItems().back()->AsCategory();
        }
    };

    std::vector<std::string> Names(const FOrvOutlinerTreeItems& Items)
    {
        std::vector<std::string> Result;
        for (const FOrvOutlinerTreeItemPtr& Item : Items)
        {
            Result.push_back(Item->AsMacroCategory() ? Item->AsMacroCategory()->MacroCategoryName
                                                     : Item->AsCategory()->CategoryName);
        }
        return Result;
    }
} // namespace

TEST(FOrvOutlinerPanelTextsTest, StatusCountsWithThePluralRuleAndThousandsGrouping)
{
    EXPECT_EQ(FOrvOutlinerPanelTexts::FormatStatus(0), "No products in scene");
    EXPECT_EQ(FOrvOutlinerPanelTexts::FormatStatus(1), "1 product in scene");
    EXPECT_EQ(FOrvOutlinerPanelTexts::FormatStatus(10), "10 products in scene");
    EXPECT_EQ(FOrvOutlinerPanelTexts::FormatStatus(1234567), "1,234,567 products in scene");
    EXPECT_EQ(FOrvOutlinerPanelTexts::FormatRowCount(999), "x999");
    EXPECT_EQ(FOrvOutlinerPanelTexts::FormatRowCount(1000), "x1,000");
}

TEST_F(FOrvOutlinerPanelModelTest, StatusShowsScanningThenTheNumberOfTaggedActorsAndAScanRunsOneAtATime)
{
    FOrvOutlinerPanelModel Panel(Rig.PanelPorts());
    int Changes = 0;
    Panel.SetOnChanged([&]() { ++Changes; });
    Panel.Construct();

    EXPECT_EQ(Panel.GetStatusText(), "Scanning...");
    EXPECT_TRUE(Panel.IsRefreshing());
    EXPECT_TRUE(
        Rig.Log.Contains(EOrvLogVerbosity::Log, "OrvOutlinerPanel: Registered for world actor changes"));

    // Refresh and level changes while the scan waits start no second one.
    Panel.OnRefreshClicked();
    Rig.Destroy(Chairs[0]);
    Rig.Timers.Advance(1.0);
    EXPECT_EQ(Rig.Api.Requests.size(), 1u);
    EXPECT_EQ(Rig.Log.Count("OrvOutlinerScanner: Scan already in progress"), 0);

    Rig.Api.Answer(Answer());
    EXPECT_EQ(Panel.GetStatusText(), "6 products in scene") << "actors, not unique products";
    EXPECT_FALSE(Panel.IsRefreshing());
    EXPECT_EQ(Names(Panel.GetRootItems()), (std::vector<std::string>{"Lighting", "Seating", "Rugs"}));
    EXPECT_GE(Changes, 2);
}

TEST_F(FOrvOutlinerPanelModelTest, ExpansionIsKeptByNameAcrossTheDebouncedRescan)
{
    auto Panel = MakeScannedPanel();
    Panel->OnItemExpansionChanged(Macro(*Panel, 0), true);                // Lighting
    Panel->OnItemExpansionChanged(Macro(*Panel, 1), true);                // Seating
    Panel->OnItemExpansionChanged(*Macro(*Panel, 1).Categories[0], true); // Chairs
    Panel->OnItemExpansionChanged(RootCategory(*Panel), true);            // Rugs
    Panel->OnItemExpansionChanged(*Macro(*Panel, 1).Categories[0]->Products[0], true);
    Panel->OnItemExpansionChanged(Macro(*Panel, 0), false); // collapsed again

    Rig.Destroy(Chairs[0]);
    Rig.Timers.Advance(FOrvOutlinerPanelModel::RefreshDebounceDelay);

    EXPECT_EQ(Panel->GetStatusText(), "5 products in scene");
    EXPECT_EQ(Names(Panel->GetItemsToExpand()), (std::vector<std::string>{"Seating", "Chairs", "Rugs"}));
    EXPECT_FALSE(Panel->IsItemExpanded(Macro(*Panel, 0)));
    EXPECT_EQ(Macro(*Panel, 1).ActorCount, 2);
}

TEST_F(FOrvOutlinerPanelModelTest, BurstOfLevelChangesGivesOneRescanHalfASecondAfterTheLastAndLightsGiveNone)
{
    auto Panel = MakeScannedPanel();
    ASSERT_EQ(Rig.Log.Count("OrvOutlinerScanner: Found 3 unique products, 6 total actors"), 1);

    Rig.Destroy(Chairs[0]);
    Rig.Timers.Advance(0.3);
    Rig.Destroy(Chairs[1]);
    Rig.Timers.Advance(0.3);
    Rig.AddActor({ChairMesh});
    Rig.Timers.Advance(0.3);
    EXPECT_EQ(Rig.Log.Count("OrvOutlinerScanner: Found 3 unique products, 5 total actors"), 0);
    EXPECT_EQ(Rig.Timers.PendingCount(), 1u);

    Rig.Timers.Advance(0.2);
    EXPECT_EQ(Rig.Log.Count("OrvOutlinerScanner: Found 3 unique products, 5 total actors"), 1);
    EXPECT_EQ(Rig.Timers.PendingCount(), 0u);
    EXPECT_EQ(Rig.Api.Requests.size(), 1u) << "known products come from the cache";

    Rig.AddActor({}); // a light: no static mesh component, no rescan
    EXPECT_EQ(Rig.Timers.PendingCount(), 0u);
    Rig.Editor.Editing().SpawnStaticMeshActor({}, {});
    EXPECT_EQ(Rig.Timers.PendingCount(), 1u);
}

TEST_F(FOrvOutlinerPanelModelTest, SelectingPicksOnlyLiveActorsOfTheRowAndLogs)
{
    auto Panel = MakeScannedPanel();
    Rig.Destroy(Chairs[2]);
    const FOrvOutlinerCategoryItem& ChairsItem = *Macro(*Panel, 1).Categories[0];

    Panel->OnSelectActorsClicked(*ChairsItem.Products[0]);
    EXPECT_EQ(Rig.Editor.GetSelectedActors(), (std::vector<FOrvActorRef>{Chairs[0], Chairs[1]}));
    EXPECT_TRUE(
        Rig.Log.Contains(EOrvLogVerbosity::Log, "OrvOutlinerPanel: Selected 2 actors for product About"));

    Panel->OnSelectCategoryClicked(RootCategory(*Panel));
    EXPECT_EQ(Rig.Editor.GetSelectedActors(), Rugs) << "the selection is replaced";
    EXPECT_TRUE(
        Rig.Log.Contains(EOrvLogVerbosity::Log, "OrvOutlinerPanel: Selected 1 actors for category Rugs"));

    Panel->OnSelectMacroCategoryClicked(Macro(*Panel, 0));
    EXPECT_EQ(Rig.Editor.GetSelectedActors(), Lamps);
    EXPECT_TRUE(Rig.Log.Contains(EOrvLogVerbosity::Log,
                                 "OrvOutlinerPanel: Selected 2 actors for macro-category Lighting"));
    EXPECT_EQ(Rig.Editor.GetSelectionChangeNotifications(), 3);
}

TEST_F(FOrvOutlinerPanelModelTest, HidingACategoryHidesItsActorsAndIsRememberedAcrossRescans)
{
    auto Panel = MakeScannedPanel();
    const auto IsHidden = [&](FOrvActorRef Actor) { return Rig.Editor.FindActor(Actor)->bTemporarilyHidden; };

    Panel->OnToggleCategoryVisibility(*Macro(*Panel, 1).Categories[0]);
    EXPECT_TRUE(IsHidden(Chairs[0]) && IsHidden(Chairs[2]));
    EXPECT_FALSE(IsHidden(Lamps[0]));
    EXPECT_TRUE(
        Rig.Log.Contains(EOrvLogVerbosity::Log, "OrvOutlinerPanel: Hiding 3 actors in category Chairs"));

    Panel->OnRefreshClicked();
    EXPECT_TRUE(Panel->IsCategoryHidden("Chairs"));
    EXPECT_FALSE(Panel->IsMacroCategoryHidden("Seating"));

    Rig.Destroy(Chairs[0]);
    Panel->OnToggleCategoryVisibility(*Macro(*Panel, 1).Categories[0]);
    EXPECT_FALSE(IsHidden(Chairs[1]));
    EXPECT_TRUE(
        Rig.Log.Contains(EOrvLogVerbosity::Log, "OrvOutlinerPanel: Showing 2 actors in category Chairs"));
    EXPECT_FALSE(Panel->IsCategoryHidden("Chairs"));

    Panel->OnToggleMacroCategoryVisibility(Macro(*Panel, 0));
    EXPECT_TRUE(IsHidden(Lamps[0]) && IsHidden(Lamps[1]));
    EXPECT_TRUE(Panel->IsMacroCategoryHidden("lighting"));
    EXPECT_TRUE(Rig.Log.Contains(EOrvLogVerbosity::Log,
                                 "OrvOutlinerPanel: Hiding 2 actors in macro-category Lighting"));
}

TEST_F(FOrvOutlinerPanelModelTest, ProductRowsNavigateToTheMeshAndToTheProductPage)
{
    auto Panel = MakeScannedPanel();
    const FOrvOutlinerProductItem& Chair = *Macro(*Panel, 1).Categories[0]->Products[0];

    Panel->OnNavigateToMeshClicked(Chair);
    EXPECT_EQ(Rig.Ui.SyncedMeshes, std::vector<FOrvMeshRef>{ChairMesh});
    EXPECT_TRUE(Rig.Log.Contains(
        EOrvLogVerbosity::Log,
        "OrvOutlinerPanel: Navigated Content Browser to /Game/ORVESSA/Meshes/SM_Chair.SM_Chair"));

    Panel->OnNavigateToMeshClicked(FOrvOutlinerProductItem());
    EXPECT_EQ(Rig.Ui.SyncedMeshes.size(), 1u);

    Panel->OnOpenWebPanelClicked(Chair);
    EXPECT_EQ(Rig.Ui.NavigatedUrls, std::vector<std::string>{"https://orvessa.com/go/product/P-CHAIR"});
    EXPECT_TRUE(
        Rig.Log.Contains(EOrvLogVerbosity::Log, "OrvOutlinerPanel: Opening web panel for product P-CHAIR"));
    EXPECT_EQ(Panel->GetProductRowCount(Chair), 3);
}

TEST_F(FOrvOutlinerPanelModelTest, ExportOpensTheDialogWithTheMapNameAndSavesUnderASafeDefaultName)
{
    Rig.Editor.SetMapName("UEDPIE_0_Showroom");
    auto Panel = MakeScannedPanel();
    std::string DialogDefault;
    Panel->SetOpenExportDialog(
        [&](const std::string& DefaultProjectName, FOrvOutlinerExportCallback OnExport)
        {
            DialogDefault = DefaultProjectName;
            OnExport("Villa Rosa/West\\Wing", "B");
        });

    Panel->OnExportCSVClicked();

    EXPECT_EQ(DialogDefault, "Showroom");
    EXPECT_EQ(Rig.Files.LastRequest.DefaultFile, "Villa_Rosa-West-Wing_ProductSchedule_RB.csv");
    ASSERT_EQ(Rig.Files.Written.size(), 1u);
    EXPECT_NE(Rig.Files.Written.begin()->second.find("Project:,Villa Rosa/West\\Wing,"), std::string::npos);
    EXPECT_NE(Rig.Files.Written.begin()->second.find("\n3,Hay,About,"), std::string::npos);
    EXPECT_TRUE(
        Rig.Log.Contains(EOrvLogVerbosity::Log, "OrvOutlinerPanel: CSV export completed successfully"));
}

TEST_F(FOrvOutlinerPanelModelTest, ExportWithoutProductsOrWithACancelledSaveReportsNoSuccess)
{
    FOrvOutlinerRig Empty;
    FOrvOutlinerPanelModel Panel(Empty.PanelPorts());
    bool bDialogOpened = false;
    Panel.SetOpenExportDialog([&](const std::string&, FOrvOutlinerExportCallback) { bDialogOpened = true; });
    Panel.Construct();
    EXPECT_EQ(Panel.GetStatusText(), "No products in scene");

    Panel.OnExportCSVClicked();
    EXPECT_FALSE(bDialogOpened);
    EXPECT_TRUE(Empty.Log.Contains(EOrvLogVerbosity::Warning, "OrvOutlinerPanel: No products to export"));
    EXPECT_FALSE(Panel.OnExportConfirmed("P", "01"));
    EXPECT_EQ(Empty.Log.Count("OrvOutlinerPanel: No products to export"), 2);

    auto Scanned = MakeScannedPanel();
    Rig.Files.DialogAnswer.reset();
    EXPECT_FALSE(Scanned->OnExportConfirmed("P", "01"));
    EXPECT_EQ(Rig.Log.Count("OrvOutlinerPanel: CSV export completed successfully"), 0);
}

TEST_F(FOrvOutlinerPanelModelTest, DefaultProjectNameDropsThePlayInEditorPrefix)
{
    const auto NameFor = [](const std::string& MapName)
    {
        FOrvOutlinerRig Named;
        Named.Editor.SetMapName(MapName);
        return FOrvOutlinerPanelModel(Named.PanelPorts()).GetDefaultProjectName();
    };
    EXPECT_EQ(NameFor("UEDPIE_0_Showroom"), "Showroom");
    EXPECT_EQ(NameFor("uedpie_12_Loft"), "Loft");
    EXPECT_EQ(NameFor("Villa_Rosa"), "Villa_Rosa");
    EXPECT_EQ(NameFor("UEDPIE"), "UEDPIE");
    EXPECT_EQ(NameFor("UEDPIE_0_"), "Untitled Project");
    EXPECT_EQ(NameFor(""), "Untitled Project");

    FOrvOutlinerRig NoWorld;
    NoWorld.Editor.SetEditorWorldAvailable(false);
    EXPECT_EQ(FOrvOutlinerPanelModel(NoWorld.PanelPorts()).GetDefaultProjectName(), "Untitled Project");
}

TEST_F(FOrvOutlinerPanelModelTest, ClosingThePanelMidScanAndMidDebounceLeavesNothingBehind)
{
    {
        FOrvOutlinerPanelModel Panel(Rig.PanelPorts());
        Panel.Construct();
        Rig.Destroy(Chairs[0]);
        EXPECT_EQ(Rig.Timers.PendingCount(), 1u);
    }
    EXPECT_EQ(Rig.Timers.PendingCount(), 0u);
    Rig.Destroy(Chairs[1]); // no handler left to call
    Rig.Api.Answer(Answer());
    EXPECT_EQ(Rig.Timers.PendingCount(), 0u);
}

TEST_F(FOrvOutlinerPanelModelTest, ChangingMapsDropsTheOldLevelsRescanScanAndNotificationsAndFollowsTheNewOne)
{
    FOrvOutlinerPanelModel Panel(Rig.PanelPorts());
    Panel.Construct(); // its catalogue request stays open
    Rig.Destroy(Chairs[0]);
    ASSERT_EQ(Rig.Timers.PendingCount(), 1u);

    Panel.OnWorldTornDown();
    EXPECT_EQ(Rig.Timers.PendingCount(), 0u);
    Rig.Destroy(Chairs[1]);
    EXPECT_EQ(Rig.Timers.PendingCount(), 0u) << "no longer listening to the old world";

    Panel.OnMapOpened();
    ASSERT_EQ(Rig.Api.Requests.size(), 2u);
    Rig.Api.Answer(Answer()); // the old level's answer
    EXPECT_TRUE(Panel.IsRefreshing());
    Rig.Api.Answer(Answer());
    EXPECT_EQ(Panel.GetStatusText(), "4 products in scene");

    Rig.Destroy(Chairs[2]);
    EXPECT_EQ(Rig.Timers.PendingCount(), 1u) << "listening to the new world, once";
    EXPECT_EQ(Rig.Log.Count("OrvOutlinerPanel: Registered for world actor changes"), 2);

    // A panel opened before any level follows the map opened later.
    Rig.Editor.SetEditorWorldAvailable(false);
    FOrvOutlinerPanelModel Early(Rig.PanelPorts());
    Early.Construct();
    EXPECT_EQ(Early.GetStatusText(), "No products in scene");
    Rig.Editor.SetEditorWorldAvailable(true);
    Early.OnMapOpened();
    Rig.Api.Answer(Answer());
    EXPECT_EQ(Early.GetStatusText(), "3 products in scene");
    Rig.Destroy(Lamps[0]);
    Rig.Timers.Advance(FOrvOutlinerPanelModel::RefreshDebounceDelay);
    EXPECT_EQ(Early.GetStatusText(), "2 products in scene");
}
