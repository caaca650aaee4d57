#pragma once

#include "CoreMinimal.h"

#include "Core/Ports/IOrvLog.h"

namespace OrvWebBridge
{
    /** The AI endpoint's category (the HTTP server). */
    DECLARE_LOG_CATEGORY_EXTERN(LogOrvMcp, Log, All);

    /** The JSON-RPC handler's and the editor tools' category. */
    DECLARE_LOG_CATEGORY_EXTERN(LogOrvMcpHandler, Log, All);

    /** @brief IOrvLog over UE_LOG: the core's category and verbosity pick the engine's. */
    class FOrvUnrealLog final : public IOrvLog
    {
    public:
        virtual void Log(EOrvLogCategory Category, EOrvLogVerbosity Verbosity,
                         std::string_view Message) override;
    };
} // namespace OrvWebBridge
