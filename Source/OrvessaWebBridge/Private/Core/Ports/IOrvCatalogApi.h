#pragma once

#include "Core/Json/OrvRapidJson.h"

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace OrvWebBridge
{
    /** @brief One cookie of the catalogue client's jar. */
    struct FOrvCookie
    {
        std::string Name;
        std::string Value;
        std::string Domain;
        std::string Path = "/";
    };

    /**
     * @brief Answer of one API call: success flag and the answer object.
     * Answer is null when the request failed or the answer was not a JSON object.
     */
    using FOrvApiCallback =
        std::function<void(bool bSuccess, std::shared_ptr<const rapidjson::Document> Answer)>;

    /** @brief The catalogue service client of the core module (UApiWrapper). Completions arrive on the game
     * thread. */
    class IOrvCatalogApi
    {
    public:
        virtual ~IOrvCatalogApi() = default;

        /** POSTs a JSON body (object text) to a path of the API; OnComplete is called exactly once, later. */
        virtual void Post(std::string_view Path, std::string JsonBody, FOrvApiCallback OnComplete) = 0;

        /** The cookies the client holds. */
        virtual std::vector<FOrvCookie> GetCookies() const = 0;

        /** Adds or replaces (by name) a cookie in the jar. */
        virtual void SetCookie(const FOrvCookie& Cookie) = 0;
    };
} // namespace OrvWebBridge
