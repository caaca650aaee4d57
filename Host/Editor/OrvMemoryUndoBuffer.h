#pragma once

#include "Core/Ports/IOrvTransactions.h"
#include "Host/Editor/OrvMemoryEditor.h"

#include <cstddef>
#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace OrvWebBridge
{
    class FOrvMemoryLevel;

    /**
     * @brief The editor's undo buffer. Transactions nest like the engine's: only the outermost one makes
     * an undo step (named by its description), even when nothing changed inside it. Opening a new step
     * drops what could be redone. Changes made while no transaction is open are not recorded.
     *
     * Each step is a log of primitive changes (actor entered, actor left at position N, actor data from A
     * to B); undo plays it backwards, redo forwards, so names, refs and iterator order come back exactly.
     */
    class FOrvMemoryUndoBuffer : public IOrvTransactions
    {
    public:
        static constexpr std::size_t DefaultMaxSteps = 100;

        explicit FOrvMemoryUndoBuffer(FOrvMemoryLevel& InLevel, std::size_t InMaxSteps = DefaultMaxSteps);

        void BeginTransaction(std::string_view Description) override;
        void EndTransaction() override; ///< an End without a Begin is ignored

        bool IsRecording() const { return Depth > 0; }

        // Called by the editing port after each change; ignored while no transaction is open.
        void RecordSpawned(FOrvActorRef Actor, std::size_t Index);
        void RecordDestroyed(FOrvActorRef Actor, std::size_t Index);
        void RecordChanged(const FOrvMemoryActor& Before, const FOrvMemoryActor& After);

        bool Undo(); ///< false when there is nothing to undo or a transaction is open
        bool Redo(); ///< likewise for redo

        std::vector<FOrvMemoryHistoryEntry> GetUndoHistory() const; ///< oldest first
        std::vector<FOrvMemoryHistoryEntry> GetRedoHistory() const; ///< next redo last

    private:
        enum class EChange
        {
            Spawned,
            Destroyed,
            Changed,
        };

        struct FChange
        {
            EChange Kind = EChange::Changed;
            FOrvActorRef Actor;
            std::size_t Index = 0;                 ///< Spawned / Destroyed: position in the iterator order
            std::optional<FOrvMemoryActor> Before; ///< Changed only
            std::optional<FOrvMemoryActor> After;  ///< Changed only
        };

        struct FStep
        {
            std::string Description;
            std::vector<FChange> Changes;
        };

        void Apply(const FChange& Change, bool bForward);
        void ApplyData(FOrvActorRef Actor, const FOrvMemoryActor& Data);

        FOrvMemoryLevel& Level;
        std::size_t MaxSteps;
        int Depth = 0;
        FStep Open;
        std::deque<FStep> UndoSteps;
        std::vector<FStep> RedoSteps;
    };
} // namespace OrvWebBridge
