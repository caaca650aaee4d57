#pragma once

#include "CoreMinimal.h"

#include "Core/Ports/IOrvGameThread.h"

namespace OrvWebBridge
{
    /** @brief IOrvGameThread over AsyncTask(ENamedThreads::GameThread): the task runs on a later turn. */
    class FOrvUnrealGameThread final : public IOrvGameThread
    {
    public:
        virtual void Post(std::function<void()> Task) override;
    };
} // namespace OrvWebBridge
