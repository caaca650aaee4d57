#include "Host/Editor/OrvMemoryEditorPorts.h"

namespace OrvWebBridge
{
    FOrvActorEventsHandle FOrvMemoryLevelEventsPort::AddActorHandlers(FOrvActorEvent OnSpawned,
                                                                      FOrvActorEvent OnDestroyed)
    {
        if (!Context.Level.bWorldAvailable)
        {
            return {};
        }
        return FOrvActorEventsHandle{Context.Level.AddHandlers(std::move(OnSpawned), std::move(OnDestroyed))};
    }

    void FOrvMemoryLevelEventsPort::RemoveActorHandlers(FOrvActorEventsHandle Handle)
    {
        if (Handle.IsValid())
        {
            Context.Level.RemoveHandlers(Handle.Value);
        }
    }
} // namespace OrvWebBridge
