#pragma once

// Engine: Runtime/SlateCore/Public/Styling/SlateTypes.h (module SlateCore).
// Docs:
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/SlateCore/ESlateParentWindowSearchMethod
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/SlateCore/FButtonStyle (by URL
//   scheme)

enum class ESlateParentWindowSearchMethod
{
    ActiveWindow,
    MainWindow,
};

/** A button's look: brushes per state, padding (the editor's "PrimaryButton", "SimpleButton", ...). */
struct FButtonStyle
{
    FButtonStyle();
};
