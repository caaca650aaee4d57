#include "Host/Runtime/OrvHttpCatalogApi.h"

#include "Host/Runtime/OrvHostEventLoop.h"
#include "Tests/Support/OrvTestCatalogService.h"

#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <string>

using namespace OrvWebBridge;

namespace
{
    constexpr const char* BatchPath = "/orvvault/products/batch";

    /** Every call of one completion, so "exactly once" can be checked. */
    struct FOrvApiOutcome
    {
        int Calls = 0;
        bool bSuccess = false;
        std::shared_ptr<const rapidjson::Document> Answer;

        FOrvApiCallback Callback()
        {
            return [this](bool bInSuccess, std::shared_ptr<const rapidjson::Document> InAnswer)
            {
                ++Calls;
                bSuccess = bInSuccess;
                Answer = std::move(InAnswer);
            };
        }
    };

    FOrvTestCatalogAnswer Answer(std::string Body, int Status = 200, double DelaySeconds = 0.0)
    {
        return FOrvTestCatalogAnswer{std::move(Body), Status, {}, DelaySeconds};
    }

    /** Posts once and runs the loop until the completion arrives, and a little more to catch a second call.
     */
    FOrvApiOutcome PostAndWait(FOrvHostEventLoop& Loop, FOrvHttpCatalogApi& Api, std::string Body = "{}")
    {
        FOrvApiOutcome Outcome;
        Api.Post(BatchPath, std::move(Body), Outcome.Callback());
        EXPECT_EQ(Outcome.Calls, 0) << "the completion never runs inside Post";
        EXPECT_TRUE(Loop.RunUntil([&] { return Outcome.Calls > 0; }, 10.0));
        Loop.RunUntil([] { return false; }, 0.02);
        EXPECT_EQ(Outcome.Calls, 1);
        return Outcome;
    }
} // namespace

TEST(FOrvHttpCatalogApiTest, PostsJsonUnderTheBaseUrlAndHandsBackTheAnswerUntouchedEvenWithStatusFalse)
{
    FOrvHostEventLoop Loop;
    FOrvTestCatalogService Service(
        Loop.Context(),
        [](const FOrvTestCatalogRequest& Request)
        {
            if (Request.Body == "refused")
            {
                return Answer(R"({"status":false})");
            }
            return Answer(
                R"({"status":true,"products":{"P1":{"id":"P1","category_t2":"NULL"}},"missing":["P9"]})");
        });
    FOrvHttpCatalogApi Api(Loop, Service.GetBaseUrl() + "/api/");

    const FOrvApiOutcome Outcome = PostAndWait(Loop, Api, R"({"product_ids":["P1","P9"]})");
    ASSERT_TRUE(Outcome.bSuccess);
    ASSERT_TRUE(Outcome.Answer && Outcome.Answer->IsObject());
    // Interpreting the answer is the scanner's business: "NULL" and missing ids arrive untouched.
    EXPECT_STREQ((*Outcome.Answer)["products"]["P1"]["category_t2"].GetString(), "NULL");
    EXPECT_STREQ((*Outcome.Answer)["missing"][0].GetString(), "P9");
    const FOrvTestCatalogRequest& Seen = Service.GetRequests()[0];
    EXPECT_EQ(Seen.Method, "POST");
    EXPECT_EQ(Seen.Target, "/api/orvvault/products/batch");
    EXPECT_EQ(Seen.ContentType, "application/json");
    EXPECT_EQ(Seen.Body, R"({"product_ids":["P1","P9"]})");

    // "status": false is a request that worked and whose answer says so.
    const FOrvApiOutcome Refused = PostAndWait(Loop, Api, "refused");
    EXPECT_TRUE(Refused.bSuccess);
    ASSERT_TRUE(Refused.Answer);
    EXPECT_FALSE((*Refused.Answer)["status"].GetBool());
}

TEST(FOrvHttpCatalogApiTest, BadAnswersAndUnreachableServicesFailOnceWithTheirOwnReason)
{
    FOrvHostEventLoop Loop;
    const std::map<std::string, FOrvTestCatalogAnswer> Answers = {
        {"500", Answer(R"({"status":true})", 500)},
        {"html", Answer("<html>maintenance</html>")},
        {"array", Answer("[1,2,3]")},
        {"truncated", Answer(R"({"status":true,"products":{)")},
        {"huge", Answer(R"({"pad":")" + std::string(8192, 'x') + "\"}")},
        {"slow", Answer(R"({"status":true})", 200, 5.0)}};
    FOrvTestCatalogService Service(Loop.Context(), [&](const FOrvTestCatalogRequest& Request)
                                   { return Answers.at(Request.Body); });
    std::string ClosedBaseUrl;
    {
        FOrvTestCatalogService Gone(Loop.Context(), nullptr);
        ClosedBaseUrl = Gone.GetBaseUrl();
    }
    FOrvHttpClientLimits Limits;
    Limits.MaxAnswerBytes = 4096;
    FOrvHttpCatalogApi Api(Loop, Service.GetBaseUrl(), Limits);
    // Only the slow case gets a short deadline, so a loaded machine cannot turn the others into timeouts.
    FOrvHttpClientLimits Impatient = Limits;
    Impatient.TimeoutSeconds = 0.2;
    FOrvHttpCatalogApi ImpatientApi(Loop, Service.GetBaseUrl(), Impatient);
    FOrvHttpCatalogApi Refused(Loop, ClosedBaseUrl);
    FOrvHttpCatalogApi Https(Loop, "https://api.orvessa.com");

    // Each case must fail for its own reason, not for some other fault along the way.
    const struct
    {
        FOrvHttpCatalogApi& Client;
        const char* Case;
        const char* Reason;
    } Cases[] = {{Api, "500", "HTTP 500"},
                 {Api, "html", "not JSON"},
                 {Api, "array", "not a JSON object"},
                 {Api, "truncated", "not JSON"},
                 {Api, "huge", "larger than"},
                 {ImpatientApi, "slow", "no answer within 0.2 s"},
                 {Refused, "refused", ""},
                 {Https, "https", "https"}};
    for (const auto& [Client, Case, Reason] : Cases)
    {
        const FOrvApiOutcome Outcome = PostAndWait(Loop, Client, Case);
        EXPECT_FALSE(Outcome.bSuccess) << Case;
        EXPECT_EQ(Outcome.Answer, nullptr) << Case;
        EXPECT_NE(Client.GetLastError().find(Reason), std::string::npos)
            << Case << ": " << Client.GetLastError();
    }
}

TEST(FOrvHttpCatalogApiTest, OnlyPlainHttpBaseUrlsAreAccepted)
{
    std::string Error;
    EXPECT_TRUE(FOrvHttpCatalogApi::IsValidBaseUrl("http://127.0.0.1:8080", Error)) << Error;
    EXPECT_TRUE(FOrvHttpCatalogApi::IsValidBaseUrl("HTTP://catalog.local/api/v2/", Error)) << Error;
    EXPECT_TRUE(FOrvHttpCatalogApi::IsValidBaseUrl("http://[::1]:9000", Error)) << Error;
    for (const char* Bad :
         {"https://api.orvessa.com", "ftp://host", "127.0.0.1:8080", "http://", "http://:80", "http://host:0",
          "http://host:99999", "http://host:80x", "http://user@host", "http://host/?q=1", ""})
    {
        Error.clear();
        EXPECT_FALSE(FOrvHttpCatalogApi::IsValidBaseUrl(Bad, Error)) << Bad;
        EXPECT_FALSE(Error.empty()) << Bad;
    }
}

TEST(FOrvHttpCatalogApiTest, CookiesSetByTheServiceAreKeptAndSentBack)
{
    FOrvHostEventLoop Loop;
    FOrvTestCatalogService Service(
        Loop.Context(),
        [](const FOrvTestCatalogRequest& Request)
        {
            FOrvTestCatalogAnswer Result = Answer(R"({"status":true})");
            if (Request.Body == "login")
            {
                Result.Headers = {{"Set-Cookie", "session=abc123; Path=/; HttpOnly"},
                                  {"Set-Cookie", "region=eu; Domain=127.0.0.1; Path=/orvvault; Max-Age=3600"},
                                  {"Set-Cookie", "elsewhere=1; Path=/other"}};
            }
            if (Request.Body == "logout")
            {
                Result.Headers = {{"Set-Cookie", "session=; Max-Age=0"}};
            }
            return Result;
        });
    FOrvHttpCatalogApi Api(Loop, Service.GetBaseUrl());

    PostAndWait(Loop, Api, "login");
    const std::vector<FOrvCookie> Cookies = Api.GetCookies();
    ASSERT_EQ(Cookies.size(), 3u);
    EXPECT_EQ(Cookies[0].Name, "session");
    EXPECT_EQ(Cookies[0].Value, "abc123");
    EXPECT_EQ(Cookies[0].Domain, "127.0.0.1");
    EXPECT_EQ(Cookies[0].Path, "/");
    EXPECT_EQ(Cookies[1].Path, "/orvvault");

    Api.SetCookie(FOrvCookie{"session", "fromBridge", "127.0.0.1", "/"});
    PostAndWait(Loop, Api, "next");
    EXPECT_EQ(Service.GetRequests().back().Cookie, "session=fromBridge; region=eu");

    PostAndWait(Loop, Api, "logout");
    PostAndWait(Loop, Api, "after");
    EXPECT_EQ(Service.GetRequests().back().Cookie, "region=eu");
}

TEST(FOrvHttpCatalogApiTest, DestroyingTheClientFirstDropsTheCompletionSafely)
{
    FOrvHostEventLoop Loop;
    FOrvTestCatalogService Service(Loop.Context(),
                                   [](const FOrvTestCatalogRequest&) {
                                       return FOrvTestCatalogAnswer{R"({"status":true})", 200, {}, 0.05};
                                   });
    FOrvApiOutcome Outcome;
    {
        auto Api = std::make_unique<FOrvHttpCatalogApi>(Loop, Service.GetBaseUrl());
        Api->Post(BatchPath, "{}", Outcome.Callback());
        Loop.RunUntil([&] { return !Service.GetRequests().empty(); }, 5.0);
        auto Invalid = std::make_unique<FOrvHttpCatalogApi>(Loop, "nonsense");
        Invalid->Post(BatchPath, "{}", Outcome.Callback());
    }
    EXPECT_FALSE(Loop.RunUntil([&] { return Outcome.Calls > 0; }, 0.2));
}
