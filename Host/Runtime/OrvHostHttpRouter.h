#pragma once

#include "Core/Ports/IOrvHttpRouter.h"
#include "Host/Runtime/OrvHttpEventStream.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace OrvWebBridge
{
    /** @brief What answers one request: a plain handler or an event-stream handler; neither when none does.
     */
    struct FOrvHostHttpRoute
    {
        FOrvHttpRequestHandler Handler;
        FOrvHttpEventStreamHandler StreamHandler;
    };

    /**
     * @brief The route table of one port of the host's HTTP server. Paths match ignoring letter case and a
     * trailing slash, as the engine's router does; the query string is not part of the path. Event loop only.
     */
    class FOrvHostHttpRouter : public IOrvHttpRouter
    {
    public:
        FOrvHttpRouteHandle BindRoute(std::string_view Path, EOrvHttpVerb Verb,
                                      FOrvHttpRequestHandler Handler) override;
        void UnbindRoute(FOrvHttpRouteHandle Handle) override;

        /** Binds a GET route whose answer is an event stream; an invalid handle when the path is already
         * bound for GET. */
        FOrvHttpRouteHandle BindEventStream(std::string_view Path, FOrvHttpEventStreamHandler Handler);

        /** Handles every GET or POST that no route matches (a static site); without one such requests get
         * 404. */
        void SetFallbackHandler(FOrvHttpRequestHandler Handler);

        /** Copies of what answers Path and Verb (so they survive an unbind while they run): the bound route,
         * else the fallback handler, else nothing. */
        FOrvHostHttpRoute FindRoute(std::string_view Path, EOrvHttpVerb Verb) const;

        std::size_t GetRouteCount() const { return Routes.size(); }

        /** The path as routes are matched: without query string and trailing slash; "/" stays "/". */
        static std::string_view NormalizePath(std::string_view Target);

    private:
        struct FRoute
        {
            std::uint64_t Id = 0;
            std::string Path;
            EOrvHttpVerb Verb = EOrvHttpVerb::Get;
            FOrvHostHttpRoute Target;
        };

        FOrvHttpRouteHandle Bind(std::string_view Path, EOrvHttpVerb Verb, FOrvHostHttpRoute Target);
        const FRoute* Find(std::string_view Path, EOrvHttpVerb Verb) const;

        std::vector<FRoute> Routes;
        FOrvHttpRequestHandler Fallback;
    };
} // namespace OrvWebBridge
