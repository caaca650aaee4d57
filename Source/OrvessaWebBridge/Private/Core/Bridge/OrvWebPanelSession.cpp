#include "Core/Bridge/OrvWebPanelSession.h"

#include "Core/Common/OrvConstants.h"
#include "Core/Common/OrvLogging.h"

namespace OrvWebBridge
{
    namespace
    {
        constexpr EOrvLogCategory SessionLog = EOrvLogCategory::LogTemp;
        constexpr const char* SessionCookieName = "orvsession";
        constexpr const char* ReloadScript = "window.location.reload();";
        constexpr const char* DelayedReloadScript =
            "setTimeout(function(){ window.location.reload(); }, 500);";
        constexpr const char* OAuthCompleteScript =
            "window.dispatchEvent(new CustomEvent('orv-oauth-complete'));";

        /** Counts outstanding completions and runs OnDone after the last one. */
        struct FOrvPendingCookies
        {
            int Remaining = 0;
            std::function<void()> OnDone;

            void CompleteOne()
            {
                if (--Remaining == 0 && OnDone)
                {
                    OnDone();
                }
            }
        };
    } // namespace

    FOrvCatalogSite FOrvCatalogSite::Orvessa()
    {
        return {FOrvConstants::CatalogSiteBaseUrl, FOrvConstants::ApiBaseUrl, FOrvConstants::CookieDomain};
    }

    FOrvWebPanelSession::FOrvWebPanelSession(FOrvWebPanelSessionPorts InPorts, FOrvCatalogSite InSite)
        : Ports(std::move(InPorts)), Site(std::move(InSite)),
          Self(std::make_shared<FOrvWebPanelSession*>(this))
    {
    }

    FOrvWebPanelSession::~FOrvWebPanelSession()
    {
        Ports.Windows.ClosePopup(Popup);
    }

    std::string FOrvWebPanelSession::MakeEventScript(std::string_view Name, std::string_view PayloadJson)
    {
        return FOrvStrings::Printf("(function(){try{ if(typeof window.__orv_emit==='function'){ "
                                   "window.__orv_emit('%.*s', %.*s); } }catch(e){console&&console.error&&"
                                   "console.error(e);} })();",
                                   static_cast<int>(Name.size()), Name.data(),
                                   static_cast<int>(PayloadJson.size()), PayloadJson.data());
    }

    void FOrvWebPanelSession::EmitEvent(std::string_view Name, std::string_view PayloadJson)
    {
        Ports.Panel.ExecuteScript(MakeEventScript(Name, PayloadJson));
    }

    IOrvBrowserCookies* FOrvWebPanelSession::FindCookieStore(const char* Caller)
    {
        const FOrvBrowserCookiesLookup Found = Ports.FindCookies();
        const char* Missing = nullptr;
        switch (Found.Missing)
        {
        case EOrvBrowserCookiesMissing::WebBrowserModule:
            Missing = "WebBrowserModule not available";
            break;
        case EOrvBrowserCookiesMissing::BrowserSingleton:
            Missing = "BrowserSingleton not available";
            break;
        case EOrvBrowserCookiesMissing::CookieManager:
        case EOrvBrowserCookiesMissing::None:
            Missing = Found.Cookies ? nullptr : "CookieManager not valid";
            break;
        }
        if (Missing)
        {
            OrvLogf(Ports.Log, SessionLog, EOrvLogVerbosity::Warning, "[Cookie] %s - %s", Caller, Missing);
            return nullptr;
        }
        return Found.Cookies;
    }

    FOrvBrowserCookie FOrvWebPanelSession::ToBrowserCookie(const FOrvCookie& Cookie,
                                                           const FOrvCatalogSite& Site)
    {
        FOrvBrowserCookie Browser;
        Browser.Name = Cookie.Name;
        Browser.Value = Cookie.Value;
        Browser.Domain = Site.CookieDomain;
        Browser.Path = Cookie.Path.empty() ? "/" : Cookie.Path;
        Browser.bSecure = FOrvStrings::StartsWithIgnoreCase(Site.ApiBaseUrl, "https://");
        // The site's own session cookies are httpOnly too; the page never needs to read them.
        Browser.bHttpOnly = true;
        return Browser;
    }

    void FOrvWebPanelSession::InjectCookiesIntoCEF(std::function<void()> OnDone)
    {
        const auto Finish = [&OnDone]
        {
            if (OnDone)
            {
                OnDone();
            }
        };
        IOrvBrowserCookies* Store = FindCookieStore("InjectCookiesIntoCEF");
        if (!Store)
        {
            return Finish();
        }
        IOrvCatalogApi* Api = Ports.FindApi();
        if (!Api)
        {
            OrvLogf(Ports.Log, SessionLog, EOrvLogVerbosity::Warning,
                    "[Cookie] InjectCookiesIntoCEF - ApiWrapper not available");
            return Finish();
        }
        const std::vector<FOrvCookie> Cookies = Api->GetCookies();
        if (Cookies.empty())
        {
            OrvLogf(Ports.Log, SessionLog, EOrvLogVerbosity::Warning,
                    "[Cookie] InjectCookiesIntoCEF - CookieJar is EMPTY!");
            return Finish();
        }
        OrvLogf(Ports.Log, SessionLog, EOrvLogVerbosity::Log, "[Cookie] Injecting %d cookies into CEF",
                static_cast<int>(Cookies.size()));
        auto Pending = std::make_shared<FOrvPendingCookies>();
        Pending->Remaining = static_cast<int>(Cookies.size());
        Pending->OnDone = std::move(OnDone);
        for (const FOrvCookie& Cookie : Cookies)
        {
            Store->SetCookie(Site.ApiBaseUrl, ToBrowserCookie(Cookie, Site),
                             [Weak = std::weak_ptr(Self), Pending, Name = Cookie.Name](bool bSet)
                             {
                                 const auto Alive = Weak.lock();
                                 if (Alive && !bSet)
                                 {
                                     OrvLogf((*Alive)->Ports.Log, SessionLog, EOrvLogVerbosity::Warning,
                                             "[Cookie] CEF refused cookie %s", Name.c_str());
                                 }
                                 if (Alive)
                                 {
                                     Pending->CompleteOne();
                                 }
                             });
        }
    }

    void FOrvWebPanelSession::OpenSite()
    {
        InjectCookiesIntoCEF(
            [Weak = std::weak_ptr(Self)]
            {
                if (const auto Alive = Weak.lock())
                {
                    FOrvWebPanelSession& Session = **Alive;
                    Session.Ports.Panel.GetPanel().LoadUrl(Session.Site.SiteBaseUrl);
                }
            });
    }

    bool FOrvWebPanelSession::StoreSessionToken(std::string_view Token)
    {
        if (Token.empty())
        {
            OrvLogf(Ports.Log, SessionLog, EOrvLogVerbosity::Warning,
                    "[Auth] StoreSessionToken - Token is empty!");
            return false;
        }
        IOrvCatalogApi* Api = Ports.FindApi();
        if (!Api)
        {
            OrvLogf(Ports.Log, SessionLog, EOrvLogVerbosity::Error,
                    "[Auth] StoreSessionToken - ApiWrapper not available!");
            return false;
        }
        Api->SetCookie(FOrvCookie{SessionCookieName, std::string(Token), Site.CookieDomain, "/"});
        OrvLogf(Ports.Log, SessionLog, EOrvLogVerbosity::Log,
                "[Auth] StoreSessionToken - Token stored, CookieJar now has %d cookies",
                static_cast<int>(Api->GetCookies().size()));
        return true;
    }

    void FOrvWebPanelSession::DeleteBrowserCookies()
    {
        IOrvBrowserCookies* Store = FindCookieStore("DeleteBrowserCookies");
        if (!Store)
        {
            return;
        }
        Store->DeleteAllCookies(
            [Weak = std::weak_ptr(Self)](int Deleted)
            {
                if (const auto Alive = Weak.lock())
                {
                    OrvLogf((*Alive)->Ports.Log, SessionLog, EOrvLogVerbosity::Log,
                            "[Cookie] Deleted %d cookies from CEF", Deleted);
                }
            });
    }

    void FOrvWebPanelSession::ReloadPanel()
    {
        Ports.Panel.ExecuteScript(ReloadScript);
    }

    void FOrvWebPanelSession::ReloadPanelSoon()
    {
        Ports.Panel.ExecuteScript(DelayedReloadScript);
    }

    bool FOrvWebPanelSession::IsOAuthCompletionUrl(std::string_view Url)
    {
        return Url.find("/oauth-device-success") != std::string_view::npos ||
               Url.find("oauth_complete=true") != std::string_view::npos;
    }

    void FOrvWebPanelSession::OpenOAuthPopup(std::string_view Url)
    {
        // One sign-in at a time: a second request replaces the first popup.
        Ports.Windows.ClosePopup(Popup);
        OrvLogf(Ports.Log, SessionLog, EOrvLogVerbosity::Log, "[OAuth] Opening popup: %.*s",
                static_cast<int>(Url.size()), Url.data());
        Popup = Ports.Windows.OpenPopup("ORVESSA Login", Url,
                                        [this](const std::string& Shown) { OnPopupUrl(Shown); });
        if (!Popup.IsValid())
        {
            OrvLogf(Ports.Log, SessionLog, EOrvLogVerbosity::Error,
                    "[OAuth] Popup could not be opened, falling back to external browser");
            Ports.Windows.LaunchUrl(Url);
        }
    }

    void FOrvWebPanelSession::OnPopupUrl(const std::string& Url)
    {
        if (!Popup.IsValid() || !IsOAuthCompletionUrl(Url))
        {
            return;
        }
        OrvLogf(Ports.Log, SessionLog, EOrvLogVerbosity::Log, "[OAuth] Sign-in completed at %s", Url.c_str());
        Ports.Windows.ClosePopup(Popup);
        Popup = {};
        if (!Ports.Panel.GetPanel().IsOpen())
        {
            OrvLogf(Ports.Log, SessionLog, EOrvLogVerbosity::Warning,
                    "ORVESSA: OAuth completed but main panel not available");
            return;
        }
        Ports.Panel.ExecuteScript(OAuthCompleteScript);
    }
} // namespace OrvWebBridge
