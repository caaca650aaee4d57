// The console commands that stand for the designer's clicks and keys, on the demo room.
#include "Host/Runtime/OrvServeSmartPanel.h"

#include "Host/Editor/OrvDemoScene.h"
#include "Host/Editor/OrvMemoryEditor.h"
#include "Host/Editor/OrvSceneFile.h"
#include "Host/Runtime/OrvServeConsole.h"
#include "Tests/Support/OrvFakeWebPanel.h"
#include "Tests/Support/OrvRecordingLog.h"

#include <gtest/gtest.h>

using namespace OrvWebBridge;

namespace
{
    constexpr const char* Site = "http://127.0.0.1:30012";

    class FOrvServeSmartPanelTest : public ::testing::Test
    {
    protected:
        FOrvServeSmartPanelTest()
        {
            EXPECT_TRUE(FOrvSceneFile::LoadText(std::string(FOrvDemoScene::SceneJson()), "demo", Editor).bOk);
            SmartPanel.AddCommands(Console);
        }

        FOrvMemoryEditor Editor;
        FOrvFakeWebPanel Panel;
        FOrvRecordingLog Log;
        FOrvServeConsole Console{Editor, "", [] {}};
        FOrvServeSmartPanel SmartPanel{Editor, Panel, Log, Site};
    };
} // namespace

// Opening and not reloading are the browser suite's; here, how the console finds what it is given.
TEST_F(FOrvServeSmartPanelTest, ViewportSelectionByNameOrUniqueLabelDrivesThePanelWithAutoDetect)
{
    EXPECT_EQ(Console.Execute("autodetect ON"), "Auto-Detect is on.\n");
    EXPECT_EQ(Console.Execute("viewport-select StaticMeshActor_15"),
              "Viewport selection: Sofa (StaticMeshActor_15).\nPanel: opens " + std::string(Site) +
                  "/go/product/ATB-SF-3300\n");
    const std::string Ambiguous = Console.Execute("viewport-select Sofa \"Dining Chair\"");
    EXPECT_TRUE(Ambiguous.starts_with("\"Dining Chair\" names 4 actors: StaticMeshActor_3 ")) << Ambiguous;
    EXPECT_EQ(Editor.GetSelectedActors().size(), 1u) << "a refused command leaves the selection alone";
    EXPECT_EQ(Console.Execute("viewport-select Nobody"),
              "No actor \"Nobody\" in the level (list shows them).\nPanel: unchanged.\n");
    EXPECT_TRUE(Console.Execute("viewport-select").starts_with("Viewport selection cleared.\n"));
}

TEST_F(FOrvServeSmartPanelTest, BrowserSelectionFindsAssetsByNameOrPathAndAltRWithBrowserFocusShowsTheFinish)
{
    const std::string Ambiguous = Console.Execute("browser-select SM_Chair");
    EXPECT_EQ(Ambiguous, "\"SM_Chair\" names 2 assets: /Game/ORVESSA/FormaNova/Arco/Meshes/SM_Chair.SM_Chair "
                         "/Game/ORVESSA/LineaStudio/Riga/Meshes/SM_Chair.SM_Chair; name one of them.\n"
                         "Panel: unchanged.\n");
    EXPECT_TRUE(Console.Execute("browser-select /game/orvessa/linearstudio/riga/meshes/sm_chair")
                    .starts_with("No asset"));
    EXPECT_TRUE(
        Console
            .Execute("browser-select mi_oak_natural /Game/ORVESSA/LineaStudio/Riga/Meshes/SM_Chair.SM_Chair")
            .starts_with("Content Browser selection: MI_Oak_Natural, SM_Chair.\n"));
    EXPECT_TRUE(Panel.Loads.empty()) << "auto-detect is off";

    EXPECT_EQ(Console.Execute("focus BROWSER"), "Keyboard focus: Content Browser.\n");
    EXPECT_EQ(Console.Execute("alt-r"),
              "Alt+R pressed.\nPanel: opens " + std::string(Site) + "/go/finish/FIN-OAK-NAT\n");
    EXPECT_EQ(Console.Execute("focus desk"), "Usage: focus viewport|browser\n");
}

TEST_F(FOrvServeSmartPanelTest, CopyUrlHandsThePanelsUrlToThePageAsAScriptStringLiteral)
{
    Panel.CurrentUrl = "http://127.0.0.1:30012/go/product/A\"B";

    EXPECT_EQ(Console.Execute("copy-url"),
              "Copied \"http://127.0.0.1:30012/go/product/A\"B\" to the panel page's clipboard.\n");
    ASSERT_EQ(Panel.Scripts.size(), 1u);
    EXPECT_NE(Panel.Scripts[0].find("(\"http://127.0.0.1:30012/go/product/A\\\"B\");"), std::string::npos)
        << Panel.Scripts[0];

    Panel.bOpen = false;
    EXPECT_EQ(Console.Execute("copy-url"), "The catalogue panel is not open: no page is connected.\n");
    EXPECT_EQ(Panel.Scripts.size(), 1u);
}
