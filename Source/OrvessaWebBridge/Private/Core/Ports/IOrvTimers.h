#pragma once

#include <cstdint>
#include <functional>

namespace OrvWebBridge
{
    /** @brief Handle of a one-shot timer; zero when no timer is set. */
    struct FOrvTimerHandle
    {
        std::uint64_t Value = 0;

        bool IsValid() const { return Value != 0; }
    };

    /** @brief The editor world's timer manager. Callbacks fire on the game thread. */
    class IOrvTimers
    {
    public:
        virtual ~IOrvTimers() = default;

        /** Sets a one-shot timer; returns an invalid handle when there is no world to own it. */
        virtual FOrvTimerHandle SetTimer(double DelaySeconds, std::function<void()> Callback) = 0;

        /** Clears the timer if it is still pending and resets the handle. */
        virtual void ClearTimer(FOrvTimerHandle& Handle) = 0;
    };
} // namespace OrvWebBridge
