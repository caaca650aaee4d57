#pragma once

#include "Core/Ports/IOrvCatalogApi.h"

#include <cstddef>
#include <memory>
#include <string>

namespace OrvWebBridge
{
    class FOrvHostEventLoop;

    /** @brief Limits of the catalogue HTTP client. */
    struct FOrvHttpClientLimits
    {
        double TimeoutSeconds = 15.0;                  ///< whole request, connect to last byte
        std::size_t MaxAnswerBytes = 32 * 1024 * 1024; ///< a larger answer counts as a failed request
    };

    /**
     * @brief The catalogue service client over HTTP (Boost.Beast on the host's event loop).
     * Non-2xx, non-JSON, oversized or timed-out answers complete as failed requests; Set-Cookie is kept.
     */
    class FOrvHttpCatalogApi : public IOrvCatalogApi
    {
    public:
        /** BaseUrl like "http://127.0.0.1:8080" or "http://host:port/prefix"; see IsValidBaseUrl. */
        FOrvHttpCatalogApi(FOrvHostEventLoop& Loop, std::string BaseUrl, FOrvHttpClientLimits Limits = {});
        ~FOrvHttpCatalogApi() override;

        /** Whether the URL can be used (http scheme, host, optional port and path); Error says why not. */
        static bool IsValidBaseUrl(const std::string& BaseUrl, std::string& Error);

        void Post(std::string_view Path, std::string JsonBody, FOrvApiCallback OnComplete) override;
        std::vector<FOrvCookie> GetCookies() const override;
        void SetCookie(const FOrvCookie& Cookie) override;

        /** Why the last request failed, for messages ("/orvvault/products/batch: cannot connect: ..."). */
        std::string GetLastError() const;

        struct FState;

    private:
        std::shared_ptr<FState> State;
    };
} // namespace OrvWebBridge
