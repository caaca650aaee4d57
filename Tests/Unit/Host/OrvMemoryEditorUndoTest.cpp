#include "Host/Editor/OrvMemoryEditor.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace OrvWebBridge;

namespace
{
    class FOrvMemoryEditorUndoTest : public testing::Test
    {
    protected:
        void SetUp() override
        {
            Chair = Editor.AddStaticMesh(
                {"/Game/ORVESSA/Forma/Meshes/SM_Chair", {{-25, -25, 0}, {25, 25, 90}}, {}});
            Table = Editor.AddActor({"", "Table", "StaticMeshActor", {{100, 0, 0}, {}}, {Chair}, true});
            Lamp = Editor.AddActor({"", "Lamp", "StaticMeshActor", {{200, 0, 0}, {}}, {Chair}, true});
        }

        FOrvActorRef Spawn(const FOrvVector& Location)
        {
            FOrvScopedTransaction Transaction(Editor.Transactions(), "Orv MCP: Spawn Product");
            const FOrvActorRef Actor = Editor.Editing().SpawnStaticMeshActor(Location, {});
            Editor.Editing().ModifyActor(Actor);
            Editor.Editing().SetStaticMesh(Actor, Chair);
            Editor.Editing().SetActorLabel(Actor, "SM_Chair");
            return Actor;
        }

        std::vector<std::string> Names()
        {
            std::vector<std::string> Result;
            for (const FOrvActorRef Actor : Editor.World().GetActors())
            {
                Result.push_back(Editor.World().GetActorName(Actor));
            }
            return Result;
        }

        FOrvMemoryEditor Editor;
        FOrvMeshRef Chair;
        FOrvActorRef Table;
        FOrvActorRef Lamp;
    };
} // namespace

// The tools' tests prove that undoing each change restores the level; here redo must bring back the same.
TEST_F(FOrvMemoryEditorUndoTest, UndoPutsADeletedActorBackInItsPlaceAndRedoReappliesEachStepExactly)
{
    const FOrvActorRef Spawned = Spawn({1, 2, 3});
    const std::string Name = Editor.World().GetActorName(Spawned);
    {
        FOrvScopedTransaction Transaction(Editor.Transactions(), "Orv MCP: Move Actor");
        Editor.Editing().ModifyActor(Table);
        Editor.Editing().SetActorTransform(Table, FOrvVector{5, 6, 7}, std::nullopt);
        Editor.Editing().SetActorTransform(Table, std::nullopt, FOrvRotator{0, 90, 0});
    }
    {
        FOrvScopedTransaction Transaction(Editor.Transactions(), "Orv MCP: Delete Actor");
        ASSERT_TRUE(Editor.Editing().EditorDestroyActor(Table));
    }
    EXPECT_EQ(Editor.World().GetActorName(Table), "");
    EXPECT_FALSE(Editor.Editing().EditorDestroyActor(Table));
    while (Editor.Undo())
    {
    }
    EXPECT_EQ(Names(), (std::vector<std::string>{"StaticMeshActor_0", "StaticMeshActor_1"}));
    EXPECT_EQ(Editor.World().GetActorTransform(Table), (FOrvTransform{{100, 0, 0}, {}}));

    ASSERT_TRUE(Editor.Redo());
    EXPECT_EQ(Editor.World().GetActorName(Spawned), Name);
    EXPECT_EQ(Editor.World().GetActorLabel(Spawned), "SM_Chair");
    EXPECT_EQ(Editor.World().GetStaticMeshComponents(Spawned), std::vector<FOrvMeshRef>{Chair});
    EXPECT_EQ(Editor.World().GetActorTransform(Spawned).Location, (FOrvVector{1, 2, 3}));
    ASSERT_TRUE(Editor.Redo());
    EXPECT_EQ(Editor.World().GetActorTransform(Table), (FOrvTransform{{5, 6, 7}, {0, 90, 0}}));
    ASSERT_TRUE(Editor.Redo());
    EXPECT_EQ(Names(), (std::vector<std::string>{"StaticMeshActor_1", Name}));

    // A new change after an undo clears the redo list.
    ASSERT_TRUE(Editor.Undo());
    Spawn({});
    EXPECT_TRUE(Editor.GetRedoHistory().empty());
    EXPECT_FALSE(Editor.Redo());
}

TEST_F(FOrvMemoryEditorUndoTest, NestedTransactionsMakeOneStepNamedByTheOutermost)
{
    Editor.Transactions().BeginTransaction("Outer");
    Editor.Transactions().BeginTransaction("Inner");
    Editor.Editing().SetActorTransform(Table, FOrvVector{1, 1, 1}, std::nullopt);
    Editor.Transactions().EndTransaction();
    Editor.Editing().EditorDestroyActor(Lamp);
    EXPECT_TRUE(Editor.GetUndoHistory().empty()) << "nothing is committed before the outermost end";
    Editor.Transactions().EndTransaction();
    Editor.Transactions().EndTransaction(); // unbalanced: ignored

    ASSERT_EQ(Editor.GetUndoHistory().size(), 1u);
    EXPECT_EQ(Editor.GetUndoHistory().front().Description, "Outer");
    ASSERT_TRUE(Editor.Undo());
    EXPECT_TRUE(Editor.World().IsActorAlive(Lamp));
    EXPECT_EQ(Editor.World().GetActorTransform(Table).Location, (FOrvVector{100, 0, 0}));
    EXPECT_FALSE(Editor.Undo());
}

TEST_F(FOrvMemoryEditorUndoTest, ChangesOutsideATransactionAreNotUndoneAndDoNotBreakLaterUndo)
{
    const FOrvActorRef Spawned = Spawn({});
    Editor.Editing().SetActorTransform(Table, FOrvVector{9, 9, 9}, std::nullopt);
    Editor.Editing().EditorDestroyActor(Spawned);

    ASSERT_TRUE(Editor.Undo()); // undoes a spawn whose actor is already gone
    EXPECT_FALSE(Editor.World().IsActorAlive(Spawned));
    EXPECT_EQ(Editor.World().GetActorTransform(Table).Location, (FOrvVector{9, 9, 9}));
    EXPECT_TRUE(Editor.Redo());
}

TEST_F(FOrvMemoryEditorUndoTest, HistoryKeepsTheLatestHundredSteps)
{
    for (int Index = 0; Index < 105; ++Index)
    {
        FOrvScopedTransaction Transaction(Editor.Transactions(), "Step " + std::to_string(Index));
        Editor.Editing().SetActorTransform(Table, FOrvVector{double(Index), 0, 0}, std::nullopt);
    }
    ASSERT_EQ(Editor.GetUndoHistory().size(), 100u);
    EXPECT_EQ(Editor.GetUndoHistory().front().Description, "Step 5");
    while (Editor.Undo())
    {
    }
    EXPECT_EQ(Editor.World().GetActorTransform(Table).Location, (FOrvVector{4, 0, 0}));
}

TEST_F(FOrvMemoryEditorUndoTest, UndoAndRedoFireTheActorEventsOfWhatTheyAddOrRemove)
{
    std::vector<std::string> Events;
    const FOrvActorEventsHandle Handle = Editor.LevelEvents().AddActorHandlers(
        [&](FOrvActorRef Actor) { Events.push_back("+" + Editor.World().GetActorName(Actor)); },
        [&](FOrvActorRef Actor) { Events.push_back("-" + std::to_string(Actor.Value)); });
    const FOrvActorRef Spawned = Spawn({});
    Editor.Undo();
    Editor.Redo();
    Editor.LevelEvents().RemoveActorHandlers(Handle);
    Editor.Undo();

    const std::string Removed = "-" + std::to_string(Spawned.Value);
    EXPECT_EQ(Events, (std::vector<std::string>{"+StaticMeshActor_2", Removed, "+StaticMeshActor_2"}));
}

TEST_F(FOrvMemoryEditorUndoTest, PortChangesMakeTheLevelDirtyUntilMarkedClean)
{
    EXPECT_FALSE(Editor.IsDirty()) << "building a level is not an edit";
    Editor.Editing().SetTemporarilyHidden(Table, true);
    Editor.Selection().SelectActor(Table);
    EXPECT_FALSE(Editor.IsDirty()) << "hiding and selecting are session state";

    Spawn({});
    EXPECT_TRUE(Editor.IsDirty());
    Editor.MarkClean();
    Editor.Undo();
    EXPECT_TRUE(Editor.IsDirty());
}
