#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace OrvWebBridge
{
    /** @brief Facts about the running editor and project. Game thread. */
    class IOrvEnvironment
    {
    public:
        virtual ~IOrvEnvironment() = default;

        /** The project directory as a full path (FPaths::ProjectDir made absolute). */
        virtual std::string GetProjectDir() const = 0;

        /** The version name of a plugin's descriptor; nothing when the plugin manager does not find it. */
        virtual std::optional<std::string> FindPluginVersion(std::string_view PluginName) const = 0;

        /** Today's local date as "%Y-%m-%d". */
        virtual std::string GetLocalDate() const = 0;
    };
} // namespace OrvWebBridge
