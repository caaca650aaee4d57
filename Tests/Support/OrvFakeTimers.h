#pragma once

#include "Core/Ports/IOrvTimers.h"

#include <cstdint>
#include <functional>
#include <map>
#include <utility>

namespace OrvWebBridge
{
    /** @brief Timers on a clock that only the test moves. */
    class FOrvFakeTimers : public IOrvTimers
    {
    public:
        FOrvTimerHandle SetTimer(double DelaySeconds, std::function<void()> Callback) override
        {
            Pending[{Now + DelaySeconds, ++LastId}] = std::move(Callback);
            return {LastId};
        }
        void ClearTimer(FOrvTimerHandle& Handle) override
        {
            std::erase_if(Pending, [&](const auto& Entry) { return Entry.first.second == Handle.Value; });
            Handle = {};
        }

        /** Moves the clock on, firing due timers in the order they fall due. */
        void Advance(double Seconds)
        {
            Now += Seconds;
            while (!Pending.empty() && Pending.begin()->first.first <= Now + 1e-9)
            {
                std::function<void()> Callback = std::move(Pending.begin()->second);
                Pending.erase(Pending.begin());
                Callback();
            }
        }
        std::size_t PendingCount() const { return Pending.size(); }

    private:
        std::map<std::pair<double, std::uint64_t>, std::function<void()>>
            Pending; ///< (due time, id) to callback
        std::uint64_t LastId = 0;
        double Now = 0.0;
    };
} // namespace OrvWebBridge
