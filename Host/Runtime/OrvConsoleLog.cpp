#include "Host/Runtime/OrvConsoleLog.h"

#include "Core/Common/OrvUtf8.h"

#include <string>

namespace OrvWebBridge
{
    FOrvConsoleLog::FOrvConsoleLog(bool bInVerbose, std::FILE* InStream)
        : bVerbose(bInVerbose), Stream(InStream)
    {
    }

    void FOrvConsoleLog::Log(EOrvLogCategory Category, EOrvLogVerbosity Verbosity, std::string_view Message)
    {
        if (Verbosity == EOrvLogVerbosity::Verbose && !bVerbose)
        {
            return;
        }
        const std::string Line = FormatLine(Category, Verbosity, Message) + "\n";
        std::fwrite(Line.data(), 1, Line.size(), Stream);
        // Lines must show up at once when the host runs under a test or a pipe.
        std::fflush(Stream);
    }

    std::string FOrvConsoleLog::FormatLine(EOrvLogCategory Category, EOrvLogVerbosity Verbosity,
                                           std::string_view Message)
    {
        std::string Line = OrvLogCategoryName(Category);
        Line += ": ";
        if (Verbosity != EOrvLogVerbosity::Log)
        {
            Line += OrvLogVerbosityName(Verbosity);
            Line += ": ";
        }
        // Messages quote what clients and files sent; the log stays valid UTF-8 all the same.
        FOrvUtf8::AppendValid(Line, Message);
        return Line;
    }
} // namespace OrvWebBridge
