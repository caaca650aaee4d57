#pragma once

#include "CoreMinimal.h"

#include "Core/Bridge/OrvAccountEventRelay.h"
#include "Core/Bridge/OrvScriptBridge.h"
#include "Core/Bridge/OrvWebPanelSession.h"
#include "Unreal/Closed/OrvUnrealCatalogAccount.h"
#include "Unreal/OrvUnrealBrowserCookies.h"
#include "Unreal/OrvUnrealBrowserWindows.h"

#include <functional>

class SWebBrowser;
class SWidget;
class UOrvJSBridge;

namespace OrvWebBridge
{
    class FOrvUnrealWebPanel;

    /**
     * @brief The "Orv Catalog" panel's services in the editor, built by the composition root: the core's
     * session (events, cookies, sign-in popup), account event relay and script bridge, over the maker's
     * account, the browser's cookie store and the browser windows. While a tab's browser is open, the page's
     * "OrvBridge" object is bound into it (and kept in the root set) and the account's notifications reach
     * its page. Game thread.
     */
    class FOrvCatalogPanel
    {
    public:
        /** FindApi answers the catalogue API client, or null while the maker's module has none. */
        FOrvCatalogPanel(FOrvWebPanelService& PanelService, FOrvUnrealWebPanel& InWebPanel,
                         std::function<IOrvCatalogApi*()> FindApi, IOrvLog& Log);
        ~FOrvCatalogPanel();
        FOrvCatalogPanel(const FOrvCatalogPanel&) = delete;
        FOrvCatalogPanel& operator=(const FOrvCatalogPanel&) = delete;

        /** A new catalogue browser, open at once (SetBrowser). */
        TSharedRef<SWidget> MakeBrowser();

        /**
         * The tab's browser: the panel services use it, the bridge object is bound into it, the account's
         * events reach its page, and the site loads once the session cookies are in. A browser already open
         * is let go first; null (the tab closed) lets go of it and undoes all of that.
         */
        void SetBrowser(TSharedPtr<SWebBrowser> Browser);

        FOrvScriptBridge& GetScriptBridge() { return Bridge; }

    private:
        void Open(const TSharedRef<SWebBrowser>& Browser);
        void Close();

        FOrvUnrealWebPanel& WebPanel;
        FOrvUnrealCatalogAccount Account;
        FOrvUnrealBrowserCookies Cookies;
        FOrvUnrealBrowserWindows Windows;
        FOrvWebPanelSession Session;
        FOrvAccountEventRelay Relay;
        FOrvScriptBridge Bridge;

        /** The page's bridge object and the account's notifications, while a browser is open. */
        UOrvJSBridge* JSBridge = nullptr;
        TUniquePtr<FOrvUnrealAccountEvents> AccountEvents;
    };
} // namespace OrvWebBridge
