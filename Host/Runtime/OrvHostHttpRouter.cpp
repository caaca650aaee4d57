#include "Host/Runtime/OrvHostHttpRouter.h"

#include "Core/Common/OrvStrings.h"

#include <algorithm>
#include <atomic>

namespace OrvWebBridge
{
    namespace
    {
        // Process-wide, so a handle from one router never unbinds a route of another.
        std::atomic<std::uint64_t> GLastRouteId{0};
    } // namespace

    std::string_view FOrvHostHttpRouter::NormalizePath(std::string_view Target)
    {
        std::string_view Path = Target.substr(0, Target.find_first_of("?#"));
        while (Path.size() > 1 && Path.back() == '/')
        {
            Path.remove_suffix(1);
        }
        return Path;
    }

    FOrvHttpRouteHandle FOrvHostHttpRouter::BindRoute(std::string_view Path, EOrvHttpVerb Verb,
                                                      FOrvHttpRequestHandler Handler)
    {
        const std::string_view Normalized = NormalizePath(Path);
        if (Normalized.empty() || Normalized.front() != '/' || !Handler)
        {
            return {};
        }
        const bool bTaken = std::any_of(Routes.begin(), Routes.end(),
                                        [&](const FRoute& Route) {
                                            return Route.Verb == Verb &&
                                                   FOrvStrings::EqualsIgnoreCase(Route.Path, Normalized);
                                        });
        if (bTaken)
        {
            return {};
        }
        const std::uint64_t Id = ++GLastRouteId;
        Routes.push_back(FRoute{Id, std::string(Normalized), Verb, std::move(Handler)});
        return FOrvHttpRouteHandle{Id};
    }

    void FOrvHostHttpRouter::UnbindRoute(FOrvHttpRouteHandle Handle)
    {
        std::erase_if(Routes,
                      [&](const FRoute& Route) { return Handle.IsValid() && Route.Id == Handle.Value; });
    }

    FOrvHttpRequestHandler FOrvHostHttpRouter::FindHandler(std::string_view Path, EOrvHttpVerb Verb) const
    {
        const std::string_view Normalized = NormalizePath(Path);
        for (const FRoute& Route : Routes)
        {
            if (Route.Verb == Verb && FOrvStrings::EqualsIgnoreCase(Route.Path, Normalized))
            {
                return Route.Handler;
            }
        }
        return {};
    }
} // namespace OrvWebBridge
