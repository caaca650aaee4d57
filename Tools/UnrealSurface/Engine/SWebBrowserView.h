#pragma once

// Engine: Runtime/WebBrowser/Public/SWebBrowserView.h (module WebBrowser): the console-message delegate that
// SWebBrowser's OnConsoleMessage takes (message, source, line, level).
// Docs:
//   https://dev.epicgames.com/documentation/unreal-engine/API/Runtime/WebBrowser/FOnConsoleMessageDelegate?application_version=5.4

#include "CoreMinimal.h"
#include "IWebBrowserWindow.h"

DECLARE_DELEGATE_FourParams(FOnConsoleMessageDelegate, const FString& /*Message*/, const FString& /*Source*/,
                            int32 /*Line*/, EWebBrowserConsoleLogSeverity /*Severity*/);
