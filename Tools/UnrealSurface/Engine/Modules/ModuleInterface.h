#pragma once

// Engine: Runtime/Core/Public/Modules/ModuleInterface.h (module Core).
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Core/IModuleInterface

class IModuleInterface
{
public:
    virtual ~IModuleInterface();
    virtual void StartupModule();
    virtual void ShutdownModule();
};
