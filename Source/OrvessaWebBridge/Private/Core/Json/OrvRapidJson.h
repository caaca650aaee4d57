#pragma once

// The one way in to RapidJSON (the engine's "RapidJSON" module is the same 1.1.0 release). Its headers
// trip warnings that the engine's build turns into errors under MSVC (unreferenced parameters,
// undefined macros in #if, conditional expressions that are constant), so they are silenced here, around
// RapidJSON alone.

#if defined(_MSC_VER)
#pragma warning(push)
#pragma warning(disable : 4100 4127 4244 4267 4456 4457 4458 4459 4668 4701 4702 4714)
#endif

#include <rapidjson/document.h>
#include <rapidjson/error/en.h>
#include <rapidjson/internal/dtoa.h>
#include <rapidjson/internal/itoa.h>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#if defined(_MSC_VER)
#pragma warning(pop)
#endif
