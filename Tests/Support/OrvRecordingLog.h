#pragma once

#include "Core/Ports/IOrvLog.h"

#include <string>
#include <vector>

namespace OrvWebBridge
{
    /** @brief A log port that keeps every line, for tests that check what was logged. */
    class FOrvRecordingLog : public IOrvLog
    {
    public:
        struct FLine
        {
            EOrvLogCategory Category;
            EOrvLogVerbosity Verbosity;
            std::string Message;
        };

        void Log(EOrvLogCategory Category, EOrvLogVerbosity Verbosity, std::string_view Message) override;

        /** Whether a line with exactly this message and verbosity was logged. */
        bool Contains(EOrvLogVerbosity Verbosity, std::string_view Message) const;

        /** How many lines carry exactly this message. */
        int Count(std::string_view Message) const;

        /** Every line as "Verbosity: message", from line First on. */
        std::vector<std::string> Transcript(std::size_t First = 0) const;

        /** The warnings and errors among them. */
        std::vector<std::string> Problems(std::size_t First = 0) const;

        std::vector<FLine> Lines;
    };
} // namespace OrvWebBridge
