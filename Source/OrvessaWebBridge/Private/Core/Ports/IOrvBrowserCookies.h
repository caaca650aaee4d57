#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace OrvWebBridge
{
    /** @brief A cookie as the embedded browser stores it (FWebBrowserCookie). */
    struct FOrvBrowserCookie
    {
        std::string Name;
        std::string Value;
        std::string Domain; ///< empty: a host-only cookie of the URL it is set for
        std::string Path = "/";
        bool bSecure = false;
        bool bHttpOnly = false;

        friend bool operator==(const FOrvBrowserCookie&, const FOrvBrowserCookie&) = default;
    };

    /**
     * @brief The embedded browser's cookie store (the WebBrowser module singleton's cookie manager). Both
     * calls are asynchronous; their completions arrive later, on the game thread.
     */
    class IOrvBrowserCookies
    {
    public:
        virtual ~IOrvBrowserCookies() = default;

        /** Stores Cookie for Url; OnDone(true) once it is in, false when the browser refused it. */
        virtual void SetCookie(std::string_view Url, const FOrvBrowserCookie& Cookie,
                               std::function<void(bool bSet)> OnDone) = 0;

        /** Deletes every cookie of the browser; OnDone gets how many went. */
        virtual void DeleteAllCookies(std::function<void(int Deleted)> OnDone) = 0;
    };

    /** @brief Which link of the chain to the cookie store is missing, if any. */
    enum class EOrvBrowserCookiesMissing
    {
        None,
        WebBrowserModule,
        BrowserSingleton,
        CookieManager,
    };

    /** @brief What looking the cookie store up found: the store, or which link was missing. */
    struct FOrvBrowserCookiesLookup
    {
        IOrvBrowserCookies* Cookies = nullptr;
        EOrvBrowserCookiesMissing Missing = EOrvBrowserCookiesMissing::None;
    };
} // namespace OrvWebBridge
