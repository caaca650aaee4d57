#pragma once

#include "Core/Ports/IOrvBrowserCookies.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace OrvWebBridge
{
    class FOrvPanelPage;

    /**
     * @brief The browser's cookie store as the host reaches it: changes wait until the panel's page asks
     * for them (it does when told to, and whenever it connects), then go out as Set-Cookie headers of that
     * answer, and only then complete. A cookie whose name or value a browser would refuse completes false.
     * Deleting every cookie expires those the page's request carried. Event loop only.
     */
    class FOrvPanelCookies : public IOrvBrowserCookies
    {
    public:
        explicit FOrvPanelCookies(FOrvPanelPage& InPage) : Page(InPage) {}

        void SetCookie(std::string_view Url, const FOrvBrowserCookie& Cookie,
                       std::function<void(bool bSet)> OnDone) override;
        void DeleteAllCookies(std::function<void(int Deleted)> OnDone) override;

        /** The page's request for the waiting changes, with its Cookie header: the Set-Cookie values that
         * carry them out, in order. Completes every waiting change. */
        std::vector<std::string> TakeSetCookieHeaders(std::string_view RequestCookies);

        std::size_t GetPendingCount() const { return Pending.size(); }

    private:
        struct FChange
        {
            bool bDeleteAll = false;
            FOrvBrowserCookie Cookie;
            std::function<void(bool)> OnSet;
            std::function<void(int)> OnDeleted;
        };

        FOrvPanelPage& Page;
        std::vector<FChange> Pending;
    };
} // namespace OrvWebBridge
