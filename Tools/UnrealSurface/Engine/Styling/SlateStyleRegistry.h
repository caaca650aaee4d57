#pragma once

// Engine: Runtime/SlateCore/Public/Styling/SlateStyleRegistry.h (module SlateCore). Registered styles are
// found by name (FSlateIcon, the commands' style set).
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/SlateCore/FSlateStyleRegistry

#include "Styling/ISlateStyle.h"

class FSlateStyleRegistry
{
public:
    static void RegisterSlateStyle(const ISlateStyle& InSlateStyle);
    static void UnRegisterSlateStyle(const ISlateStyle& InSlateStyle);
};
