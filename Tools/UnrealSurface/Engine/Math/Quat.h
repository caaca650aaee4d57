#pragma once

// Engine: Runtime/Core/Public/Math/Quat.h (module Core).
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Core/TQuat

#include "Math/MathFwd.h"
#include "Math/Rotator.h"

namespace UE::Math
{
    template <typename T> struct TQuat
    {
        T X;
        T Y;
        T Z;
        T W;

        TRotator<T> Rotator() const;
    };
} // namespace UE::Math
