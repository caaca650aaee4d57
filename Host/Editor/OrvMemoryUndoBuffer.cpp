#include "Host/Editor/OrvMemoryUndoBuffer.h"

#include "Host/Editor/OrvMemoryLevel.h"

namespace OrvWebBridge
{
    FOrvMemoryUndoBuffer::FOrvMemoryUndoBuffer(FOrvMemoryLevel& InLevel, std::size_t InMaxSteps)
        : Level(InLevel), MaxSteps(InMaxSteps == 0 ? 1 : InMaxSteps)
    {
    }

    void FOrvMemoryUndoBuffer::BeginTransaction(std::string_view Description)
    {
        if (Depth++ > 0)
        {
            return;
        }
        Open = FStep{std::string(Description), {}};
        RedoSteps.clear();
    }

    void FOrvMemoryUndoBuffer::EndTransaction()
    {
        if (Depth == 0 || --Depth > 0)
        {
            return;
        }
        UndoSteps.push_back(std::move(Open));
        Open = {};
        if (UndoSteps.size() > MaxSteps)
        {
            UndoSteps.pop_front();
        }
    }

    void FOrvMemoryUndoBuffer::RecordSpawned(FOrvActorRef Actor, std::size_t Index)
    {
        if (IsRecording())
        {
            Open.Changes.push_back(FChange{EChange::Spawned, Actor, Index, std::nullopt, std::nullopt});
        }
    }

    void FOrvMemoryUndoBuffer::RecordDestroyed(FOrvActorRef Actor, std::size_t Index)
    {
        if (IsRecording())
        {
            Open.Changes.push_back(FChange{EChange::Destroyed, Actor, Index, std::nullopt, std::nullopt});
        }
    }

    void FOrvMemoryUndoBuffer::RecordChanged(const FOrvMemoryActor& Before, const FOrvMemoryActor& After)
    {
        if (!IsRecording())
        {
            return;
        }
        // A tool's Modify, mesh and label changes on one actor fold into one entry.
        if (!Open.Changes.empty())
        {
            FChange& Last = Open.Changes.back();
            if (Last.Kind == EChange::Changed && Last.Actor == After.Ref)
            {
                Last.After = After;
                return;
            }
        }
        Open.Changes.push_back(FChange{EChange::Changed, After.Ref, 0, Before, After});
    }

    bool FOrvMemoryUndoBuffer::Undo()
    {
        if (Depth > 0 || UndoSteps.empty())
        {
            return false;
        }
        FStep Step = std::move(UndoSteps.back());
        UndoSteps.pop_back();
        for (auto It = Step.Changes.rbegin(); It != Step.Changes.rend(); ++It)
        {
            Apply(*It, false);
        }
        RedoSteps.push_back(std::move(Step));
        Level.bDirty = true;
        return true;
    }

    bool FOrvMemoryUndoBuffer::Redo()
    {
        if (Depth > 0 || RedoSteps.empty())
        {
            return false;
        }
        FStep Step = std::move(RedoSteps.back());
        RedoSteps.pop_back();
        for (const FChange& Change : Step.Changes)
        {
            Apply(Change, true);
        }
        UndoSteps.push_back(std::move(Step));
        Level.bDirty = true;
        return true;
    }

    void FOrvMemoryUndoBuffer::Apply(const FChange& Change, bool bForward)
    {
        // Each primitive is guarded (already in or out of the level, record gone) so that changes made
        // outside any transaction in between cannot make a replay fail half-way.
        switch (Change.Kind)
        {
        case EChange::Spawned:
            bForward ? (void)Level.RestoreActor(Change.Actor, Change.Index)
                     : (void)Level.RemoveActor(Change.Actor);
            break;
        case EChange::Destroyed:
            bForward ? (void)Level.RemoveActor(Change.Actor)
                     : (void)Level.RestoreActor(Change.Actor, Change.Index);
            break;
        case EChange::Changed:
            ApplyData(Change.Actor, bForward ? *Change.After : *Change.Before);
            break;
        }
    }

    void FOrvMemoryUndoBuffer::ApplyData(FOrvActorRef Actor, const FOrvMemoryActor& Data)
    {
        FOrvMemoryActor* Record = Level.EditRecord(Actor);
        if (!Record)
        {
            return;
        }
        // Temporary hiding is session state, not part of the transaction.
        Record->Transform = Data.Transform;
        Record->Label = Data.Label;
        Record->StaticMeshComponents = Data.StaticMeshComponents;
    }

    std::vector<FOrvMemoryHistoryEntry> FOrvMemoryUndoBuffer::GetUndoHistory() const
    {
        std::vector<FOrvMemoryHistoryEntry> Result;
        for (const FStep& Step : UndoSteps)
        {
            Result.push_back({Step.Description});
        }
        return Result;
    }

    std::vector<FOrvMemoryHistoryEntry> FOrvMemoryUndoBuffer::GetRedoHistory() const
    {
        std::vector<FOrvMemoryHistoryEntry> Result;
        for (const FStep& Step : RedoSteps)
        {
            Result.push_back({Step.Description});
        }
        return Result;
    }
} // namespace OrvWebBridge
