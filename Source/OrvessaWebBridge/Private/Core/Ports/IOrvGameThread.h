#pragma once

#include <functional>

namespace OrvWebBridge
{
    /**
     * @brief The editor's game-thread task queue (AsyncTask(ENamedThreads::GameThread, ...)).
     * A posted task always runs later, on a following turn of the game thread, never inline.
     */
    class IOrvGameThread
    {
    public:
        virtual ~IOrvGameThread() = default;

        /** Queues Task to run on the game thread after the caller has returned. */
        virtual void Post(std::function<void()> Task) = 0;
    };
} // namespace OrvWebBridge
