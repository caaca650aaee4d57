#pragma once

#include "Core/Panel/OrvWebPanelService.h"
#include "Core/Ports/IOrvBrowserCookies.h"
#include "Core/Ports/IOrvBrowserWindows.h"
#include "Core/Ports/IOrvCatalogApi.h"

#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace OrvWebBridge
{
    /** @brief Where the catalogue lives: the site the panel shows and the API its session cookies belong to.
     */
    struct FOrvCatalogSite
    {
        std::string SiteBaseUrl;  ///< the panel's first real page; detail pages hang below it
        std::string ApiBaseUrl;   ///< the URL injected cookies are set for
        std::string CookieDomain; ///< Domain of injected cookies; empty makes them host-only

        /** The compiled-in ORVESSA site, API and cookie domain. */
        static FOrvCatalogSite Orvessa();
    };

    /** @brief What the session services reach: the panel, the browser windows, the cookie jar and store. */
    struct FOrvWebPanelSessionPorts
    {
        FOrvWebPanelService& Panel;
        IOrvBrowserWindows& Windows;
        std::function<IOrvCatalogApi*()> FindApi; ///< UApiWrapper::GetInstance(); null when missing
        std::function<FOrvBrowserCookiesLookup()> FindCookies;
        IOrvLog& Log;
    };

    /**
     * @brief The module's services that keep the panel's page in step with the catalogue account: events
     * pushed into the page, the session cookie handed from the page to the API client and on to the
     * browser, cookies cleared on sign-out, and the sign-in popup. Game thread.
     */
    class FOrvWebPanelSession
    {
    public:
        FOrvWebPanelSession(FOrvWebPanelSessionPorts InPorts, FOrvCatalogSite InSite);
        ~FOrvWebPanelSession();
        FOrvWebPanelSession(const FOrvWebPanelSession&) = delete;
        FOrvWebPanelSession& operator=(const FOrvWebPanelSession&) = delete;

        /** The script that calls window.__orv_emit(Name, PayloadJson) in the page, if the page has it. */
        static std::string MakeEventScript(std::string_view Name, std::string_view PayloadJson);

        /** Runs the event script in the panel; PayloadJson is condensed object text, or "null". */
        void EmitEvent(std::string_view Name, std::string_view PayloadJson = "null");

        /** Copies the API client's cookies into the browser; OnDone runs once every cookie is in (or at
         * once when there is nothing to copy). */
        void InjectCookiesIntoCEF(std::function<void()> OnDone = {});

        /** Puts the API client's cookies into the browser, then loads the site: never before they are in. */
        void OpenSite();

        /** Stores Token as the API client's "orvsession" cookie; false when it could not. */
        bool StoreSessionToken(std::string_view Token);

        /** Deletes every cookie of the embedded browser. */
        void DeleteBrowserCookies();

        /** Reloads the panel's page now, or half a second from now (after a session change). */
        void ReloadPanel();
        void ReloadPanelSoon();

        /** Opens the "ORVESSA Login" popup on Url; it closes when the sign-in completes. */
        void OpenOAuthPopup(std::string_view Url);

        /** Whether a popup showing Url has finished signing in. */
        static bool IsOAuthCompletionUrl(std::string_view Url);

        /** The browser cookie that carries a jar cookie to the site and the API. */
        static FOrvBrowserCookie ToBrowserCookie(const FOrvCookie& Cookie, const FOrvCatalogSite& Site);

        FOrvWebPanelService& GetPanel() const { return Ports.Panel; }
        const FOrvCatalogSite& GetSite() const { return Site; }

    private:
        /** The cookie store, or null after logging which link of the chain is missing (for Caller). */
        IOrvBrowserCookies* FindCookieStore(const char* Caller);
        void OnPopupUrl(const std::string& Url);

        FOrvWebPanelSessionPorts Ports;
        FOrvCatalogSite Site;
        FOrvPopupHandle Popup;
        /** Completions arriving after this object is gone find it expired. */
        std::shared_ptr<FOrvWebPanelSession*> Self;
    };
} // namespace OrvWebBridge
