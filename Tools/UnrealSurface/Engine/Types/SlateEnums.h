#pragma once

// Engine: Runtime/SlateCore/Public/Types/SlateEnums.h (module SlateCore).
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/SlateCore/EHorizontalAlignment

enum EHorizontalAlignment : int
{
    HAlign_Fill,
    HAlign_Left,
    HAlign_Center,
    HAlign_Right,
};

enum EVerticalAlignment : int
{
    VAlign_Fill,
    VAlign_Top,
    VAlign_Center,
    VAlign_Bottom,
};
