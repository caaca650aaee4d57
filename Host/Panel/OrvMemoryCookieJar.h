#pragma once

#include "Core/Ports/IOrvCatalogApi.h"
#include "Core/Ports/IOrvGameThread.h"

#include <algorithm>

namespace OrvWebBridge
{
    /** @brief The catalogue client of the host's account: a cookie jar; it makes no API calls. */
    class FOrvMemoryCookieJar : public IOrvCatalogApi
    {
    public:
        explicit FOrvMemoryCookieJar(IOrvGameThread& InGameThread) : GameThread(InGameThread) {}

        void Post(std::string_view, std::string, FOrvApiCallback OnComplete) override
        {
            GameThread.Post([OnComplete = std::move(OnComplete)] { OnComplete(false, nullptr); });
        }
        std::vector<FOrvCookie> GetCookies() const override { return Cookies; }
        void SetCookie(const FOrvCookie& Cookie) override
        {
            std::erase_if(Cookies, [&](const FOrvCookie& Held) { return Held.Name == Cookie.Name; });
            Cookies.push_back(Cookie);
        }

    private:
        IOrvGameThread& GameThread;
        std::vector<FOrvCookie> Cookies;
    };
} // namespace OrvWebBridge
