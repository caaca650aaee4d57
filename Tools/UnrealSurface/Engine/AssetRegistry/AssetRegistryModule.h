#pragma once

// Engine: Runtime/AssetRegistry/Public/AssetRegistry/AssetRegistryModule.h (module AssetRegistry).
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/AssetRegistry/FAssetRegistryModule

#include "AssetRegistry/IAssetRegistry.h"
#include "Modules/ModuleInterface.h"

class FAssetRegistryModule : public IModuleInterface
{
public:
    virtual IAssetRegistry& Get() const;
};
