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

    bool IsModuleLoaded(const FName InModuleName) const;

    /** The module if it is loaded, else null; never loads it (safe during shut-down). */
    template <typename TModuleInterface>
    requires(std::is_base_of_v<IModuleInterface, TModuleInterface>) static TModuleInterface* GetModulePtr(
        const FName ModuleName);

    /** Loads the module if needed; asserts (check) when it cannot be loaded. */
    template <typename TModuleInterface>
    requires(std::is_base_of_v<IModuleInterface,
                               TModuleInterface>) static TModuleInterface& LoadModuleChecked(const FName
                                                                                                 ModuleName);
};

/** The module's factory, as the engine's macro defines it for a modular build. */
#define IMPLEMENT_MODULE(ModuleImplClass, ModuleName)                                                        \
    static_assert(std::is_base_of_v<IModuleInterface, ModuleImplClass>,                                      \
                  "a module implements IModuleInterface");                                                   \
    extern "C" DLLEXPORT IModuleInterface* InitializeModule_##ModuleName()                                   \
    {                                                                                                        \
        return new ModuleImplClass();                                                                        \
    }
