#include "Host/Panel/OrvPanelBridgeCalls.h"
#include "Tests/Support/OrvBridgeTestRig.h"

#include <gtest/gtest.h>

using namespace OrvWebBridge;

TEST(FOrvPanelBridgeCallsTest, CallsAnswerWithTheFunctionsResultType)
{
    FOrvBridgeTestRig Rig;
    Rig.Account.bLoggedIn = true;
    FOrvPanelBridgeCalls Calls(Rig.Bridge);

    EXPECT_EQ(Calls.Call(R"({"function":"iscoreauthorized","args":[]})").Json, R"({"result":true})");
    EXPECT_EQ(Calls.Call(R"({"function":"getuserdetails","args":[]})").Json,
              R"({"result":"{\"username\":\"demo\"}"})");
    const FOrvBridgeCallAnswer Signed = Calls.Call(R"({"function":"signin","args":["demo","d\u00e9mo"]})");
    EXPECT_EQ(Signed.Status, 200);
    EXPECT_EQ(Signed.Json, R"({"result":null})");
    EXPECT_EQ(Rig.Journal, std::vector<std::string>{"account: login demo/d\xC3\xA9mo"});
}

TEST(FOrvPanelBridgeCallsTest, AWrongCallIsRefusedWithItsReasonAndChangesNothing)
{
    FOrvBridgeTestRig Rig;
    FOrvPanelBridgeCalls Calls(Rig.Bridge);
    const std::pair<const char*, FOrvBridgeCallAnswer> Cases[] = {
        {R"({"function":"signin","args":["demo"]})",
         {400, R"({"error":"signin(Username, Password) takes 2 arguments, got 1"})"}},
        {R"({"function":"clearlibrarydata","args":[1]})",
         {400, R"({"error":"clearlibrarydata() takes 0 arguments, got 1"})"}},
        {R"({"function":"addassetdownload","args":["P1",7]})",
         {400,
          R"({"error":"addassetdownload(AssetID, AssetType): AssetType must be a string, got a number"})"}},
        {R"({"function":"setsessiontoken","args":[null]})",
         {400, R"({"error":"setsessiontoken(Token): Token must be a string, got null or undefined"})"}},
        {R"({"function":"SignIn","args":["demo","demo"]})",
         {404, R"({"error":"OrvBridge has no function \"SignIn\""})"}},
        {R"({"function":"signin"})",
         {400, R"({"error":"a bridge call is a JSON object {\"function\": name, \"args\": [arguments]}"})"}},
        {"not json",
         {400, R"({"error":"a bridge call is a JSON object {\"function\": name, \"args\": [arguments]}"})"}},
    };
    for (const auto& [Body, Expected] : Cases)
    {
        const FOrvBridgeCallAnswer Answer = Calls.Call(Body);
        EXPECT_EQ(Answer.Status, Expected.Status) << Body;
        EXPECT_EQ(Answer.Json, Expected.Json) << Body;
    }
    EXPECT_TRUE(Rig.Journal.empty());
    EXPECT_TRUE(Rig.Log.Lines.empty());
}
