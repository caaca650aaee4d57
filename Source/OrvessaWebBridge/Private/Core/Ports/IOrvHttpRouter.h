#pragma once

#include "Core/Common/OrvStrings.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace OrvWebBridge
{
    /** @brief HTTP verbs a route can be bound to (the engine's EHttpServerRequestVerbs). */
    enum class EOrvHttpVerb
    {
        Get,
        Post,
    };

    /** @brief One request as the HTTP server delivers it. */
    struct FOrvHttpRequest
    {
        EOrvHttpVerb Verb = EOrvHttpVerb::Get;
        std::string Path;
        std::string Body;  ///< raw bytes, not NUL-terminated, exactly as received
        std::string Query; ///< the raw query string after '?', without it; empty when none
        std::vector<std::pair<std::string, std::string>> Headers; ///< as received, in order

        /** The value of the first header called Name, ignoring letter case; empty when there is none. */
        std::string_view FindHeader(std::string_view Name) const
        {
            for (const auto& [HeaderName, Value] : Headers)
            {
                if (FOrvStrings::EqualsIgnoreCase(HeaderName, Name))
                {
                    return Value;
                }
            }
            return {};
        }
    };

    /** @brief One response; the content type is sent exactly as given. */
    struct FOrvHttpResponse
    {
        int Code = 200;
        std::string ContentType;
        std::string Body;
        std::vector<std::pair<std::string, std::string>> Headers; ///< extra headers, in order
    };

    /** @brief Completes a request; may be called after the handler returned, on the game thread, once. */
    using FOrvHttpResultCallback = std::function<void(std::unique_ptr<FOrvHttpResponse> Response)>;

    /** @brief Route handler: returns true when it handled the request (and will call the callback once). */
    using FOrvHttpRequestHandler =
        std::function<bool(const FOrvHttpRequest& Request, const FOrvHttpResultCallback& OnComplete)>;

    /** @brief Handle of one bound route; zero when binding failed. */
    struct FOrvHttpRouteHandle
    {
        std::uint64_t Value = 0;

        bool IsValid() const { return Value != 0; }
    };

    /** @brief The router of one listening port (IHttpRouter). Game thread. */
    class IOrvHttpRouter
    {
    public:
        virtual ~IOrvHttpRouter() = default;

        /** Binds a handler to a path and verb; an invalid handle when that pair is already bound. */
        virtual FOrvHttpRouteHandle BindRoute(std::string_view Path, EOrvHttpVerb Verb,
                                              FOrvHttpRequestHandler Handler) = 0;

        /** Unbinds a route; safe with an invalid or already unbound handle. */
        virtual void UnbindRoute(FOrvHttpRouteHandle Handle) = 0;
    };

    /** @brief The HTTP server module: one router per port, listeners started and stopped together. Game
     * thread.
     */
    class IOrvHttpServerModule
    {
    public:
        virtual ~IOrvHttpServerModule() = default;

        /** The router for Port, made on first use; null when the port cannot be had. */
        virtual std::shared_ptr<IOrvHttpRouter> GetHttpRouter(std::uint32_t Port,
                                                              bool bFailOnBindFailure) = 0;

        /** Starts every listener that has a router. */
        virtual void StartAllListeners() = 0;

        /** Stops every listener of the process. */
        virtual void StopAllListeners() = 0;
    };
} // namespace OrvWebBridge
