#pragma once

// Engine: Runtime/SlateCore/Public/Brushes/SlateImageBrush.h (module SlateCore). A bitmap (PNG) brush over a
// file path. The engine's constructor has further defaulted parameters (tint, tiling, image type) that are
// not declared here.
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/SlateCore/FSlateImageBrush

#include "Containers/UnrealString.h"
#include "Math/Vector2D.h"
#include "Styling/SlateBrush.h"

struct FSlateImageBrush : public FSlateBrush
{
    FSlateImageBrush(const FString& InImageName, const FVector2D& InImageSize);
};
