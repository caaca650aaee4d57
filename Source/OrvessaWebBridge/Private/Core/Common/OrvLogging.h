#pragma once

#include "Core/Common/OrvStrings.h"
#include "Core/Ports/IOrvLog.h"

#include <cstdarg>
#include <string>

namespace OrvWebBridge
{
    /** @brief printf-style logging through the log port: OrvLogf(Log, LogTemp, Warning, "...%d", N). */
    void OrvLogf(IOrvLog& Log, EOrvLogCategory Category, EOrvLogVerbosity Verbosity, const char* Format, ...)
        ORV_PRINTF_FORMAT(4, 5);
} // namespace OrvWebBridge
