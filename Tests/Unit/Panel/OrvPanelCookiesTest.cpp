#include "Host/Panel/OrvPanelCookies.h"
#include "Host/Panel/OrvPanelPage.h"

#include <gtest/gtest.h>

using namespace OrvWebBridge;

TEST(FOrvPanelCookiesTest, ChangesWaitForThePageAndGoOutInOrderAsSetCookieHeaders)
{
    FOrvPanelPage Page; // no page connected: changes wait
    FOrvPanelCookies Cookies(Page);
    std::vector<std::string> Done;
    const auto OnSet = [&](const char* Name) {
        return [&Done, Name](bool bSet) { Done.push_back(std::string(Name) + (bSet ? " set" : " refused")); };
    };

    Cookies.SetCookie("http://127.0.0.1:1", {"early", "1", "", "/", false, true}, OnSet("early"));
    Cookies.DeleteAllCookies([&](int Deleted) { Done.push_back("deleted " + std::to_string(Deleted)); });
    Cookies.SetCookie("http://127.0.0.1:1", {"orvsession", "tok", "", "/", false, true}, OnSet("orvsession"));
    Cookies.SetCookie("http://127.0.0.1:1", {"bad", "a;b\r\nX: y", "", "/", false, true}, OnSet("bad"));
    EXPECT_TRUE(Done.empty()) << "nothing is in the browser before the page asks";

    const std::vector<std::string> Headers = Cookies.TakeSetCookieHeaders("orvsite=abc; theme=dark");

    EXPECT_EQ(Headers, (std::vector<std::string>{
                           "orvsite=; Path=/; Max-Age=0",
                           "theme=; Path=/; Max-Age=0",
                           "early=; Path=/; Max-Age=0",
                           "orvsession=tok; Path=/; HttpOnly; SameSite=Lax",
                       }));
    EXPECT_EQ(Done, (std::vector<std::string>{"early set", "deleted 3", "orvsession set", "bad refused"}));
    EXPECT_TRUE(Cookies.TakeSetCookieHeaders("orvsession=tok").empty()) << "each change goes out once";
}
