#pragma once

#include "Core/Ports/IOrvGameThread.h"

#include <functional>
#include <memory>

namespace OrvWebBridge
{
    /**
     * @brief Posts through another game-thread queue, and drops the tasks still queued when it is destroyed.
     * The editor's queue outlives the module: a tool task queued just before shut-down would otherwise run
     * against adapters that are gone. The composition root owns one and hands it to everything it builds.
     */
    class FOrvGuardedGameThread final : public IOrvGameThread
    {
    public:
        explicit FOrvGuardedGameThread(IOrvGameThread& InQueue) : Queue(InQueue) {}
        FOrvGuardedGameThread(const FOrvGuardedGameThread&) = delete;
        FOrvGuardedGameThread& operator=(const FOrvGuardedGameThread&) = delete;

        void Post(std::function<void()> Task) override
        {
            if (!Task)
            {
                return;
            }
            Queue.Post(
                [WeakAlive = std::weak_ptr<const bool>(Alive), Task = std::move(Task)]()
                {
                    if (!WeakAlive.expired())
                    {
                        Task();
                    }
                });
        }

    private:
        IOrvGameThread& Queue;
        std::shared_ptr<const bool> Alive = std::make_shared<const bool>(true);
    };
} // namespace OrvWebBridge
