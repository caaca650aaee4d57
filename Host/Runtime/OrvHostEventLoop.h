#pragma once

#include "Core/Ports/IOrvGameThread.h"
#include "Core/Ports/IOrvLog.h"
#include "Core/Ports/IOrvTimers.h"

#include <functional>
#include <memory>

namespace boost::asio
{
    class io_context;
}

namespace OrvWebBridge
{
    /**
     * @brief The host's game thread: one event loop on which HTTP requests are delivered, queued editor
     * tasks run (on a later turn) and timers fire. Everything of the core runs on the thread calling Run.
     */
    class FOrvHostEventLoop
    {
    public:
        FOrvHostEventLoop();
        ~FOrvHostEventLoop();
        FOrvHostEventLoop(const FOrvHostEventLoop&) = delete;
        FOrvHostEventLoop& operator=(const FOrvHostEventLoop&) = delete;

        IOrvGameThread& GameThread();
        IOrvTimers& Timers();
        boost::asio::io_context& Context();

        /** Runs until Stop is called. With a log, a handler that throws is logged as an error and the loop
         * runs on: the user's unsaved level outlives one failed request. */
        void Run(IOrvLog* Log = nullptr);

        /** Runs until Done() is true (checked after each handler) or the time is up; false on timeout. */
        bool RunUntil(const std::function<bool()>& Done, double TimeoutSeconds);

        /** Makes Run return; callable from a signal handler's posted work or any handler. */
        void Stop();

    private:
        struct FState;
        std::unique_ptr<FState> State;
    };
} // namespace OrvWebBridge
