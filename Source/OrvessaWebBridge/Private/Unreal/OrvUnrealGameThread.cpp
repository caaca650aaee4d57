#include "Unreal/OrvUnrealGameThread.h"

#include "Async/Async.h"

namespace OrvWebBridge
{
    void FOrvUnrealGameThread::Post(std::function<void()> Task)
    {
        if (!Task)
        {
            return;
        }
        // Queued even when called on the game thread, so a completion never runs inside its caller.
        AsyncTask(ENamedThreads::GameThread, [Task = MoveTemp(Task)]() { Task(); });
    }
} // namespace OrvWebBridge
