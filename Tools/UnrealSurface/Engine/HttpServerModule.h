#pragma once

// Engine: Runtime/Online/HTTPServer/Public/HttpServerModule.h (module HTTPServer). With listeners not yet
// started, GetHttpRouter never returns null (the socket binds later); Start/StopAllListeners act on every
// listener in the process.
// Docs:
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/HttpServer/FHttpServerModule
//   https://dev.epicgames.com/documentation/unreal-engine/API/Runtime/HttpServer/FHttpServerModule/GetHttpRouter?application_version=5.1

#include "CoreMinimal.h"
#include "Modules/ModuleInterface.h"

class IHttpRouter;

class FHttpServerModule : public IModuleInterface
{
public:
    static FHttpServerModule& Get();

    TSharedPtr<IHttpRouter> GetHttpRouter(uint32 Port, bool bFailOnBindFailure = false);
    void StartAllListeners();
    void StopAllListeners();
};
