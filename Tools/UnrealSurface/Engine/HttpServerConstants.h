#pragma once

// Engine: Runtime/Online/HTTPServer/Public/HttpServerConstants.h (module HTTPServer).
// Docs:
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/HttpServer/EHttpServerResponseCodes
// [unconf: scoped or not, and the underlying type; the page shows a plain enum. Scoped is the stricter
//  reading: an int then needs a cast either way.]

#include "HAL/Platform.h"

enum class EHttpServerResponseCodes : uint16
{
    Unknown = 0,
    Ok = 200,
    NoContent = 204,
    BadRequest = 400,
    NotFound = 404,
    ServerError = 500,
};
