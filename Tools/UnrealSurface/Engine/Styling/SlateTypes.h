#pragma once

// Engine: Runtime/SlateCore/Public/Styling/SlateTypes.h (module SlateCore).
// Docs:
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/SlateCore/ESlateParentWindowSearchMethod
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/SlateCore/FButtonStyle (by URL
//   scheme)

/** A check box's state. Docs (by URL scheme):
 *  https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/SlateCore/ECheckBoxState */
enum class ECheckBoxState : uint8
{
    Unchecked,
    Checked,
    Undetermined,
};

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
