#pragma once

// Engine: Runtime/WebBrowser/Public/SWebBrowser.h (module WebBrowser). Calls before the first page has
// loaded are [unconf]; GetUrl is empty while nothing has loaded.
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/WebBrowser/SWebBrowser

#include "CoreMinimal.h"
#include "Widgets/SCompoundWidget.h"

class SWebBrowser : public SCompoundWidget
{
public:
    void LoadURL(FString NewURL);
    void ExecuteJavascript(const FString& ScriptText);
    FString GetUrl() const;
};
