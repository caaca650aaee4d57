#pragma once

#include "Core/Ports/IOrvHttpRouter.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace OrvWebBridge
{
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

        /** A copy of the handler bound to Path and Verb (so it survives an unbind while it runs); empty if
         * none.
         */
        FOrvHttpRequestHandler FindHandler(std::string_view Path, EOrvHttpVerb Verb) const;

        std::size_t GetRouteCount() const { return Routes.size(); }

        /** The path as routes are matched: without query string and trailing slash; "/" stays "/". */
        static std::string_view NormalizePath(std::string_view Target);

    private:
        struct FRoute
        {
            std::uint64_t Id = 0;
            std::string Path;
            EOrvHttpVerb Verb = EOrvHttpVerb::Get;
            FOrvHttpRequestHandler Handler;
        };

        std::vector<FRoute> Routes;
    };
} // namespace OrvWebBridge
