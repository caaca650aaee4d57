#pragma once

// Engine: Runtime/SlateCore/Public/Styling/SlateColor.h (module SlateCore).
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/SlateCore/FSlateColor

struct FSlateColor
{
    /** The widget's foreground colour, which follows hover and press states. */
    static FSlateColor UseForeground();
};
