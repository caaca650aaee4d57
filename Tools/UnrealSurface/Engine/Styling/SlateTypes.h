#pragma once

// Engine: Runtime/SlateCore/Public/Styling/SlateTypes.h (module SlateCore).
// Docs:
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/SlateCore/ESlateParentWindowSearchMethod

enum class ESlateParentWindowSearchMethod
{
    ActiveWindow,
    MainWindow,
};
