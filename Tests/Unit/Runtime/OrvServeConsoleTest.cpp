#include "Host/Runtime/OrvServeConsole.h"

#include "Host/Editor/OrvMemoryEditor.h"
#include "Host/Editor/OrvSceneFile.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <unistd.h>

using namespace OrvWebBridge;

namespace
{
    /** A level with one chair, and a way to make one undoable change the way the tools do. */
    struct FOrvConsoleRig
    {
        explicit FOrvConsoleRig(std::string SceneFile = {})
            : Console(Editor, std::move(SceneFile), [this] { ++QuitCalls; })
        {
            FOrvMemoryMeshDesc Mesh;
            Mesh.PackageName = "/Game/ORVESSA/Brand/Meshes/SM_Chair";
            Mesh.Bounds = FOrvBox{{-25, -25, 0}, {25, 25, 90}};
            Mesh.Tag = FOrvProductTag{"P-CHAIR", true};
            ChairMesh = Editor.AddStaticMesh(Mesh);
            FOrvMemoryActorDesc Actor;
            Actor.Label = "Chair";
            Actor.StaticMeshComponents = {ChairMesh};
            Editor.AddActor(Actor);
        }

        void SpawnChair()
        {
            FOrvScopedTransaction Transaction(Editor.Transactions(), "Orv MCP: Spawn Product");
            const FOrvActorRef Actor = Editor.Editing().SpawnStaticMeshActor({100, 0, 0}, {});
            Editor.Editing().SetStaticMesh(Actor, ChairMesh);
        }

        FOrvMemoryEditor Editor;
        FOrvServeConsole Console;
        FOrvMeshRef ChairMesh;
        int QuitCalls = 0;
    };
} // namespace

TEST(FOrvServeConsoleTest, UndoRedoAndHistoryFollowTheEditorsUndoBuffer)
{
    FOrvConsoleRig Rig;
    EXPECT_EQ(Rig.Console.Execute("undo"), "Nothing to undo.\n");
    EXPECT_EQ(Rig.Console.Execute("history"), "No changes yet.\n");

    Rig.SpawnChair();
    EXPECT_EQ(Rig.Editor.GetLevelActors().size(), 2u);
    EXPECT_EQ(Rig.Console.Execute("history"), "  1. Orv MCP: Spawn Product\n");
    EXPECT_EQ(Rig.Console.Execute("  UNDO  "), "Undone: Orv MCP: Spawn Product\n");
    EXPECT_EQ(Rig.Editor.GetLevelActors().size(), 1u);
    EXPECT_EQ(Rig.Console.Execute("history"), "  1. Orv MCP: Spawn Product (undone)\n");
    EXPECT_EQ(Rig.Console.Execute("redo"), "Redone: Orv MCP: Spawn Product\n");
    EXPECT_EQ(Rig.Editor.GetLevelActors().size(), 2u);
    EXPECT_EQ(Rig.Console.Execute("redo"), "Nothing to redo.\n");
}

TEST(FOrvServeConsoleTest, ListNamesEveryActorWithItsMeshAndPlace)
{
    FOrvConsoleRig Rig;
    Rig.SpawnChair();
    const std::string Text = Rig.Console.Execute("list");
    EXPECT_EQ(Text.rfind("2 actors in ", 0), 0u) << Text;
    EXPECT_NE(Text.find("SM_Chair"), std::string::npos) << Text;
    EXPECT_NE(Text.find("at (100.0, 0.0, 0.0)"), std::string::npos) << Text;
}

TEST(FOrvServeConsoleTest, SaveWritesTheSceneFileAndQuitWarnsOnceAboutUnsavedChanges)
{
    FOrvConsoleRig Rig;
    Rig.SpawnChair();
    EXPECT_EQ(Rig.Console.Execute("save"), "The demo scene has no file yet; name one: save FILE\n");
    const std::string Failed = Rig.Console.Execute("save /nonexistent-folder-orv/room.json");
    EXPECT_EQ(Failed.rfind("Not saved: ", 0), 0u) << Failed;
    EXPECT_TRUE(Rig.Editor.IsDirty());
    EXPECT_EQ(Rig.Console.Execute("quit"),
              "The level has unsaved changes. Type quit again to leave without saving, or save first.\n");
    EXPECT_EQ(Rig.QuitCalls, 0);

    const std::filesystem::path File =
        std::filesystem::temp_directory_path() / ("orv-console-" + std::to_string(getpid()) + "-room.json");
    EXPECT_EQ(Rig.Console.Execute("save \"" + File.string() + "\""), "Saved " + File.string() + ".\n");
    EXPECT_FALSE(Rig.Editor.IsDirty());
    EXPECT_EQ(Rig.Console.GetSceneFile(), File.string());
    FOrvMemoryEditor Reloaded;
    ASSERT_TRUE(FOrvSceneFile::Load(File.string(), Reloaded).bOk);
    EXPECT_EQ(Reloaded.GetLevelActors().size(), 2u);

    // Plain save now goes to the same file; a clean level quits at once.
    Rig.Console.Execute("undo");
    EXPECT_EQ(Rig.Console.Execute("save"), "Saved " + File.string() + ".\n");
    EXPECT_EQ(Rig.Console.Execute("quit"), "Bye.\n");
    EXPECT_EQ(Rig.QuitCalls, 1);
    std::filesystem::remove(File);
}

TEST(FOrvServeConsoleTest, UnknownCommandsAreNamedAndAddedCommandsGetQuotedArguments)
{
    FOrvConsoleRig Rig;
    EXPECT_EQ(Rig.Console.Execute("dance"), "Unknown command \"dance\"; type help for the list.\n");
    EXPECT_EQ(Rig.Console.Execute("   "), "");

    std::vector<std::string> Seen;
    Rig.Console.AddCommand("hide", "hide CATEGORY", "Hide a category.",
                           [&](const std::vector<std::string>& Args)
                           {
                               Seen = Args;
                               return std::string("hidden");
                           });
    EXPECT_EQ(Rig.Console.Execute("hide \"Dining Chairs\" now"), "hidden\n");
    EXPECT_EQ(Seen, (std::vector<std::string>{"Dining Chairs", "now"}));
    const std::string Help = Rig.Console.Execute("help");
    EXPECT_NE(Help.find("hide CATEGORY"), std::string::npos) << Help;
    EXPECT_LT(Help.find("undo"), Help.find("hide CATEGORY")) << "added commands come after the built-in ones";
}
