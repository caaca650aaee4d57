#include "Unreal/OrvUnrealBrowserCookies.h"

#include "Unreal/OrvUnrealConversions.h"

#include "IWebBrowserCookieManager.h"
#include "IWebBrowserSingleton.h"
#include "WebBrowserModule.h"

namespace OrvWebBridge
{
    FOrvBrowserCookiesLookup FOrvUnrealBrowserCookies::Find()
    {
        Manager.Reset();
        if (!IWebBrowserModule::IsAvailable())
        {
            return {nullptr, EOrvBrowserCookiesMissing::WebBrowserModule};
        }
        IWebBrowserSingleton* Singleton = IWebBrowserModule::Get().GetSingleton();
        if (!Singleton)
        {
            return {nullptr, EOrvBrowserCookiesMissing::BrowserSingleton};
        }
        Manager = Singleton->GetCookieManager();
        if (!Manager.IsValid())
        {
            return {nullptr, EOrvBrowserCookiesMissing::CookieManager};
        }
        return {this, EOrvBrowserCookiesMissing::None};
    }

    void FOrvUnrealBrowserCookies::SetCookie(std::string_view Url, const FOrvBrowserCookie& Cookie,
                                             std::function<void(bool bSet)> OnDone)
    {
        if (!Manager.IsValid())
        {
            return OnDone(false);
        }
        FWebBrowserCookie Browser;
        Browser.Name = FOrvUnrealConversions::ToFString(Cookie.Name);
        Browser.Value = FOrvUnrealConversions::ToFString(Cookie.Value);
        Browser.Domain = FOrvUnrealConversions::ToFString(Cookie.Domain);
        Browser.Path = FOrvUnrealConversions::ToFString(Cookie.Path);
        Browser.bSecure = Cookie.bSecure;
        Browser.bHttpOnly = Cookie.bHttpOnly;
        // A session cookie: it lasts as long as the browser does, as the API client's jar does.
        Browser.bHasExpires = false;
        // The completion captures only the caller's callback, so it may arrive after this store has gone.
        Manager->SetCookie(FOrvUnrealConversions::ToFString(Url), Browser,
                           [OnDone = std::move(OnDone)](bool bSet) { OnDone(bSet); });
    }

    void FOrvUnrealBrowserCookies::DeleteAllCookies(std::function<void(int Deleted)> OnDone)
    {
        if (!Manager.IsValid())
        {
            return OnDone(0);
        }
        // Empty URL and name: every cookie of every site.
        Manager->DeleteCookies(FString(), FString(),
                               [OnDone = std::move(OnDone)](int Deleted) { OnDone(Deleted); });
    }
} // namespace OrvWebBridge
