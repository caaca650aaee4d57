#pragma once

// Engine: Runtime/SlateCore/Public/Layout/Visibility.h (module SlateCore). The base named argument
// Visibility takes one of these.
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/SlateCore/EVisibility

struct EVisibility
{
    static const EVisibility Visible;
    static const EVisibility Collapsed;
    static const EVisibility Hidden;
};
