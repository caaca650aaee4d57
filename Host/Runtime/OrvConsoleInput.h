#pragma once

#include <functional>
#include <memory>
#include <string>

namespace OrvWebBridge
{
    class FOrvHostEventLoop;

    /**
     * @brief Reads lines from a file descriptor (standard input) on the event loop, so console commands
     * run on the same thread as HTTP requests and editor work. Works with terminals, pipes and sockets.
     */
    class FOrvConsoleInput
    {
    public:
        using FOrvLineHandler = std::function<void(const std::string& Line)>;

        FOrvConsoleInput(FOrvHostEventLoop& Loop, FOrvLineHandler InOnLine, std::function<void()> InOnEnd);
        ~FOrvConsoleInput();
        FOrvConsoleInput(const FOrvConsoleInput&) = delete;
        FOrvConsoleInput& operator=(const FOrvConsoleInput&) = delete;

        /** Starts reading Descriptor (a duplicate is read); false when it cannot be waited on (a regular
         *  file, /dev/null, a closed descriptor). OnEnd runs once at end of input or on a read error. */
        bool Start(int Descriptor);

        /** Stops reading; no handler runs afterwards. */
        void Stop();

    private:
        struct FState;
        std::shared_ptr<FState> State;
    };
} // namespace OrvWebBridge
