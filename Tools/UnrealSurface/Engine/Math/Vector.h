#pragma once

// Engine: Runtime/Core/Public/Math/Vector.h (module Core).
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Core/TVector

#include "Math/MathFwd.h"

namespace UE::Math
{
    template <typename T> struct TVector
    {
        T X;
        T Y;
        T Z;

        TVector();
        TVector(T InX, T InY, T InZ);
    };
} // namespace UE::Math
