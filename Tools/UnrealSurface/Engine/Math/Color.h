#pragma once

// Engine: Runtime/Core/Public/Math/Color.h (module Core). On little-endian platforms FColor's bytes lie in
// the order B, G, R, A, four bytes in all.
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Core/FColor

#include "HAL/Platform.h"

struct FColor
{
    uint8 B;
    uint8 G;
    uint8 R;
    uint8 A;
};
