#pragma once

// Engine: Runtime/WebBrowser/Public/WebBrowserModule.h (module WebBrowser). IsAvailable tells whether the
// module is loaded; Get loads it when it is not. GetSingleton can be null (the browser failed to start).
// Docs:
//   https://dev.epicgames.com/documentation/unreal-engine/API/Runtime/WebBrowser/IWebBrowserModule?application_version=5.3
//   https://dev.epicgames.com/documentation/unreal-engine/API/Runtime/WebBrowser/IWebBrowserModule/GetSingleton?application_version=5.4

#include "CoreMinimal.h"
#include "Modules/ModuleInterface.h"

class IWebBrowserSingleton;

class IWebBrowserModule : public IModuleInterface
{
public:
    static IWebBrowserModule& Get();
    static bool IsAvailable();

    virtual IWebBrowserSingleton* GetSingleton() = 0;
};
