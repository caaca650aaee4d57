#include "Tests/Support/OrvBridgeTestRig.h"

#include <gtest/gtest.h>

using namespace OrvWebBridge;

namespace
{
    constexpr const char* NoSubsystem =
        "Warning: Orv Bridge - Error Getting OrvCore - OrvSubsystem was not valid.";
} // namespace

TEST(FOrvScriptBridgeTest, WithoutTheAccountEveryFunctionWarnsAndGivesItsDefault)
{
    FOrvBridgeTestRig Rig;
    Rig.bHasAccount = false;
    FOrvScriptBridge& Bridge = Rig.Bridge;

    EXPECT_EQ(Bridge.GetLibraryInfo(), "{}");
    EXPECT_EQ(Bridge.GetUserDetails(), "{}");
    EXPECT_FALSE(Bridge.IsCoreAuthorized());
    Bridge.AddAssetDownload("P1", "product");
    Bridge.AddProductToProject("P1");
    Bridge.ClearLibraryData();
    Bridge.RemoveProductFromLibrary("P1");
    Bridge.SignIn("demo", "demo");
    Bridge.LogoutUser();
    Bridge.TriggerAuthCheck();

    std::vector<std::string> Expected(9, NoSubsystem);
    Expected.push_back("Error: Orv Bridge - TriggerAuthCheck failed - OrvSubsystem was not valid.");
    EXPECT_EQ(Rig.Log.Problems(), Expected);
    EXPECT_TRUE(Rig.Journal.empty()) << "signing out without the account must leave the browser's cookies";
}

TEST(FOrvScriptBridgeTest, SetSessionTokenStoresSignsInInjectsThenReloadsLater)
{
    FOrvBridgeTestRig Rig;

    Rig.Bridge.SetSessionToken("tok-1");

    EXPECT_EQ(Rig.Journal, (std::vector<std::string>{
                               "jar: orvsession=tok-1",
                               "account: login state true",
                               "browser: set orvsession for https://api.site.example",
                               "panel: run setTimeout(function(){ window.location.reload(); }, 500);",
                           }));
    ASSERT_EQ(Rig.Jar.Cookies.size(), 1u);
    EXPECT_EQ(Rig.Jar.Cookies[0].Domain, ".site.example");
    EXPECT_TRUE(Rig.Log.Contains(EOrvLogVerbosity::Log,
                                 "[Auth] StoreSessionToken - Token stored, CookieJar now has 1 cookies"));
    EXPECT_TRUE(Rig.Log.Problems().empty());
}

TEST(FOrvScriptBridgeTest, ASessionTokenThatCannotBeStoredChangesNothing)
{
    struct FCase
    {
        const char* Token;
        bool bHasJar;
        bool bHasModule;
        const char* Problem;
    };
    const FCase Cases[] = {
        {"", true, true, "Warning: [Auth] StoreSessionToken - Token is empty!"},
        {"tok", false, true, "Error: [Auth] StoreSessionToken - ApiWrapper not available!"},
        {"tok", true, false, "Error: [Auth] SetSessionToken - Module not available"},
    };
    for (const FCase& Case : Cases)
    {
        FOrvBridgeTestRig Rig;
        Rig.bHasJar = Case.bHasJar;
        Rig.bHasModule = Case.bHasModule;
        Rig.Bridge.SetSessionToken(Case.Token);
        EXPECT_EQ(Rig.Log.Problems(), std::vector<std::string>{Case.Problem});
        EXPECT_TRUE(Rig.Journal.empty()) << Case.Problem;
    }
}

TEST(FOrvScriptBridgeTest, LogoutSignsOutThenClearsEveryBrowserCookie)
{
    FOrvBridgeTestRig Rig;
    Rig.Bridge.LogoutUser();
    Rig.Cookies.Complete();
    EXPECT_EQ(Rig.Journal, (std::vector<std::string>{"account: logout", "browser: delete all"}));
    EXPECT_TRUE(Rig.Log.Contains(EOrvLogVerbosity::Log, "[Cookie] Deleted 3 cookies from CEF"));

    FOrvBridgeTestRig Unloaded;
    Unloaded.bHasModule = false;
    Unloaded.Bridge.LogoutUser();
    EXPECT_EQ(Unloaded.Journal, std::vector<std::string>{"account: logout"});
}

TEST(FOrvScriptBridgeTest, WithoutTheModulePanelCallsFailLoudlyAndThePopupFallsBackToTheSystemBrowser)
{
    FOrvBridgeTestRig Rig;
    Rig.bHasModule = false;

    Rig.Bridge.RefreshPanel();
    Rig.Bridge.OpenOAuthPopup("https://site.example/login");
    Rig.Bridge.TestOrvEventBus();

    EXPECT_EQ(Rig.Log.Problems(), (std::vector<std::string>{
                                      "Error: [Auth] RefreshPanel - Module not available",
                                      "Error: [OAuth] Module not available, falling back to external browser",
                                      "Warning: Orv Bridge - TestOrvEventBus CALLED",
                                  }));
    EXPECT_EQ(Rig.Windows.Launched, std::vector<std::string>{"https://site.example/login"});
    EXPECT_TRUE(Rig.Panel.Scripts.empty());
}

TEST(FOrvScriptBridgeTest, EmptyUrlsOpenNothing)
{
    FOrvBridgeTestRig Rig;
    Rig.Bridge.OpenExternalURL("");
    Rig.Bridge.OpenOAuthPopup("");
    EXPECT_EQ(Rig.Log.Problems(),
              (std::vector<std::string>{"Error: Orv Bridge - OpenExternalURL: URL is empty!",
                                        "Error: [OAuth] URL is empty!"}));
    EXPECT_TRUE(Rig.Windows.Launched.empty());
    EXPECT_FALSE(Rig.Windows.OnUrlChanged);
}
