#include "Host/Editor/OrvMemoryEditor.h"

#include <gtest/gtest.h>

#include <string>

using namespace OrvWebBridge;

namespace
{
    FOrvActorRef SpawnAndKeep(FOrvMemoryEditor& Editor)
    {
        FOrvScopedTransaction Transaction(Editor.Transactions(), "Spawn");
        return Editor.Editing().SpawnStaticMeshActor({}, {});
    }

    FOrvActorRef Add(FOrvMemoryEditor& Editor, const std::string& Name, const std::string& Label = "")
    {
        return Editor.AddActor({Name, Label, "StaticMeshActor", {}, {}, true});
    }
} // namespace

TEST(FOrvMemoryEditorLevelTest, NamesAreNumberedAboveEveryNumberUsedAndNeverReusedIgnoringCase)
{
    FOrvMemoryEditor Editor;
    Add(Editor, "StaticMeshActor_7");
    Add(Editor, "Chair_40");
    const FOrvActorRef First = SpawnAndKeep(Editor);
    EXPECT_EQ(Editor.World().GetActorName(First), "StaticMeshActor_8");
    EXPECT_EQ(Editor.World().GetActorLabel(First), "StaticMeshActor_8") << "the label starts as the name";
    Editor.Editing().EditorDestroyActor(First);
    EXPECT_EQ(Editor.World().GetActorName(SpawnAndKeep(Editor)), "StaticMeshActor_9");
    Editor.Undo();
    EXPECT_EQ(Editor.World().GetActorName(SpawnAndKeep(Editor)), "StaticMeshActor_10");

    const FOrvActorRef Sofa = Add(Editor, "Sofa");
    EXPECT_FALSE(Add(Editor, "SOFA"));
    Editor.Editing().EditorDestroyActor(Sofa);
    EXPECT_FALSE(Add(Editor, "sofa")) << "undo could bring the destroyed one back";
    EXPECT_EQ(Editor.FindActorByName("Sofa"), nullptr);
}

TEST(FOrvMemoryEditorLevelTest, LabelsAreFreeTextAndAnActorWithoutRootComponentCannotMove)
{
    FOrvMemoryEditor Editor;
    const FOrvActorRef A = Add(Editor, "", "Chair");
    const FOrvActorRef B = Add(Editor, "", "Chair");
    EXPECT_EQ(Editor.World().GetActorLabel(A), Editor.World().GetActorLabel(B));
    Editor.Editing().SetActorLabel(B, "  ");
    EXPECT_EQ(Editor.World().GetActorLabel(B), Editor.World().GetActorName(B)) << "a blank label is the name";

    const FOrvActorRef Info = Editor.AddActor({"", "", "Info", {{1, 2, 3}, {}}, {}, false});
    Editor.Editing().SetActorTransform(Info, FOrvVector{5, 5, 5}, std::nullopt);
    EXPECT_FALSE(Editor.Editing().GetRootComponentTransform(Info).has_value());
    EXPECT_EQ(Editor.World().GetActorTransform(Info), FOrvTransform{});
}

TEST(FOrvMemoryEditorLevelTest, WithoutAnEditorWorldTheWorldPortsAreEmptyAndRefuseChanges)
{
    FOrvMemoryEditor Editor;
    const FOrvActorRef Actor = Editor.AddActor({"", "Chair", "StaticMeshActor", {{1, 2, 3}, {}}, {}, true});
    Editor.SetEditorWorldAvailable(false);

    EXPECT_TRUE(Editor.World().GetActors().empty());
    EXPECT_FALSE(Editor.World().IsActorAlive(Actor));
    EXPECT_FALSE(Editor.Editing().SpawnStaticMeshActor({}, {}));
    EXPECT_FALSE(Editor.Editing().EditorDestroyActor(Actor));
    EXPECT_FALSE(Editor.LevelEvents().AddActorHandlers({}, {}).IsValid());

    Editor.SetEditorWorldAvailable(true);
    EXPECT_EQ(Editor.World().GetActorTransform(Actor).Location, (FOrvVector{1, 2, 3}));
}

TEST(FOrvMemoryEditorLevelTest, SelectionKeepsOrderSkipsDuplicatesAndLosesDestroyedActors)
{
    FOrvMemoryEditor Editor;
    const FOrvActorRef A = Editor.AddActor({});
    const FOrvActorRef B = Editor.AddActor({});
    Editor.Editing().SetTemporarilyHidden(B, true);
    Editor.Selection().SelectActor(B);
    Editor.Selection().SelectActor(A);
    Editor.Selection().SelectActor(B);
    Editor.Selection().NoteSelectionChange();
    EXPECT_EQ(Editor.GetSelectedActors(), (std::vector<FOrvActorRef>{B, A}));
    EXPECT_EQ(Editor.GetSelectionChangeNotifications(), 1);

    Editor.Editing().EditorDestroyActor(B);
    EXPECT_EQ(Editor.GetSelectedActors(), std::vector<FOrvActorRef>{A});
    Editor.Selection().SelectNone();
    EXPECT_TRUE(Editor.GetSelectedActors().empty());
}
