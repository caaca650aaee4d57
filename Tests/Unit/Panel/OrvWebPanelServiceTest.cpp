#include "Core/Panel/OrvWebPanelService.h"

#include "Tests/Support/OrvFakeWebPanel.h"
#include "Tests/Support/OrvRecordingLog.h"

#include <gtest/gtest.h>

using namespace OrvWebBridge;

TEST(FOrvWebPanelServiceTest, AnOpenPanelLoadsAndRunsWhatItIsGivenAndAClosedOneOnlyWarns)
{
    FOrvFakeWebPanel Panel;
    FOrvRecordingLog Log;
    FOrvWebPanelService Service(Panel, Log);
    const auto NavigateAndReload = [&]
    {
        Service.Navigate("https://catalog.example/go/product/P1");
        Service.ExecuteScript("window.location.reload();");
    };

    NavigateAndReload();
    EXPECT_EQ(Panel.Loads, std::vector<std::string>{"https://catalog.example/go/product/P1"});
    EXPECT_EQ(Panel.Scripts, std::vector<std::string>{"window.location.reload();"});

    Panel.bOpen = false;
    NavigateAndReload();
    EXPECT_EQ(Panel.Loads.size() + Panel.Scripts.size(), 2u);
    EXPECT_EQ(
        Log.Transcript(),
        (std::vector<std::string>{
            "Display: OrvProductInfoPanel: Navigating WebBrowser to https://catalog.example/go/product/P1",
            "Display: OrvProductInfoPanel: Executing JavaScript in WebBrowser",
            "Warning: OrvProductInfoPanel: WebBrowserWidget not valid, cannot navigate",
            "Warning: OrvProductInfoPanel: WebBrowserWidget not valid, cannot execute JavaScript"}));
}

TEST(FOrvWebPanelServiceTest, WhatThePanelsBrowserReportsIsLoggedWithLevelSourceAndLine)
{
    FOrvRecordingLog Log;

    FOrvWebPanelService::LogConsoleMessage(Log, 5, "Uncaught TypeError: x is undefined",
                                           "https://orvessa.com/app.js", 42);
    FOrvWebPanelService::LogLoadCompleted(Log);
    FOrvWebPanelService::LogLoadError(Log);

    EXPECT_EQ(Log.Transcript(),
              (std::vector<std::string>{"Log: [OrvBridge JS Console][5] Uncaught TypeError: x is undefined "
                                        "(at https://orvessa.com/app.js:42)",
                                        "Log: [OrvBridge] Load completed.",
                                        "Error: [OrvBridge] Load ERROR (no details provided by delegate)"}));
}
