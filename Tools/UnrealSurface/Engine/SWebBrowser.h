#pragma once

// Engine: Runtime/WebBrowser/Public/SWebBrowser.h (module WebBrowser). Calls before the first page has
// loaded are [unconf]; GetUrl is empty while nothing has loaded. The arguments' defaults are not ours:
// InitialURL is a public site and ShowControls, ShowErrorMessage and ShowInitialThrobber are on, so a caller
// sets each. OnLoadCompleted and OnLoadError carry no details. A bound UObject shows in the page as
// window.ue.<name in lower case>, its functions in lower case, each answering a Promise; a permanent binding
// outlives navigation. That SWebBrowser.h brings in the console delegate's headers is [unconf].
// Docs:
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/WebBrowser/SWebBrowser
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/WebBrowser/SWebBrowser/FArguments
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/WebBrowser/IWebBrowserWindow/BindUObject
//   https://dev.epicgames.com/documentation/unreal-engine/API/Runtime/WebBrowser/IWebBrowserWindow/UnbindUObject?application_version=5.4

#include "CoreMinimal.h"
#include "Framework/SlateDelegates.h"
#include "SWebBrowserView.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

class UObject;

class SWebBrowser : public SCompoundWidget
{
public:
    SLATE_BEGIN_ARGS(SWebBrowser) {}
    SLATE_ARGUMENT(FString, InitialURL)
    SLATE_ARGUMENT(bool, ShowControls)
    SLATE_ARGUMENT(bool, ShowAddressBar)
    SLATE_ARGUMENT(bool, ShowErrorMessage)
    SLATE_ARGUMENT(bool, ShowInitialThrobber)
    SLATE_EVENT(FSimpleDelegate, OnLoadCompleted)
    SLATE_EVENT(FSimpleDelegate, OnLoadError)
    SLATE_EVENT(FOnTextChanged, OnUrlChanged)
    SLATE_EVENT(FOnConsoleMessageDelegate, OnConsoleMessage)
    SLATE_END_ARGS()
    void Construct(const FArguments& InArgs);

    void LoadURL(FString NewURL);
    void ExecuteJavascript(const FString& ScriptText);
    FString GetUrl() const;

    /** Exposes Object to the page's script as window.ue.<Name> (lower case). */
    void BindUObject(const FString& Name, UObject* Object, bool bIsPermanent = true);
    /** Removes the binding if Object is the one bound; bIsPermanent must match the binding's. */
    void UnbindUObject(const FString& Name, UObject* Object, bool bIsPermanent = true);
};
