#pragma once

#include "Core/Ports/IOrvEnvironment.h"

#include <optional>
#include <string>
#include <string_view>

namespace OrvWebBridge
{
    /** @brief Project facts of the host: the project directory is given, the date is the local one. */
    class FOrvHostEnvironment : public IOrvEnvironment
    {
    public:
        explicit FOrvHostEnvironment(std::string InProjectDir = ".") : ProjectDir(std::move(InProjectDir)) {}

        std::string GetProjectDir() const override { return ProjectDir; }

        /** The host has no plugin manager, so the schedule footer shows the exporter's fallback version. */
        std::optional<std::string> FindPluginVersion(std::string_view) const override { return std::nullopt; }

        std::string GetLocalDate() const override;

    private:
        std::string ProjectDir;
    };
} // namespace OrvWebBridge
