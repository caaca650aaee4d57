#pragma once

#include "CoreMinimal.h"
#include "IWebBrowserWindow.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

#include "Unreal/OrvUnrealLog.h"

/**
 * @brief The "Orv Catalog" tab's browser: an SWebBrowser that starts on "about:blank" and logs what the page
 * reports. Once made it is handed to the module, which binds the page's "OrvBridge" into it and loads the
 * catalogue site after the session cookies are in; closing the tab takes it back.
 */
class SOrvCatalogBrowser : public SCompoundWidget
{
public:
    SLATE_BEGIN_ARGS(SOrvCatalogBrowser) {}
    SLATE_END_ARGS()

    void Construct(const FArguments& InArgs);

private:
    void OnConsoleMessage(const FString& Message, const FString& Source, int32 Line,
                          EWebBrowserConsoleLogSeverity Severity);
    void OnLoadCompleted();
    void OnLoadError();

    /** Its own log: a page can still report while the tab outlives the module at shut-down. */
    OrvWebBridge::FOrvUnrealLog Log;
};
