#pragma once

#include "CoreMinimal.h"

#include "Core/Ports/IOrvBrowserCookies.h"

class IWebBrowserCookieManager;

namespace OrvWebBridge
{
    /**
     * @brief IOrvBrowserCookies over the WebBrowser module singleton's cookie manager, which every
     * SWebBrowser of the editor shares. Find looks the chain up again (module, singleton, cookie manager) and
     * keeps the manager it finds. Completions arrive on the game thread. Game thread.
     */
    class FOrvUnrealBrowserCookies final : public IOrvBrowserCookies
    {
    public:
        /** This store, with the cookie manager as it is now, or which link to it is missing. */
        FOrvBrowserCookiesLookup Find();

        virtual void SetCookie(std::string_view Url, const FOrvBrowserCookie& Cookie,
                               std::function<void(bool bSet)> OnDone) override;
        virtual void DeleteAllCookies(std::function<void(int Deleted)> OnDone) override;

    private:
        TSharedPtr<IWebBrowserCookieManager> Manager;
    };
} // namespace OrvWebBridge
