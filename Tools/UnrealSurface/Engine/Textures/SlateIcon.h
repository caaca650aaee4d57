#pragma once

// Engine: Runtime/SlateCore/Public/Textures/SlateIcon.h (module SlateCore). An icon by style set and brush
// name, resolved when drawn; without a small name the engine looks for "<StyleName>.Small".
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/SlateCore/FSlateIcon

#include "CoreMinimal.h"

class FSlateIcon
{
public:
    FSlateIcon();
    FSlateIcon(const FName InStyleSetName, const FName InStyleName);
    FSlateIcon(const FName InStyleSetName, const FName InStyleName, const FName InSmallStyleName);
};
