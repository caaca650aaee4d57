#pragma once

#include "Core/Ports/IOrvCatalogApi.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace OrvWebBridge
{
    /** @brief A plain-HTTP base URL split into its parts: "http://host:port/prefix". */
    struct FOrvHttpUrl
    {
        std::string Host;
        std::uint16_t Port = 80;
        std::string PathPrefix; ///< "" or "/prefix", never ending in '/'

        /** Parses a base URL; nothing, with Error saying why, when it is not a usable http:// URL. */
        static std::optional<FOrvHttpUrl> Parse(std::string_view Text, std::string& Error);

        /** The request target for an API path: the prefix, then the path with exactly one '/' between. */
        std::string JoinPath(std::string_view Path) const;

        /** The Host header value: the host, with the port unless it is 80. */
        std::string HostHeader() const;
    };

    /** @brief The catalogue client's cookie jar: cookies by name, as Set-Cookie headers leave them. */
    struct FOrvCookieJar
    {
        static constexpr std::size_t MaxCookieBytes = 4096;   ///< name and value; a larger cookie is not kept
        static constexpr std::size_t MaxJarBytes = 16 * 1024; ///< past this the oldest cookies are dropped

        /** Applies one Set-Cookie header value; Max-Age=0 or an empty value removes the cookie. */
        void ApplySetCookie(std::string_view HeaderValue, std::string_view RequestHost);

        /** Adds or replaces (by name) a cookie; one with control bytes or ';', or too large, is ignored. */
        void Set(const FOrvCookie& Cookie);

        /** The Cookie header value for a request to Host and Path; empty when no cookie applies. */
        std::string CookieHeader(std::string_view Host, std::string_view Path) const;

        std::vector<FOrvCookie> Cookies;
    };
} // namespace OrvWebBridge
