#include "Host/Editor/OrvMemoryEditor.h"

#include "Host/Editor/OrvMemoryEditorPorts.h"

namespace OrvWebBridge
{
    struct FOrvMemoryEditor::FState
    {
        FOrvMemoryEditorContext Context;
        FOrvMemoryWorldPort World{Context};
        FOrvMemoryLevelEventsPort LevelEvents{Context};
        FOrvMemoryActorEditingPort Editing{Context};
        FOrvMemorySelectionPort Selection{Context};
        FOrvMemoryAssetRegistryPort Assets{Context};
        FOrvMemoryStaticMeshesPort Meshes{Context};
        FOrvMemoryViewportPort Viewport{Context};
        FOrvMemoryContentBrowserPort ContentBrowser{Context};
        FOrvMemoryWidgetFocusPort WidgetFocus{Context};
    };

    FOrvMemoryEditor::FOrvMemoryEditor() : State(std::make_unique<FState>())
    {
        State->Context.Viewport = FOrvMemoryViewportDesc{};
    }

    FOrvMemoryEditor::~FOrvMemoryEditor() = default;

    FOrvMeshRef FOrvMemoryEditor::AddStaticMesh(const FOrvMemoryMeshDesc& Mesh)
    {
        return State->Context.Assets.AddStaticMesh(Mesh);
    }

    void FOrvMemoryEditor::AddAsset(const FOrvAssetData& Asset, FOrvMemoryMetaData MetaData)
    {
        State->Context.Assets.AddAsset(Asset, std::move(MetaData));
    }

    FOrvActorRef FOrvMemoryEditor::AddActor(const FOrvMemoryActorDesc& Actor)
    {
        FOrvMemoryActor Record;
        Record.Name = Actor.Name;
        Record.Label = Actor.Label;
        Record.ClassName = Actor.ClassName.empty() ? std::string("Actor") : Actor.ClassName;
        Record.Transform = Actor.Transform;
        Record.StaticMeshComponents = Actor.StaticMeshComponents;
        Record.bHasRootComponent = Actor.bHasRootComponent;
        return State->Context.Level.AddActor(std::move(Record));
    }

    void FOrvMemoryEditor::SetViewport(const std::optional<FOrvMemoryViewportDesc>& Viewport)
    {
        State->Context.Viewport = Viewport;
    }

    void FOrvMemoryEditor::SetEditorWorldAvailable(bool bAvailable)
    {
        State->Context.Level.bWorldAvailable = bAvailable;
    }

    void FOrvMemoryEditor::SetMapName(const std::string& MapName)
    {
        State->Context.Level.MapName = MapName;
    }

    std::vector<const FOrvMemoryActor*> FOrvMemoryEditor::GetLevelActors() const
    {
        const FOrvMemoryLevel& Level = State->Context.Level;
        std::vector<const FOrvMemoryActor*> Result;
        Result.reserve(Level.GetOrder().size());
        for (const FOrvActorRef Ref : Level.GetOrder())
        {
            Result.push_back(Level.Find(Ref));
        }
        return Result;
    }

    const FOrvMemoryActor* FOrvMemoryEditor::FindActor(FOrvActorRef Actor) const
    {
        return State->Context.Level.Find(Actor);
    }

    const FOrvMemoryActor* FOrvMemoryEditor::FindActorByName(const std::string& Name) const
    {
        return State->Context.Level.FindByName(Name);
    }

    const FOrvMemoryMeshDesc* FOrvMemoryEditor::FindMesh(FOrvMeshRef Mesh) const
    {
        return State->Context.Assets.FindMesh(Mesh);
    }

    std::vector<FOrvMemoryMeshDesc> FOrvMemoryEditor::GetMeshes() const
    {
        return State->Context.Assets.GetMeshes();
    }

    std::vector<FOrvAssetData> FOrvMemoryEditor::GetNonMeshAssets() const
    {
        return State->Context.Assets.GetNonMeshAssets();
    }

    std::vector<FOrvAssetData> FOrvMemoryEditor::GetRegisteredAssets() const
    {
        return State->Context.Assets.GetRegisteredAssets();
    }

    FOrvMemoryMetaData FOrvMemoryEditor::GetMetaData(const std::string& PackageName) const
    {
        return State->Context.Assets.GetMetaData(PackageName);
    }

    void FOrvMemoryEditor::SetContentBrowserSelection(std::vector<FOrvAssetData> Assets)
    {
        FOrvMemoryEditorUi& Ui = State->Context.Ui;
        Ui.ContentBrowserSelection = std::move(Assets);
        Ui.OnAssetSelectionChanged.Broadcast(Ui.ContentBrowserSelection);
    }

    std::vector<FOrvAssetData> FOrvMemoryEditor::GetContentBrowserSelection() const
    {
        return State->Context.Ui.ContentBrowserSelection;
    }

    void FOrvMemoryEditor::SetKeyboardFocus(EOrvMemoryFocus Focus)
    {
        State->Context.Ui.Focus = Focus;
    }

    EOrvMemoryFocus FOrvMemoryEditor::GetKeyboardFocus() const
    {
        return State->Context.Ui.Focus;
    }

    std::uint64_t FOrvMemoryEditor::AddSelectionChangedHandler(std::function<void()> Handler)
    {
        return State->Context.Ui.OnSelectionChanged.Add(std::move(Handler));
    }

    void FOrvMemoryEditor::RemoveSelectionChangedHandler(std::uint64_t Handle)
    {
        State->Context.Ui.OnSelectionChanged.Remove(Handle);
    }

    std::uint64_t
    FOrvMemoryEditor::AddAssetSelectionChangedHandler(std::function<void(std::vector<FOrvAssetData>)> Handler)
    {
        return State->Context.Ui.OnAssetSelectionChanged.Add(std::move(Handler));
    }

    void FOrvMemoryEditor::RemoveAssetSelectionChangedHandler(std::uint64_t Handle)
    {
        State->Context.Ui.OnAssetSelectionChanged.Remove(Handle);
    }

    std::optional<FOrvMemoryViewportDesc> FOrvMemoryEditor::GetViewport() const
    {
        return State->Context.Viewport;
    }

    std::vector<FOrvActorRef> FOrvMemoryEditor::GetSelectedActors() const
    {
        return State->Context.Level.GetSelection();
    }

    int FOrvMemoryEditor::GetSelectionChangeNotifications() const
    {
        return State->Context.Level.GetSelectionNotifications();
    }

    std::string FOrvMemoryEditor::GetMapName() const
    {
        return State->Context.Level.MapName;
    }

    bool FOrvMemoryEditor::IsEditorWorldAvailable() const
    {
        return State->Context.Level.bWorldAvailable;
    }

    bool FOrvMemoryEditor::Undo()
    {
        return State->Context.UndoBuffer.Undo();
    }

    bool FOrvMemoryEditor::Redo()
    {
        return State->Context.UndoBuffer.Redo();
    }

    std::vector<FOrvMemoryHistoryEntry> FOrvMemoryEditor::GetUndoHistory() const
    {
        return State->Context.UndoBuffer.GetUndoHistory();
    }

    std::vector<FOrvMemoryHistoryEntry> FOrvMemoryEditor::GetRedoHistory() const
    {
        return State->Context.UndoBuffer.GetRedoHistory();
    }

    bool FOrvMemoryEditor::IsDirty() const
    {
        return State->Context.Level.bDirty;
    }

    void FOrvMemoryEditor::MarkClean()
    {
        State->Context.Level.bDirty = false;
    }

    IOrvEditorWorld& FOrvMemoryEditor::World()
    {
        return State->World;
    }

    IOrvLevelEvents& FOrvMemoryEditor::LevelEvents()
    {
        return State->LevelEvents;
    }

    IOrvActorEditing& FOrvMemoryEditor::Editing()
    {
        return State->Editing;
    }

    IOrvEditorSelection& FOrvMemoryEditor::Selection()
    {
        return State->Selection;
    }

    IOrvTransactions& FOrvMemoryEditor::Transactions()
    {
        return State->Context.UndoBuffer;
    }

    IOrvAssetRegistry& FOrvMemoryEditor::Assets()
    {
        return State->Assets;
    }

    IOrvStaticMeshes& FOrvMemoryEditor::Meshes()
    {
        return State->Meshes;
    }

    IOrvViewport& FOrvMemoryEditor::Viewport()
    {
        return State->Viewport;
    }

    IOrvContentBrowser& FOrvMemoryEditor::ContentBrowser()
    {
        return State->ContentBrowser;
    }

    IOrvWidgetFocus& FOrvMemoryEditor::WidgetFocus()
    {
        return State->WidgetFocus;
    }

    FOrvMcpPorts FOrvMemoryEditor::McpPorts(IOrvImageWrapperModule& Images, IOrvGameThread& GameThread,
                                            IOrvLog& Log)
    {
        return {World(), Editing(), Transactions(), Assets(), Meshes(), Viewport(), Images, GameThread, Log};
    }
} // namespace OrvWebBridge
