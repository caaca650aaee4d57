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
        if (!Handler)
        {
            return {};
        }
        return Bind(Path, Verb, FOrvHostHttpRoute{std::move(Handler), {}});
    }

    FOrvHttpRouteHandle FOrvHostHttpRouter::BindEventStream(std::string_view Path,
                                                            FOrvHttpEventStreamHandler Handler)
    {
        if (!Handler)
        {
            return {};
        }
        return Bind(Path, EOrvHttpVerb::Get, FOrvHostHttpRoute{{}, std::move(Handler)});
    }

    FOrvHttpRouteHandle FOrvHostHttpRouter::Bind(std::string_view Path, EOrvHttpVerb Verb,
                                                 FOrvHostHttpRoute Target)
    {
        const std::string_view Normalized = NormalizePath(Path);
        if (Normalized.empty() || Normalized.front() != '/' || Find(Normalized, Verb) != nullptr)
        {
            return {};
        }
        const std::uint64_t Id = ++GLastRouteId;
        Routes.push_back(FRoute{Id, std::string(Normalized), Verb, std::move(Target)});
        return FOrvHttpRouteHandle{Id};
    }

    void FOrvHostHttpRouter::UnbindRoute(FOrvHttpRouteHandle Handle)
    {
        std::erase_if(Routes,
                      [&](const FRoute& Route) { return Handle.IsValid() && Route.Id == Handle.Value; });
    }

    void FOrvHostHttpRouter::SetFallbackHandler(FOrvHttpRequestHandler Handler)
    {
        Fallback = std::move(Handler);
    }

    const FOrvHostHttpRouter::FRoute* FOrvHostHttpRouter::Find(std::string_view Path, EOrvHttpVerb Verb) const
    {
        const std::string_view Normalized = NormalizePath(Path);
        const auto Found = std::find_if(Routes.begin(), Routes.end(),
                                        [&](const FRoute& Route) {
                                            return Route.Verb == Verb &&
                                                   FOrvStrings::EqualsIgnoreCase(Route.Path, Normalized);
                                        });
        return Found != Routes.end() ? &*Found : nullptr;
    }

    FOrvHostHttpRoute FOrvHostHttpRouter::FindRoute(std::string_view Path, EOrvHttpVerb Verb) const
    {
        if (const FRoute* Route = Find(Path, Verb))
        {
            return Route->Target;
        }
        return FOrvHostHttpRoute{Fallback, {}};
    }
} // namespace OrvWebBridge
