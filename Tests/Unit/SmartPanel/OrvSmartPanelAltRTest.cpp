// Alt+R: the details page of what is selected where the keyboard focus is, on demand.
#include "Tests/Unit/SmartPanel/OrvSmartPanelTestRig.h"

using namespace OrvWebBridge;
using FLines = std::vector<std::string>;
using FOrvSmartPanelAltRTest = FOrvSmartPanelTestRig;

TEST_F(FOrvSmartPanelAltRTest, ReloadsTheShownProductWithoutTouchingTheRememberedId)
{
    SmartPanel.SetAutoDetect(true);
    SelectActors({"Sofa"});

    SmartPanel.ViewProductDetails();
    EXPECT_EQ(Panel.Loads, (FLines{ProductPage("SOFA-1"), ProductPage("SOFA-1")}));

    // Alt+R on the chair shows it without remembering it: the sofa still counts as shown, and a later
    // automatic selection of the chair loads it once more.
    SmartPanel.SetAutoDetect(false);
    SelectActors({"Chair"});
    SmartPanel.ViewProductDetails();
    SmartPanel.SetAutoDetect(true);
    SelectActors({"Sofa"});
    SelectActors({"Chair"});

    EXPECT_EQ(Panel.Loads, (FLines{ProductPage("SOFA-1"), ProductPage("SOFA-1"), ProductPage("CHAIR-1"),
                                   ProductPage("CHAIR-1")}));
}

TEST_F(FOrvSmartPanelAltRTest, ViewportBranchLogsEachMeshItLooksAt)
{
    SelectActors({"Sun", "OldTable", "VaseOnPlinth"});
    const std::size_t First = Log.Lines.size();

    SmartPanel.ViewProductDetails();

    const FLines Lines = Log.Transcript(First);
    const auto Has = [&Lines](const std::string& Line)
    { return std::find(Lines.begin(), Lines.end(), Line) != Lines.end(); };
    EXPECT_EQ(Lines.front(), "Display: OrvSmartPanel: Alt+R pressed!");
    EXPECT_TRUE(Has("Display: OrvSmartPanel: Alt+R - Viewport/other panel has focus"));
    EXPECT_TRUE(Has("Display: OrvSmartPanel: Alt+R - Checking viewport selection, 3 actors selected"));
    EXPECT_TRUE(Has("Display: OrvSmartPanel: Alt+R - Found mesh: SM_Old"));
    EXPECT_TRUE(Has("Display: OrvSmartPanel: Alt+R - Found ProductData, ProductID: OLD-1, IsValid: 0"));
    EXPECT_TRUE(Has("Display: OrvSmartPanel: Alt+R - Found ProductData, ProductID: VASE-1, IsValid: 1"));
    EXPECT_EQ(Lines.back(), "Display: OrvSmartPanel: Alt+R - Navigating to product VASE-1");
    EXPECT_EQ(Log.Problems(First),
              FLines{"Warning: OrvSmartPanel: Alt+R - No ProductData found on mesh SM_Plinth"});
    EXPECT_EQ(Panel.Loads, FLines{ProductPage("VASE-1")});

    SelectActors({"Sun"});
    SmartPanel.ViewProductDetails();
    EXPECT_EQ(Log.Problems().back(),
              "Warning: OrvSmartPanel: Alt+R pressed but no Orv asset selected in viewport");
}

TEST_F(FOrvSmartPanelAltRTest, BrowserFocusIsFoundAnywhereUpTheWidgetChainIgnoringCase)
{
    SelectActors({"Sofa"});
    SelectAssets({"MI_Oak"});

    Focus.Types = {"STileView", "SBorder", "SAssetView", "SContentBrowser", "SWindow"};
    SmartPanel.ViewProductDetails();
    Focus.Types = {"SSearchBox", "SMyscontentbrowserHost", "SWindow"};
    SmartPanel.ViewProductDetails();
    Focus.Types = {};
    SmartPanel.ViewProductDetails();

    EXPECT_EQ(Log.Count("OrvSmartPanel: Alt+R - Content Browser has focus (detected: SAssetView)"), 1);
    EXPECT_EQ(
        Log.Count("OrvSmartPanel: Alt+R - Content Browser has focus (detected: SMyscontentbrowserHost)"), 1);
    EXPECT_EQ(Log.Count("OrvSmartPanel: Alt+R - Viewport/other panel has focus"), 1);
    EXPECT_EQ(Panel.Loads, (FLines{FinishPage("OAK-1"), FinishPage("OAK-1"), ProductPage("SOFA-1")}));
}

TEST_F(FOrvSmartPanelAltRTest, ContentBrowserBranchNamesWhatItFindsAndWhatIsMissing)
{
    Focus.Types = {"SContentBrowser"};
    SelectAssets({"T_Oak", "MI_Plain", "SM_Plinth", "SM_Chair"});
    const std::size_t First = Log.Lines.size();

    SmartPanel.ViewProductDetails();

    const FLines Lines = Log.Transcript(First);
    const FLines Expected{
        "Display: OrvSmartPanel: Alt+R - Checking Content Browser, 4 assets selected",
        "Display: OrvSmartPanel: Alt+R - Asset: T_Oak, Class: Texture2D",
        "Display: OrvSmartPanel: Alt+R - Asset: MI_Plain, Class: MaterialInstanceConstant",
        "Display: OrvSmartPanel: Alt+R - Found MaterialInstanceConstant: MI_Plain",
        "Warning: OrvSmartPanel: Alt+R - No Orv_FinishID parameter found on material",
        "Display: OrvSmartPanel: Alt+R - Asset: SM_Plinth, Class: StaticMesh",
        "Display: OrvSmartPanel: Alt+R - Found StaticMesh: SM_Plinth",
    };
    ASSERT_GE(Lines.size(), 2 + Expected.size());
    EXPECT_EQ(FLines(Lines.begin() + 2, Lines.begin() + 2 + static_cast<long>(Expected.size())), Expected);
    EXPECT_TRUE(std::find(Lines.begin(), Lines.end(),
                          "Display: OrvSmartPanel: Alt+R - Found ProductID: CHAIR-1") != Lines.end());
    EXPECT_EQ(Lines.back(), "Display: OrvSmartPanel: Alt+R - Navigating to product CHAIR-1");
    EXPECT_EQ(Log.Problems(First),
              (FLines{"Warning: OrvSmartPanel: Alt+R - No Orv_FinishID parameter found on material",
                      "Warning: OrvSmartPanel: Alt+R - No OrvProductData found on static mesh"}));
}

TEST_F(FOrvSmartPanelAltRTest, WarnsForAssetsThatDoNotLoadAndWhenNothingIsFound)
{
    Focus.Types = {"SAssetView"};
    SelectAssets({"MI_Deleted"}, "/Script/Engine.MaterialInstanceConstant");
    SmartPanel.ViewProductDetails();
    SelectAssets({"SM_Deleted"}, "/Script/Engine.StaticMesh");
    SmartPanel.ViewProductDetails();

    EXPECT_EQ(Log.Problems(),
              (FLines{"Warning: OrvSmartPanel: Alt+R - Failed to load material instance",
                      "Warning: OrvSmartPanel: Alt+R pressed but no Orv asset selected in Content Browser",
                      "Warning: OrvSmartPanel: Alt+R - Failed to load static mesh",
                      "Warning: OrvSmartPanel: Alt+R pressed but no Orv asset selected in Content Browser"}));
    EXPECT_TRUE(Panel.Loads.empty());
}

TEST_F(FOrvSmartPanelAltRTest, WithoutAnEditorOnlyTheErrorFollowsTheKey)
{
    Editor.SetEditorWorldAvailable(false);

    SmartPanel.ViewProductDetails();

    EXPECT_EQ(Log.Transcript(), (FLines{"Display: OrvSmartPanel: Alt+R pressed!",
                                        "Error: OrvSmartPanel: Alt+R - GEditor is null"}));
}
