#pragma once

#include <string_view>

namespace OrvWebBridge
{
    /** @brief The engine log categories this plugin writes to. */
    enum class EOrvLogCategory
    {
        LogOrvMcp,        ///< the HTTP endpoint
        LogOrvMcpHandler, ///< the JSON-RPC handler and the tools
        LogTemp,          ///< everything else
    };

    /** @brief Engine log verbosities, most severe first. */
    enum class EOrvLogVerbosity
    {
        Error,
        Warning,
        Display,
        Log,
        Verbose,
    };

    /** @brief The engine's log (UE_LOG). Game thread. */
    class IOrvLog
    {
    public:
        virtual ~IOrvLog() = default;

        /** Writes one message, without a trailing line end, under a category and verbosity. */
        virtual void Log(EOrvLogCategory Category, EOrvLogVerbosity Verbosity, std::string_view Message) = 0;
    };

    /** @brief Name of a category as the engine prints it ("LogOrvMcp"). */
    const char* OrvLogCategoryName(EOrvLogCategory Category);

    /** @brief Name of a verbosity as the engine prints it ("Warning"). */
    const char* OrvLogVerbosityName(EOrvLogVerbosity Verbosity);
} // namespace OrvWebBridge
