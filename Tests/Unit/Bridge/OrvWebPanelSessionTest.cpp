#include "Core/Bridge/OrvAccountEventRelay.h"
#include "Tests/Support/OrvBridgeTestRig.h"

#include <gtest/gtest.h>

#include <memory>

using namespace OrvWebBridge;

TEST(FOrvWebPanelEventsTest,
     AccountNotificationsReachThePageThroughTheEmitTemplateButAnEmptyQueueIsOnlyLogged)
{
    FOrvBridgeTestRig Rig;
    FOrvAccountEventRelay Relay(Rig.Session, Rig.Log);

    Relay.OnDownloadQueueUpdated({{"FNV-CH-1102", "Sedia Arco"}, {"P9", "Other"}});
    Relay.OnDownloadProgress(0.25);
    Relay.OnDownloadQueueFinished();
    Relay.OnLibraryUpdated();

    const auto Emit = [](const char* Call)
    {
        return std::string("(function(){try{ if(typeof window.__orv_emit==='function'){ ") + Call +
               " } }catch(e){console&&console.error&&console.error(e);} })();";
    };
    EXPECT_EQ(
        Rig.Panel.Scripts,
        (std::vector<std::string>{
            Emit(
                R"(window.__orv_emit('downloader.queue.updated', {"currentDownload":"Sedia Arco","currentDownloadID":"FNV-CH-1102"});)"),
            Emit(R"(window.__orv_emit('downloader.queue.progress', {"progress":0.25});)"),
            Emit("window.__orv_emit('downloader.queue.finished', null);"),
            Emit("window.__orv_emit('library.updated', null);"),
        }));

    Relay.OnDownloadQueueUpdated({});
    EXPECT_EQ(Rig.Panel.Scripts.size(), 4u) << "an empty queue is only logged";
    EXPECT_TRUE(Rig.Log.Contains(EOrvLogVerbosity::Log,
                                 "Orv Bridge - Download queue updated with no entries, no queue event sent"));
}

TEST(FOrvWebPanelSessionTest, JarCookiesGoToTheBrowserForTheSiteDomainAndTheApiUrl)
{
    FOrvBridgeTestRig Rig;
    Rig.Jar.Cookies = {{"orvsession", "abc", "api.site.example", "/"}, {"pref", "x=1", "", ""}};

    Rig.Session.InjectCookiesIntoCEF();

    EXPECT_EQ(Rig.Cookies.Set, (std::vector<FOrvBrowserCookie>{
                                   {"orvsession", "abc", ".site.example", "/", true, true},
                                   {"pref", "x=1", ".site.example", "/", true, true},
                               }));
    EXPECT_EQ(Rig.Journal[0], "browser: set orvsession for https://api.site.example");
    EXPECT_TRUE(Rig.Log.Contains(EOrvLogVerbosity::Log, "[Cookie] Injecting 2 cookies into CEF"));

    const FOrvCatalogSite Plain{"http://127.0.0.1:30012", "http://127.0.0.1:30012", ""};
    const FOrvBrowserCookie HostOnly = FOrvWebPanelSession::ToBrowserCookie({"a", "b", "", "/x"}, Plain);
    EXPECT_EQ(HostOnly, (FOrvBrowserCookie{"a", "b", "", "/x", false, true}));
}

TEST(FOrvWebPanelSessionTest, EachMissingLinkToTheCookieStoreIsNamedAndNothingIsInjected)
{
    struct FCase
    {
        EOrvBrowserCookiesMissing Missing;
        bool bHasStore;
        bool bHasJar;
        bool bJarEmpty;
        const char* Warning;
    };
    using enum EOrvBrowserCookiesMissing;
    const FCase Cases[] = {
        {WebBrowserModule, false, true, false,
         "[Cookie] InjectCookiesIntoCEF - WebBrowserModule not available"},
        {BrowserSingleton, false, true, false,
         "[Cookie] InjectCookiesIntoCEF - BrowserSingleton not available"},
        {CookieManager, false, true, false, "[Cookie] InjectCookiesIntoCEF - CookieManager not valid"},
        {None, true, false, false, "[Cookie] InjectCookiesIntoCEF - ApiWrapper not available"},
        {None, true, true, true, "[Cookie] InjectCookiesIntoCEF - CookieJar is EMPTY!"},
    };
    for (const FCase& Case : Cases)
    {
        FOrvBridgeTestRig Rig;
        Rig.CookiesLookup = {Case.bHasStore ? &Rig.Cookies : nullptr, Case.Missing};
        Rig.bHasJar = Case.bHasJar;
        if (!Case.bJarEmpty)
        {
            Rig.Jar.Cookies = {{"orvsession", "abc", "", "/"}};
        }
        bool bDone = false;
        Rig.Session.InjectCookiesIntoCEF([&] { bDone = true; });
        EXPECT_EQ(Rig.Log.Problems(), std::vector<std::string>{std::string("Warning: ") + Case.Warning});
        EXPECT_TRUE(Rig.Cookies.Set.empty()) << Case.Warning;
        EXPECT_TRUE(bDone) << "a failed injection must not hold the site back: " << Case.Warning;
    }
}

TEST(FOrvWebPanelSessionTest, TheSiteLoadsOnlyOnceEveryCookieIsIn)
{
    FOrvBridgeTestRig Rig;
    Rig.Jar.Cookies = {{"orvsession", "abc", "", "/"}, {"pref", "1", "", "/"}};

    Rig.Session.OpenSite();
    EXPECT_TRUE(Rig.Panel.Loads.empty()) << "loading before SetCookie completes races the cookies";
    Rig.Cookies.Complete();
    EXPECT_EQ(Rig.Panel.Loads, std::vector<std::string>{"https://site.example"});

    // Completions arriving after the panel's services are gone do nothing.
    auto Late = std::make_unique<FOrvBridgeTestRig>();
    Late->Jar.Cookies = Rig.Jar.Cookies;
    Late->Session.OpenSite();
    std::vector<std::function<void()>> Owed = std::move(Late->Cookies.Pending);
    Late.reset();
    for (auto& Done : Owed)
    {
        Done();
    }
}

TEST(FOrvWebPanelSessionTest, TheSignInPopupClosesOnceAtItsSuccessPageAndTellsThePanel)
{
    FOrvBridgeTestRig Rig;
    Rig.Bridge.OpenOAuthPopup("https://site.example/oauth/start");
    EXPECT_EQ(Rig.Windows.PopupTitle, "ORVESSA Login");
    EXPECT_EQ(Rig.Windows.PopupUrl, "https://site.example/oauth/start");

    Rig.Windows.OnUrlChanged("https://accounts.example/consent?next=/oauth-device&oauth_complete=false");
    Rig.Windows.OnUrlChanged("https://site.example/OAUTH-DEVICE-SUCCESS");
    EXPECT_EQ(Rig.Windows.Closed, 0);
    Rig.Windows.OnUrlChanged("https://site.example/oauth-device-success?code=1");
    EXPECT_EQ(Rig.Windows.Closed, 1);
    EXPECT_FALSE(Rig.Windows.OnUrlChanged) << "the popup is closed and no longer watched";
    EXPECT_EQ(Rig.Panel.Scripts,
              std::vector<std::string>{"window.dispatchEvent(new CustomEvent('orv-oauth-complete'));"});

    FOrvBridgeTestRig NoPanel;
    NoPanel.Panel.bOpen = false;
    NoPanel.Bridge.OpenOAuthPopup("https://site.example/oauth/start");
    NoPanel.Windows.OnUrlChanged("https://site.example/callback?oauth_complete=true");
    EXPECT_EQ(NoPanel.Windows.Closed, 1);
    EXPECT_EQ(NoPanel.Log.Problems(),
              std::vector<std::string>{"Warning: ORVESSA: OAuth completed but main panel not available"});

    FOrvBridgeTestRig NoPopups;
    NoPopups.Windows.bCanOpenPopups = false;
    NoPopups.Bridge.OpenOAuthPopup("https://site.example/oauth/start");
    EXPECT_EQ(NoPopups.Windows.Launched, std::vector<std::string>{"https://site.example/oauth/start"});
}
