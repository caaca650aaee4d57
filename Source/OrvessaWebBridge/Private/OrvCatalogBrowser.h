#pragma once

#include "CoreMinimal.h"
#include "IWebBrowserWindow.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

#include "Unreal/OrvUnrealLog.h"

class SWebBrowser;

/**
 * @brief The "Orv Catalog" tab's browser: an SWebBrowser without the browser's own controls that starts on
 * "about:blank" and logs what its page reports. The catalogue panel's services (FOrvCatalogPanel) bind the
 * page's "OrvBridge" into it and load the site.
 */
class SOrvCatalogBrowser : public SCompoundWidget
{
public:
    SLATE_BEGIN_ARGS(SOrvCatalogBrowser) {}
    SLATE_END_ARGS()

    void Construct(const FArguments& InArgs);

    TSharedRef<SWebBrowser> GetBrowser() const { return Browser.ToSharedRef(); }

private:
    void OnConsoleMessage(const FString& Message, const FString& Source, int32 Line,
                          EWebBrowserConsoleLogSeverity Severity);
    void OnLoadCompleted();
    void OnLoadError();

    TSharedPtr<SWebBrowser> Browser;
    /** Its own log: a page can still report while the tab outlives the module at shut-down. */
    OrvWebBridge::FOrvUnrealLog Log;
};
