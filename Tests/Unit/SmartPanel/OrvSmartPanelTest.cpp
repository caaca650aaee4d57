// What a level designer sees the catalogue panel do while selecting things with auto-detect on or off.
#include "Tests/Unit/SmartPanel/OrvSmartPanelTestRig.h"

using namespace OrvWebBridge;
using FLines = std::vector<std::string>;
using FOrvSmartPanelFollowsViewportTest = FOrvSmartPanelTestRig;
using FOrvSmartPanelFollowsContentBrowserTest = FOrvSmartPanelTestRig;
using FOrvSmartPanelLeavesThePageAloneTest = FOrvSmartPanelTestRig;
using FOrvSmartPanelToolbarTest = FOrvSmartPanelTestRig;

TEST_F(FOrvSmartPanelFollowsViewportTest, SelectedProductOpensItsPageWithTheLookupLogged)
{
    SmartPanel.SetAutoDetect(true);

    SelectActors({"Sofa"});

    EXPECT_EQ(Panel.Loads, FLines{ProductPage("SOFA-1")});
    EXPECT_EQ(Log.Transcript(),
              (FLines{
                  "Display: OrvSmartPanel: Auto-Detect enabled",
                  "Display: OrvSmartPanel: Auto-navigate triggered - Viewport selection changed",
                  "Verbose: OrvSmartPanel: GetProductDataFromMesh - Mesh SM_Sofa has 1 user data entries",
                  "Verbose: OrvSmartPanel: GetProductDataFromMesh - UserData class: OrvProductData",
                  "Display: OrvSmartPanel: GetProductDataFromMesh - Found OrvProductData with ID: SOFA-1",
                  "Display: OrvSmartPanel: Navigating to product SOFA-1",
              }));
}

TEST_F(FOrvSmartPanelFollowsViewportTest, ReselectingTheShownProductDoesNotReloadIgnoringLetterCase)
{
    SmartPanel.SetAutoDetect(true);
    SelectActors({"Sofa"});

    SelectActors({"Sofa", "Chair"});
    SelectActors({"Sofa"});

    EXPECT_EQ(Panel.Loads.size(), 1u);
    EXPECT_EQ(Log.Count("OrvSmartPanel: Product SOFA-1 already displayed, skipping reload"), 2);

    // A finish whose id is the shown product's, in other letter case, counts as shown as well.
    SelectAssets({"MI_SofaFabric"});
    EXPECT_EQ(Panel.Loads.size(), 1u);
    EXPECT_TRUE(Log.Contains(EOrvLogVerbosity::Verbose,
                             "OrvSmartPanel: Finish sofa-1 already displayed, skipping reload"));
}

TEST_F(FOrvSmartPanelFollowsViewportTest, FirstValidProductInSelectionAndComponentOrderWins)
{
    SmartPanel.SetAutoDetect(true);

    // An invalid tag and a light are passed over; the plinth's second component carries the vase.
    SelectActors({"OldTable", "Sun", "VaseOnPlinth", "Chair"});
    SelectActors({"Sun"});

    EXPECT_EQ(Panel.Loads, FLines{ProductPage("VASE-1")});
}

TEST_F(FOrvSmartPanelFollowsContentBrowserTest, FinishesAndProductMeshesOpenTheirPages)
{
    SmartPanel.SetAutoDetect(true);
    Editor.AddAsset({"/Game/P/MI_Walnut", "/Game/P", "MI_Walnut", "/Script/Engine.materialinstanceconstant"},
                    {{"Orv_FinishID", "WALNUT-1"}}); // class names compare ignoring case

    SelectAssets({"T_Oak", "MI_Plain", "MI_Oak", "SM_Chair"});
    SelectAssets({"SM_Chair"});
    SelectAssets({"MI_Oak"});
    SelectAssets({"MI_Walnut"});

    EXPECT_EQ(Panel.Loads, (FLines{FinishPage("OAK-1"), ProductPage("CHAIR-1"), FinishPage("OAK-1"),
                                   FinishPage("WALNUT-1")}));
    EXPECT_TRUE(
        Log.Contains(EOrvLogVerbosity::Display, "OrvSmartPanel: Auto-navigate to finish collection OAK-1"));
}

TEST_F(FOrvSmartPanelLeavesThePageAloneTest, WhileAutoDetectIsOffThePanelIsClosedOrThereIsNoEditor)
{
    // After start-up auto-detect is off: selections only log, and only verbosely.
    SelectActors({"Sofa"});
    SelectAssets({"MI_Oak"});
    EXPECT_EQ(Log.Transcript(),
              FLines{"Verbose: OrvSmartPanel: Selection changed but auto-navigate is disabled"});

    SmartPanel.SetAutoDetect(true);
    Panel.bOpen = false;
    SelectActors({"Sofa"});
    SelectAssets({"SM_Sofa"});
    EXPECT_EQ(Log.Transcript(1), (FLines{"Display: OrvSmartPanel: Auto-Detect enabled",
                                         "Verbose: OrvSmartPanel: Selection changed but panel is not open"}));

    // Before the editor engine exists the handler says nothing at all.
    Panel.bOpen = true;
    Editor.SetEditorWorldAvailable(false);
    const std::size_t Before = Log.Lines.size();
    SmartPanel.OnViewportSelectionChanged();
    EXPECT_EQ(Log.Lines.size(), Before);
    EXPECT_TRUE(Panel.Loads.empty());
}

TEST_F(FOrvSmartPanelToolbarTest, CopyUrlCopiesWhatThePanelShowsAndTheToggleSaysWhatItDid)
{
    Panel.CurrentUrl = "https://site.test/go/product/SOFA-1";

    SmartPanel.CopyUrl();
    SmartPanel.SetAutoDetect(true);
    SmartPanel.SetAutoDetect(false);

    EXPECT_EQ(Clipboard.Copies, FLines{"https://site.test/go/product/SOFA-1"});
    EXPECT_EQ(Log.Transcript(),
              (FLines{"Display: OrvSmartPanel: Copied URL to clipboard: https://site.test/go/product/SOFA-1",
                      "Display: OrvSmartPanel: Auto-Detect enabled",
                      "Display: OrvSmartPanel: Auto-Detect disabled"}));
    EXPECT_FALSE(SmartPanel.IsAutoDetectEnabled());
}
