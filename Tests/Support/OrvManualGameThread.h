#pragma once

#include "Core/Ports/IOrvGameThread.h"

#include <deque>
#include <functional>

namespace OrvWebBridge
{
    /** @brief A game-thread queue that tests pump by hand, so "completes later" can be observed. */
    class FOrvManualGameThread : public IOrvGameThread
    {
    public:
        void Post(std::function<void()> Task) override { Pending.push_back(std::move(Task)); }

        /** Runs queued tasks, including ones they queue, until none is left; returns how many ran. */
        int RunPending()
        {
            int Ran = 0;
            while (!Pending.empty())
            {
                std::function<void()> Task = std::move(Pending.front());
                Pending.pop_front();
                Task();
                ++Ran;
            }
            return Ran;
        }

        std::size_t PendingCount() const { return Pending.size(); }

    private:
        std::deque<std::function<void()>> Pending;
    };
} // namespace OrvWebBridge
