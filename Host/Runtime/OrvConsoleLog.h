#pragma once

#include "Core/Ports/IOrvLog.h"

#include <cstdio>

namespace OrvWebBridge
{
    /**
     * @brief The host's log: one line per message on a stream (standard error by default), in the engine's
     * output format "Category: Verbosity: Message" ("Category: Message" for Log). Verbose lines only when
     * asked.
     */
    class FOrvConsoleLog : public IOrvLog
    {
    public:
        explicit FOrvConsoleLog(bool bInVerbose, std::FILE* InStream = stderr);

        void Log(EOrvLogCategory Category, EOrvLogVerbosity Verbosity, std::string_view Message) override;

        /** The line as the engine prints it, without the line end. */
        static std::string FormatLine(EOrvLogCategory Category, EOrvLogVerbosity Verbosity,
                                      std::string_view Message);

    private:
        bool bVerbose;
        std::FILE* Stream;
    };
} // namespace OrvWebBridge
