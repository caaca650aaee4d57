#pragma once

// Engine: Runtime/Core/Public/Math/MathFwd.h (module Core). Since 5.0 the math types are templates over
// the component type, and the F names are their double-precision instances (large world coordinates).

#include "HAL/Platform.h"

namespace UE::Math
{
    template <typename T> struct TVector;
    template <typename T> struct TRotator;
    template <typename T> struct TQuat;
    template <typename T> struct TBox;
    template <typename T> struct TIntPoint;
    template <typename T> struct TIntRect;
} // namespace UE::Math

using FVector = UE::Math::TVector<double>;
using FRotator = UE::Math::TRotator<double>;
using FQuat = UE::Math::TQuat<double>;
using FBox = UE::Math::TBox<double>;
using FIntPoint = UE::Math::TIntPoint<int32>;
using FIntRect = UE::Math::TIntRect<int32>;
