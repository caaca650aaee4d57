#include "Host/Runtime/OrvServeOutliner.h"

#include "Host/Editor/OrvDemoScene.h"
#include "Host/Editor/OrvMemoryEditor.h"
#include "Host/Editor/OrvSceneFile.h"
#include "Host/Runtime/OrvHostEventLoop.h"
#include "Host/Runtime/OrvServeConsole.h"
#include "Tests/Support/OrvRecordingLog.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

using namespace OrvWebBridge;

namespace
{
    /** The demo room with its offline catalogue, scanned, and the console with the outliner commands. */
    struct FOrvServeOutlinerRig
    {
        FOrvServeOutlinerRig() : Console(Editor, {}, nullptr), Outliner(Loop, Editor, Log)
        {
            Loaded = FOrvSceneFile::LoadText(std::string(FOrvDemoScene::SceneJson()), "demo", Editor).bOk;
            std::string Error;
            bOpened = Outliner.Open({}, Error);
            if (bOpened)
            {
                Outliner.Start(Console);
                bScanned = Loop.RunUntil([this] { return !Outliner.GetPanel().IsRefreshing(); }, 10.0);
            }
        }

        bool IsHidden(const std::string& Name) const
        {
            const FOrvMemoryActor* Actor = Editor.FindActorByName(Name);
            return Actor && Actor->bTemporarilyHidden;
        }

        FOrvHostEventLoop Loop;
        FOrvMemoryEditor Editor;
        FOrvRecordingLog Log;
        FOrvServeConsole Console;
        FOrvServeOutliner Outliner;
        bool Loaded = false;
        bool bOpened = false;
        bool bScanned = false;
    };
} // namespace

TEST(FOrvServeOutlinerTest, SelectFindsMacroCategoriesCategoriesAndProductsByAnyOfTheirNames)
{
    FOrvServeOutlinerRig Rig;
    ASSERT_TRUE(Rig.Loaded && Rig.bOpened && Rig.bScanned);
    const std::string Chairs = "Selected 4 actors: StaticMeshActor_3 StaticMeshActor_4 StaticMeshActor_5 "
                               "StaticMeshActor_6\n";
    EXPECT_EQ(Rig.Console.Execute("select chairs"), Chairs);
    EXPECT_EQ(Rig.Console.Execute("select Forma Nova - Sedia Arco"), Chairs) << "words need no quotes";
    EXPECT_EQ(Rig.Console.Execute("select \"sedia arco\""), Chairs);
    EXPECT_EQ(Rig.Console.Execute("select Lighting").rfind("Selected 5 actors: ", 0), 0u);
    EXPECT_EQ(Rig.Console.Execute("select Sofa Bed"),
              "Nothing called \"Sofa Bed\" in the outliner (see tree).\n");
    EXPECT_EQ(Rig.Console.Execute("select"), "Name a product, category or macro category (see tree).\n");
}

TEST(FOrvServeOutlinerTest, HideAndShowAskForAStateInsteadOfToggling)
{
    FOrvServeOutlinerRig Rig;
    ASSERT_TRUE(Rig.bScanned);
    EXPECT_EQ(Rig.Console.Execute("hide Lighting"), "Hid macro category Lighting (5 actors).\n");
    EXPECT_TRUE(Rig.IsHidden("StaticMeshActor_7"));
    EXPECT_EQ(Rig.Console.Execute("hide lighting"), "Macro category Lighting is already hidden.\n");
    EXPECT_TRUE(Rig.IsHidden("StaticMeshActor_7")) << "a second hide must not toggle it back";
    EXPECT_EQ(Rig.Console.Execute("show Lighting"), "Showed macro category Lighting (5 actors).\n");
    EXPECT_FALSE(Rig.IsHidden("StaticMeshActor_7"));
    EXPECT_EQ(Rig.Console.Execute("show Chairs"), "Category Chairs is already shown.\n");

    EXPECT_EQ(Rig.Console.Execute("hide Sedia Arco"), "Hid 4 actors of Forma Nova - Sedia Arco.\n");
    EXPECT_TRUE(Rig.IsHidden("StaticMeshActor_3"));
    EXPECT_FALSE(Rig.IsHidden("StaticMeshActor_2"));
    EXPECT_EQ(Rig.Console.Execute("show Sedia Arco"), "Showed 4 actors of Forma Nova - Sedia Arco.\n");
    EXPECT_FALSE(Rig.IsHidden("StaticMeshActor_3"));
}

TEST(FOrvServeOutlinerTest, ExportWritesTheNamedFileAndReplacesItWhenNamedAgain)
{
    FOrvServeOutlinerRig Rig;
    ASSERT_TRUE(Rig.bScanned);
    const std::filesystem::path File =
        std::filesystem::temp_directory_path() /
        ("orv-serve-outliner-" + std::to_string(::testing::UnitTest::GetInstance()->random_seed()) + ".csv");
    std::filesystem::remove(File);
    const std::string Wrote = "Wrote " + File.string() + ".\n";
    EXPECT_EQ(Rig.Console.Execute("export \"" + File.string() + "\" Villa 02"), Wrote);
    std::stringstream Text;
    Text << std::ifstream(File).rdbuf();
    EXPECT_EQ(Text.str().rfind("ORVESSA - Product Schedule", 0), 0u) << Text.str();
    EXPECT_NE(Text.str().find("Villa"), std::string::npos);
    EXPECT_NE(Text.str().find("Sedia Arco"), std::string::npos);
    EXPECT_EQ(Rig.Console.Execute("export \"" + File.string() + "\""), Wrote);
    EXPECT_EQ(Rig.Console.Execute("export a b c d"), "Usage: export [FILE [PROJECT [REV]]]\n");
    EXPECT_EQ(Rig.Console.Execute("export /nonexistent-folder-orv/x.csv").rfind("Not written: ", 0), 0u);
    std::filesystem::remove(File);
}
