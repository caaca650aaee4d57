#pragma once

// Engine: Runtime/Online/HTTPServer/Public/IHttpRouter.h (module HTTPServer).
// Docs:
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/HttpServer/IHttpRouter
//   https://dev.epicgames.com/documentation/unreal-engine/API/Runtime/HttpServer/IHttpRouter/BindRoute?application_version=5.4

#include "CoreMinimal.h"
#include "HttpPath.h"
#include "HttpRequestHandler.h"
#include "HttpRouteHandle.h"
#include "HttpServerRequest.h"

class IHttpRouter : public TSharedFromThis<IHttpRouter>
{
public:
    virtual ~IHttpRouter();

    FHttpRouteHandle BindRoute(const FHttpPath& HttpPath, const EHttpServerRequestVerbs& HttpVerbs,
                               const FHttpRequestHandler& Handler);
    void UnbindRoute(const FHttpRouteHandle& RouteHandle);
};
