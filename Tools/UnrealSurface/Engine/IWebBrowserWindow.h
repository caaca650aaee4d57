#pragma once

// Engine: Runtime/WebBrowser/Public/IWebBrowserWindow.h (module WebBrowser): the console levels a page's
// messages arrive with. The page shows the enumerators without values, in this order. Declared scoped, so a
// caller that wants the number casts it, which compiles whether 5.6 scopes it or not [unconf].
// Docs:
//   https://dev.epicgames.com/documentation/unreal-engine/API/Runtime/WebBrowser/EWebBrowserConsoleLogSeverity?application_version=5.4

#include "CoreMinimal.h"

enum class EWebBrowserConsoleLogSeverity
{
    Default,
    Verbose,
    Debug,
    Info,
    Warning,
    Error,
    Fatal,
};
