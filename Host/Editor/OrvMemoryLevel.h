#pragma once

#include "Core/Common/OrvTypes.h"
#include "Core/Ports/IOrvEditorWorld.h"
#include "Host/Editor/OrvMemoryEditor.h"
#include "Host/Editor/OrvObjectNames.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace OrvWebBridge
{
    /**
     * @brief The level held in memory: its actors in iterator order, looked up by ref and by name in
     * constant time, plus the editor state that belongs to the open world (selection, event handlers,
     * map name, dirty flag).
     *
     * A destroyed actor keeps its record (name, data, ref) so that undo can bring it back unchanged; refs
     * and object names are never handed out twice in a session. Spawned and destroyed handlers fire for
     * every actor entering or leaving the level, whether by a port call, a scene load or undo/redo.
     */
    class FOrvMemoryLevel
    {
    public:
        /** Places an actor at the end of the iterator order. Empty name: the next "<Class>_<N>".
         *  Null when the name is taken by any actor of the session, alive or destroyed. */
        FOrvActorRef AddActor(FOrvMemoryActor Actor);

        /** Takes an actor out of the level (its record stays); false when it is not in the level. */
        bool RemoveActor(FOrvActorRef Actor);

        /** Puts a removed actor back at Index of the iterator order (clamped); false when it is in the level.
         */
        bool RestoreActor(FOrvActorRef Actor, std::size_t Index);

        /** The actor when it is in the level. */
        const FOrvMemoryActor* Find(FOrvActorRef Actor) const;

        /** The actor when it is in the level, to change it: counts as a change of the level's content. */
        FOrvMemoryActor* Edit(FOrvActorRef Actor);

        /** The actor's record whether or not it is in the level (undo restores data into removed actors). */
        FOrvMemoryActor* EditRecord(FOrvActorRef Actor);

        /** Goes up with every change of what the level holds or shows, so that a picture of it can be reused.
         */
        std::uint64_t GetRevision() const { return Revision; }

        /** The actor in the level whose object name is exactly Name. */
        const FOrvMemoryActor* FindByName(std::string_view Name) const;

        /** Where the actor stands in the iterator order. */
        std::optional<std::size_t> IndexOf(FOrvActorRef Actor) const;

        const std::vector<FOrvActorRef>& GetOrder() const { return Order; }

        // Actor events, fired in registration order.
        std::uint64_t AddHandlers(FOrvActorEvent OnSpawned, FOrvActorEvent OnDestroyed);
        void RemoveHandlers(std::uint64_t Handle);

        // Selection, in selection order; destroyed actors leave it.
        void SelectNone() { Selection.clear(); }
        void Select(FOrvActorRef Actor);
        const std::vector<FOrvActorRef>& GetSelection() const { return Selection; }
        void NoteSelectionChange() { ++SelectionNotifications; }
        int GetSelectionNotifications() const { return SelectionNotifications; }

        // World state.
        bool bWorldAvailable = true;
        bool bDirty = false;
        std::string MapName = "Untitled";

    private:
        struct FActorRecord
        {
            FOrvMemoryActor Actor;
            bool bInLevel = false;
        };

        struct FHandlers
        {
            FOrvActorEvent OnSpawned;
            FOrvActorEvent OnDestroyed;
        };

        void Broadcast(FOrvActorRef Actor, bool bSpawned);

        std::unordered_map<std::uint64_t, FActorRecord> Records;
        std::unordered_map<std::string, FOrvActorRef> RefByNameKey; ///< every name of the session, lower case
        std::vector<FOrvActorRef> Order;
        FOrvNameCounters NameCounters;
        std::uint64_t NextActorRef = 1;
        std::uint64_t Revision = 0;

        std::map<std::uint64_t, FHandlers> Handlers;
        std::uint64_t NextHandle = 1;

        std::vector<FOrvActorRef> Selection;
        int SelectionNotifications = 0;
    };
} // namespace OrvWebBridge
