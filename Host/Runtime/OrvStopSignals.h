#pragma once

#include <functional>
#include <memory>

namespace OrvWebBridge
{
    class FOrvHostEventLoop;

    /** @brief Ctrl+C (SIGINT) and SIGTERM, delivered as a call on the event loop instead of killing the host.
     */
    class FOrvStopSignals
    {
    public:
        /** OnSignal gets the signal number; it runs on the loop, once per signal received. */
        FOrvStopSignals(FOrvHostEventLoop& Loop, std::function<void(int Signal)> OnSignal);
        ~FOrvStopSignals();
        FOrvStopSignals(const FOrvStopSignals&) = delete;
        FOrvStopSignals& operator=(const FOrvStopSignals&) = delete;

    private:
        struct FState;
        std::shared_ptr<FState> State;
    };
} // namespace OrvWebBridge
