#pragma once

// Engine: Runtime/SlateCore/Public/Layout/Margin.h (module SlateCore).
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/SlateCore/FMargin

struct FMargin
{
    FMargin();
    FMargin(float UniformMargin);
    FMargin(float Horizontal, float Vertical);
    FMargin(float InLeft, float InTop, float InRight, float InBottom);
};
