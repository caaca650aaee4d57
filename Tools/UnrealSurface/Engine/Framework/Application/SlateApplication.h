#pragma once

// Engine: Runtime/Slate/Public/Framework/Application/SlateApplication.h (module Slate). Get() asserts that
// Slate is initialised: ask IsInitialized() first.
// Docs:
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Slate/FSlateApplication/FindBestParentWindowHandleForDia-
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Slate/FSlateApplication/RegisterInputPreProcessor
//   https://dev.epicgames.com/documentation/unreal-engine/API/Runtime/Slate/Framework/Application/FSlateApplication/UnregisterInputP-?application_version=5.5
//   https://dev.epicgames.com/documentation/unreal-engine/API/Runtime/Slate/Framework/Application/FSlateApplication/AddWindow?application_version=5.4

#include "CoreMinimal.h"
#include "Rendering/SlateRenderer.h"
#include "Styling/SlateTypes.h"

class IInputProcessor;
class SWidget;
class SWindow;

class FSlateApplication
{
public:
    static bool IsInitialized();
    static FSlateApplication& Get();

    /** The renderer (FSlateApplicationBase::GetRenderer) [unconf: raw pointer in 5.x, as declared here]. */
    FSlateRenderer* GetRenderer() const;

    /** Shows the window modally over the parent's window and returns once it has closed. */
    void AddModalWindow(TSharedRef<SWindow> InSlateWindow, const TSharedPtr<const SWidget> InParentWidget,
                        bool bSlowTaskWindow = false);

    /** Shows a new top-level window (non-modal) and returns it; give it its content first. */
    virtual TSharedRef<SWindow> AddWindow(TSharedRef<SWindow> InSlateWindow,
                                          const bool bShowImmediately = true);

    /** Adds the pre-processor if it is not registered yet; true when it was added. 5.5 added overloads with
     *  a pre-processor type and an index; this single-argument one is declared. */
    bool RegisterInputPreProcessor(TSharedPtr<IInputProcessor> InputProcessor);
    void UnregisterInputPreProcessor(TSharedPtr<IInputProcessor> InputProcessor);

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
