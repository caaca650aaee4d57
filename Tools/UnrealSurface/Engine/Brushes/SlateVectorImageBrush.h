#pragma once

// Engine: Runtime/SlateCore/Public/Brushes/SlateVectorImageBrush.h (module SlateCore). An SVG brush, drawn
// sharp at any size. The engine's constructor has further defaulted parameters (tint, tiling) that are not
// declared here.
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/SlateCore/FSlateVectorImageBrush

#include "Containers/UnrealString.h"
#include "Math/Vector2D.h"
#include "Styling/SlateBrush.h"

struct FSlateVectorImageBrush : public FSlateBrush
{
    FSlateVectorImageBrush(const FString& InImageName, const FVector2D& InImageSize);
};
