#pragma once

#include "CoreMinimal.h"

#include "Core/Ports/IOrvEnvironment.h"

namespace OrvWebBridge
{
    /** @brief IOrvEnvironment over FPaths, the plugin manager and the local clock. */
    class FOrvUnrealEnvironment final : public IOrvEnvironment
    {
    public:
        virtual std::string GetProjectDir() const override;
        virtual std::optional<std::string> FindPluginVersion(std::string_view PluginName) const override;
        virtual std::string GetLocalDate() const override;
    };
} // namespace OrvWebBridge
