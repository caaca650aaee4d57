#pragma once

#include "CoreMinimal.h"
#include "HttpRouteHandle.h"
#include "Templates/SharedPointer.h"

#include "Core/Ports/IOrvHttpRouter.h"

class IHttpRouter;

namespace OrvWebBridge
{
    /** @brief IOrvHttpRouter over one port's IHttpRouter: converts requests in and responses out. */
    class FOrvUnrealHttpRouter final : public IOrvHttpRouter
    {
    public:
        explicit FOrvUnrealHttpRouter(TSharedRef<IHttpRouter> InRouter) : Router(MoveTemp(InRouter)) {}
        virtual ~FOrvUnrealHttpRouter() override;

        virtual FOrvHttpRouteHandle BindRoute(std::string_view Path, EOrvHttpVerb Verb,
                                              FOrvHttpRequestHandler Handler) override;
        virtual void UnbindRoute(FOrvHttpRouteHandle Handle) override;

    private:
        TSharedRef<IHttpRouter> Router;
        TMap<uint64, FHttpRouteHandle> Routes;
        uint64 NextId = 1;
    };

    /** @brief IOrvHttpServerModule over the engine's HTTPServer module. */
    class FOrvUnrealHttpServerModule final : public IOrvHttpServerModule
    {
    public:
        virtual std::shared_ptr<IOrvHttpRouter> GetHttpRouter(std::uint32_t Port,
                                                              bool bFailOnBindFailure) override;
        virtual void StartAllListeners() override;
        virtual void StopAllListeners() override;
    };
} // namespace OrvWebBridge
