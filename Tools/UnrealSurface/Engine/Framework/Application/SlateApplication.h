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
    /** The widget with keyboard focus, or null. Docs:
     *  https://dev.epicgames.com/documentation/unreal-engine/API/Runtime/Slate/Framework/Application/FSlateApplication/GetKeyboardFocus-?application_version=5.4
     */
    virtual TSharedPtr<SWidget> GetKeyboardFocusedWidget() const;

    const void*
    FindBestParentWindowHandleForDialogs(const TSharedPtr<SWidget>& InWidget,
                                         const ESlateParentWindowSearchMethod InParentWindowSearchMethod =
                                             ESlateParentWindowSearchMethod::ActiveWindow);
};
