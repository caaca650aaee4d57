#include "OrvCatalogBrowser.h"

#include "SWebBrowser.h"

#include "Core/Panel/OrvWebPanelService.h"
#include "Unreal/OrvUnrealConversions.h"

using OrvWebBridge::FOrvUnrealConversions;
using OrvWebBridge::FOrvWebPanelService;

void SOrvCatalogBrowser::Construct(const FArguments&)
{
    // clang-format off
    ChildSlot
    [
        SAssignNew(Browser, SWebBrowser)
        .InitialURL(TEXT("about:blank"))
        .ShowControls(false)
        .ShowAddressBar(false)
        .ShowErrorMessage(true)
        .ShowInitialThrobber(true)
        .OnConsoleMessage(this, &SOrvCatalogBrowser::OnConsoleMessage)
        .OnLoadCompleted(this, &SOrvCatalogBrowser::OnLoadCompleted)
        .OnLoadError(this, &SOrvCatalogBrowser::OnLoadError)
    ];
    // clang-format on
}

void SOrvCatalogBrowser::OnConsoleMessage(const FString& Message, const FString& Source, int32 Line,
                                          EWebBrowserConsoleLogSeverity Severity)
{
    FOrvWebPanelService::LogConsoleMessage(Log, static_cast<int>(Severity),
                                           FOrvUnrealConversions::ToUtf8(Message),
                                           FOrvUnrealConversions::ToUtf8(Source), Line);
}

void SOrvCatalogBrowser::OnLoadCompleted()
{
    FOrvWebPanelService::LogLoadCompleted(Log);
}

void SOrvCatalogBrowser::OnLoadError()
{
    FOrvWebPanelService::LogLoadError(Log);
}
