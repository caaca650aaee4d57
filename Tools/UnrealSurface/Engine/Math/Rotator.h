#pragma once

// Engine: Runtime/Core/Public/Math/Rotator.h (module Core). Degrees, in the order pitch, yaw, roll.
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Core/TRotator

#include "Math/MathFwd.h"

namespace UE::Math
{
    template <typename T> struct TRotator
    {
        T Pitch;
        T Yaw;
        T Roll;

        TRotator();
        TRotator(T InPitch, T InYaw, T InRoll);
    };
} // namespace UE::Math
