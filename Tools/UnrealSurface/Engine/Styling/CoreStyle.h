#pragma once

// Engine: Runtime/SlateCore/Public/Styling/CoreStyle.h (module SlateCore).
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/SlateCore/FCoreStyle

#include "CoreMinimal.h"
#include "Fonts/SlateFontInfo.h"

class FCoreStyle
{
public:
    /** The engine's default font in a typeface ("Regular", "Bold", ...) and size in points. */
    static FSlateFontInfo
    GetDefaultFontStyle(const FName TypefaceName, const float Size,
                        const FFontOutlineSettings& OutlineSettings = FFontOutlineSettings());
};
