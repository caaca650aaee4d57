#include "Core/Common/OrvLogging.h"

#include <cstdio>

namespace OrvWebBridge
{
    void OrvLogf(IOrvLog& Log, EOrvLogCategory Category, EOrvLogVerbosity Verbosity, const char* Format, ...)
    {
        va_list Args;
        va_start(Args, Format);
        const std::string Message = FOrvStrings::VPrintf(Format, Args);
        va_end(Args);
        Log.Log(Category, Verbosity, Message);
    }

    const char* OrvLogCategoryName(EOrvLogCategory Category)
    {
        switch (Category)
        {
        case EOrvLogCategory::LogOrvMcp:
            return "LogOrvMcp";
        case EOrvLogCategory::LogOrvMcpHandler:
            return "LogOrvMcpHandler";
        case EOrvLogCategory::LogTemp:
            return "LogTemp";
        }
        return "LogTemp";
    }

    const char* OrvLogVerbosityName(EOrvLogVerbosity Verbosity)
    {
        switch (Verbosity)
        {
        case EOrvLogVerbosity::Error:
            return "Error";
        case EOrvLogVerbosity::Warning:
            return "Warning";
        case EOrvLogVerbosity::Display:
            return "Display";
        case EOrvLogVerbosity::Log:
            return "Log";
        case EOrvLogVerbosity::Verbose:
            return "Verbose";
        }
        return "Log";
    }
} // namespace OrvWebBridge
