#include "Host/Editor/OrvMemoryLevel.h"

#include <algorithm>

namespace OrvWebBridge
{
    FOrvActorRef FOrvMemoryLevel::AddActor(FOrvMemoryActor Actor)
    {
        if (Actor.Name.empty())
        {
            Actor.Name = NameCounters.MakeUnique(Actor.ClassName);
            // A name given by hand ("Chair_0") may already hold the number the counter reached.
            while (RefByNameKey.contains(FOrvObjectNames::Key(Actor.Name)))
            {
                Actor.Name = NameCounters.MakeUnique(Actor.ClassName);
            }
        }
        const std::string NameKey = FOrvObjectNames::Key(Actor.Name);
        if (RefByNameKey.contains(NameKey))
        {
            return {};
        }
        NameCounters.NoteUsed(Actor.Name);
        if (Actor.Label.empty())
        {
            Actor.Label = Actor.Name;
        }

        Actor.Ref = FOrvActorRef{NextActorRef++};
        RefByNameKey.emplace(NameKey, Actor.Ref);
        Order.push_back(Actor.Ref);
        const FOrvActorRef Ref = Actor.Ref;
        Records.emplace(Ref.Value, FActorRecord{std::move(Actor), true});
        ++Revision;
        Broadcast(Ref, true);
        return Ref;
    }

    bool FOrvMemoryLevel::RemoveActor(FOrvActorRef Actor)
    {
        const auto It = Records.find(Actor.Value);
        if (It == Records.end() || !It->second.bInLevel)
        {
            return false;
        }
        It->second.bInLevel = false;
        Order.erase(std::find(Order.begin(), Order.end(), Actor));
        std::erase(Selection, Actor);
        ++Revision;
        Broadcast(Actor, false);
        return true;
    }

    bool FOrvMemoryLevel::RestoreActor(FOrvActorRef Actor, std::size_t Index)
    {
        const auto It = Records.find(Actor.Value);
        if (It == Records.end() || It->second.bInLevel)
        {
            return false;
        }
        It->second.bInLevel = true;
        Order.insert(Order.begin() + static_cast<std::ptrdiff_t>(std::min(Index, Order.size())), Actor);
        ++Revision;
        Broadcast(Actor, true);
        return true;
    }

    FOrvMemoryActor* FOrvMemoryLevel::Edit(FOrvActorRef Actor)
    {
        const auto It = Records.find(Actor.Value);
        if (It == Records.end() || !It->second.bInLevel)
        {
            return nullptr;
        }
        ++Revision;
        return &It->second.Actor;
    }

    const FOrvMemoryActor* FOrvMemoryLevel::Find(FOrvActorRef Actor) const
    {
        const auto It = Records.find(Actor.Value);
        return It != Records.end() && It->second.bInLevel ? &It->second.Actor : nullptr;
    }

    FOrvMemoryActor* FOrvMemoryLevel::EditRecord(FOrvActorRef Actor)
    {
        const auto It = Records.find(Actor.Value);
        if (It == Records.end())
        {
            return nullptr;
        }
        ++Revision;
        return &It->second.Actor;
    }

    const FOrvMemoryActor* FOrvMemoryLevel::FindByName(std::string_view Name) const
    {
        const auto It = RefByNameKey.find(FOrvObjectNames::Key(Name));
        if (It == RefByNameKey.end())
        {
            return nullptr;
        }
        const FOrvMemoryActor* Actor = Find(It->second);
        return Actor && Actor->Name == Name ? Actor : nullptr;
    }

    std::optional<std::size_t> FOrvMemoryLevel::IndexOf(FOrvActorRef Actor) const
    {
        const auto It = std::find(Order.begin(), Order.end(), Actor);
        if (It == Order.end())
        {
            return std::nullopt;
        }
        return static_cast<std::size_t>(It - Order.begin());
    }

    std::uint64_t FOrvMemoryLevel::AddHandlers(FOrvActorEvent OnSpawned, FOrvActorEvent OnDestroyed)
    {
        const std::uint64_t Handle = NextHandle++;
        Handlers.emplace(Handle, FHandlers{std::move(OnSpawned), std::move(OnDestroyed)});
        return Handle;
    }

    void FOrvMemoryLevel::RemoveHandlers(std::uint64_t Handle)
    {
        Handlers.erase(Handle);
    }

    void FOrvMemoryLevel::Select(FOrvActorRef Actor)
    {
        if (Find(Actor) && std::find(Selection.begin(), Selection.end(), Actor) == Selection.end())
        {
            Selection.push_back(Actor);
        }
    }

    void FOrvMemoryLevel::Broadcast(FOrvActorRef Actor, bool bSpawned)
    {
        // Handlers may add or remove handlers while they run: call a snapshot, skipping removed ones.
        std::vector<std::uint64_t> Snapshot;
        Snapshot.reserve(Handlers.size());
        for (const auto& [Handle, Pair] : Handlers)
        {
            Snapshot.push_back(Handle);
        }
        for (const std::uint64_t Handle : Snapshot)
        {
            const auto It = Handlers.find(Handle);
            if (It == Handlers.end())
            {
                continue;
            }
            // Copy: the handler may remove itself while running.
            const FOrvActorEvent Handler = bSpawned ? It->second.OnSpawned : It->second.OnDestroyed;
            if (Handler)
            {
                Handler(Actor);
            }
        }
    }
} // namespace OrvWebBridge
