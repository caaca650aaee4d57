#include "Unreal/OrvUnrealEnvironment.h"

#include "Unreal/OrvUnrealConversions.h"

#include "Interfaces/IPluginManager.h"
#include "Misc/DateTime.h"
#include "Misc/Paths.h"

namespace OrvWebBridge
{
    std::string FOrvUnrealEnvironment::GetProjectDir() const
    {
        // ProjectDir is relative to the engine's binaries ("../../../Villa/"); dialogs want a full path.
        return FOrvUnrealConversions::ToUtf8(FPaths::ConvertRelativePathToFull(FPaths::ProjectDir()));
    }

    std::optional<std::string> FOrvUnrealEnvironment::FindPluginVersion(std::string_view PluginName) const
    {
        // The plugin manager knows plugins by their descriptor's file name, not their friendly name.
        const TSharedPtr<IPlugin> Plugin =
            IPluginManager::Get().FindPlugin(FOrvUnrealConversions::ToFString(PluginName));
        if (!Plugin.IsValid())
        {
            return std::nullopt;
        }
        return FOrvUnrealConversions::ToUtf8(Plugin->GetDescriptor().VersionName);
    }

    std::string FOrvUnrealEnvironment::GetLocalDate() const
    {
        return FOrvUnrealConversions::ToUtf8(FDateTime::Now().ToString(TEXT("%Y-%m-%d")));
    }
} // namespace OrvWebBridge
