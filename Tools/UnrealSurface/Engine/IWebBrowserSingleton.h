#pragma once

// Engine: Runtime/WebBrowser/Public/IWebBrowserSingleton.h (module WebBrowser): the browser's process-wide
// services. GetCookieManager answers the default context's store; it can be empty.
// Docs:
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/WebBrowser/IWebBrowserSingleton/GetCookieManager

#include "CoreMinimal.h"

class IWebBrowserCookieManager;

class IWebBrowserSingleton
{
public:
    virtual ~IWebBrowserSingleton();

    virtual TSharedPtr<IWebBrowserCookieManager> GetCookieManager() const = 0;
};
