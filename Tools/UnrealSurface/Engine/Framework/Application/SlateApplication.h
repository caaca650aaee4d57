#pragma once

// Engine: Runtime/Slate/Public/Framework/Application/SlateApplication.h (module Slate). Get() asserts that
// Slate is initialised: ask IsInitialized() first.
// Docs:
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Slate/FSlateApplication/FindBestParentWindowHandleForDia-

#include "CoreMinimal.h"
#include "Styling/SlateTypes.h"

class SWidget;

class FSlateApplication
{
public:
    static bool IsInitialized();
    static FSlateApplication& Get();

    /** The native handle of the best parent for a file dialog: the widget's window, else the main frame. */
    const void*
    FindBestParentWindowHandleForDialogs(const TSharedPtr<SWidget>& InWidget,
                                         const ESlateParentWindowSearchMethod InParentWindowSearchMethod =
                                             ESlateParentWindowSearchMethod::ActiveWindow);
};
