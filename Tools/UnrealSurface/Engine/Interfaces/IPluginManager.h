#pragma once

// Engine: Runtime/Projects/Public/Interfaces/IPluginManager.h (module Projects). Plugins are known by the
// file name of their descriptor.
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Projects/IPluginManager

#include "Containers/StringView.h"
#include "PluginDescriptor.h"
#include "Templates/SharedPointer.h"

class IPlugin
{
public:
    virtual ~IPlugin();
    virtual const FPluginDescriptor& GetDescriptor() const = 0;
    /** The folder that holds the plugin's descriptor. */
    virtual FString GetBaseDir() const = 0;
};

class IPluginManager
{
public:
    virtual ~IPluginManager();
    static IPluginManager& Get();

    /** Null for a plugin that is not known. 5.x takes the name as a view; an FString converts. */
    virtual TSharedPtr<IPlugin> FindPlugin(const FStringView Name) = 0;
};
