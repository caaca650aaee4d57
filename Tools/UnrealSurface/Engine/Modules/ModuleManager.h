#pragma once

// Engine: Runtime/Core/Public/Modules/ModuleManager.h (module Core).
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Core/FModuleManager

#include "Modules/ModuleInterface.h"
#include "UObject/NameTypes.h"

#include <type_traits>

class FModuleManager
{
public:
    static FModuleManager& Get();

    /** Loads the module if needed; asserts (check) when it cannot be loaded. */
    template <typename TModuleInterface>
    requires(std::is_base_of_v<IModuleInterface,
                               TModuleInterface>) static TModuleInterface& LoadModuleChecked(const FName
                                                                                                 ModuleName);
};
