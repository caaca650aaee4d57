#pragma once

// Engine: Runtime/Core/Public/HAL/Platform.h (module Core), as on Windows x64 (the plugin's platform):
// TCHAR is a 16-bit wide character there and TEXT makes wide literals.
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Core/TCHAR

#include <cstddef>
#include <cstdint>

using int8 = std::int8_t;
using int16 = std::int16_t;
using int32 = std::int32_t;
using int64 = std::int64_t;
using uint8 = std::uint8_t;
using uint16 = std::uint16_t;
using uint32 = std::uint32_t;
using uint64 = std::uint64_t;
using SIZE_T = std::size_t;

using ANSICHAR = char;
using WIDECHAR = wchar_t;
using TCHAR = WIDECHAR;
using UTF8CHAR = char8_t; // [unconf] the engine's own 8-bit code unit type; only its size matters here

// Pasted through a second macro, as in the engine, so TEXT(LOCTEXT_NAMESPACE) expands the name first.
#define ORV_SURFACE_TEXT_PASTE(Literal) L##Literal
#define TEXT(Literal) ORV_SURFACE_TEXT_PASTE(Literal)

#define FORCEINLINE inline
#define DLLEXPORT
#define DLLIMPORT
#define UE_NODISCARD [[nodiscard]]
#define UE_NODISCARD_CTOR [[nodiscard]]

// Each engine module's export macro; UBT defines them, empty is what a syntax check needs.
#define CORE_API
#define COREUOBJECT_API
#define ENGINE_API
#define UNREALED_API
#define SLATE_API
#define SLATECORE_API
#define PROJECTS_API
#define HTTPSERVER_API
#define IMAGEWRAPPER_API
#define DESKTOPPLATFORM_API
#define ASSETREGISTRY_API
