#pragma once

// Engine: Runtime/SlateCore/Public/Styling/SlateBrush.h (module SlateCore). Widgets draw brushes; a style set
// owns the ones it registers.
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/SlateCore/FSlateBrush

struct FSlateBrush
{
    virtual ~FSlateBrush();
};
