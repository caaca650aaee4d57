#pragma once

// Engine: Runtime/WebBrowser/Public/IWebBrowserCookieManager.h (module WebBrowser). Both calls run on the
// browser's IO thread and return at once; their completions are invoked later on the game thread (the pages
// say so). SetCookie refuses (Completed(false)) an attribute with a disallowed character, such as ';' in the
// value. An empty Domain makes a host-only cookie of the URL. DeleteCookies with both strings empty deletes
// every cookie.
// Docs:
//   https://dev.epicgames.com/documentation/unreal-engine/API/Runtime/WebBrowser/IWebBrowserCookieManager?application_version=5.6
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/WebBrowser/IWebBrowserCookieManager/SetCookie
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/WebBrowser/IWebBrowserCookieManager/DeleteCookies
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/WebBrowser/FWebBrowserCookie

#include "CoreMinimal.h"
#include "Misc/DateTime.h"
#include "Templates/Function.h"

struct FWebBrowserCookie
{
    FString Name;
    FString Value;
    FString Domain;
    FString Path;
    bool bSecure;
    bool bHttpOnly;
    bool bHasExpires;
    FDateTime Expires;
};

class IWebBrowserCookieManager
{
public:
    typedef FWebBrowserCookie FCookie;

    virtual ~IWebBrowserCookieManager();

    virtual void SetCookie(const FString& URL, const FCookie& Cookie,
                           TFunction<void(bool)> Completed = nullptr) = 0;
    virtual void DeleteCookies(const FString& URL = TEXT(""), const FString& CookieName = TEXT(""),
                               TFunction<void(int)> Completed = nullptr) = 0;
};
