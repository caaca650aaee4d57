#include "Host/Runtime/OrvHttpCatalogApi.h"

#include "Host/Runtime/OrvHostEventLoop.h"
#include "Host/Runtime/OrvHttpUrl.h"
#include "Tests/Support/OrvApiOutcome.h"
#include "Tests/Support/OrvTestCatalogService.h"

#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <string>

using namespace OrvWebBridge;

namespace
{
    constexpr const char* BatchPath = "/orvvault/products/batch";

    FOrvTestCatalogAnswer Answer(std::string Body, int Status = 200, double DelaySeconds = 0.0)
    {
        FOrvTestCatalogAnswer Result;
        Result.Body = std::move(Body);
        Result.Status = Status;
        Result.DelaySeconds = DelaySeconds;
        return Result;
    }

    /** A service that breaks HTTP: Raw first, then Repeat over and over, every Seconds. */
    FOrvTestCatalogAnswer Hostile(std::string Raw, std::string Repeat = {}, double Seconds = 0.0)
    {
        FOrvTestCatalogAnswer Result;
        Result.Raw = std::move(Raw);
        Result.RawRepeat = std::move(Repeat);
        Result.RepeatSeconds = Seconds;
        return Result;
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

// A broken or hostile service must cost the host no more than the client's time and size limits: each case
// fails once, for its own reason, never by crashing or by waiting out the deadline when a limit tripped
// first.
TEST(FOrvHttpCatalogApiTest, BadHostileAndUnreachableServicesFailOnceWithTheirOwnReason)
{
    FOrvHostEventLoop Loop;
    const std::string Ok = "HTTP/1.1 200 OK\r\nContent-Type: application/json\r\n";
    const std::string Chunked = Ok + "Transfer-Encoding: chunked\r\n\r\n2\r\n{}\r\n";
    FOrvTestCatalogAnswer Redirect = Answer("", 302);
    Redirect.Headers = {{"Location", "http://127.0.0.1:1/elsewhere"}};
    const std::map<std::string, FOrvTestCatalogAnswer> Answers = {
        {"500", Answer(R"({"status":true})", 500)},
        {"redirect", Redirect},
        {"html", Answer("<html>maintenance</html>")},
        {"array", Answer("[1,2,3]")},
        {"endless body", Hostile(Ok + "\r\n{\"pad\":\"", std::string(16384, 'x'))},
        {"endless headers", Hostile(Ok, "X-Pad: " + std::string(1000, 'p') + "\r\n")},
        {"64 KiB trailer", Hostile(Chunked + "0\r\nX-T: " + std::string(64 * 1024, 't') + "\r\n\r\n")},
        {"endless chunk line", Hostile(Chunked, std::string(16384, '0'))},
        {"slowloris", Hostile(Ok, "X-A: b\r\n", 0.02)}};
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

    const struct
    {
        FOrvHttpCatalogApi& Client;
        const char* Case;
        const char* Reason;
    } Cases[] = {{Api, "500", "HTTP 500"},
                 {Api, "redirect", "HTTP 302"},
                 {Api, "html", "not JSON"},
                 {Api, "array", "not a JSON object"},
                 {Api, "endless body", "larger than 4096 bytes"},
                 {Api, "endless headers", "header is larger than"},
                 {Api, "64 KiB trailer", "longer than 64 KiB"},
                 {Api, "endless chunk line", "longer than 64 KiB"},
                 {ImpatientApi, "slowloris", "no answer within 0.2 s"},
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
            if (Request.Body.starts_with("flood"))
            {
                // Every cookie fits the bounds, together they would pass Beast's 64 KiB field limit.
                for (int Index = 0; Index < 8; ++Index)
                {
                    Result.Headers.emplace_back("Set-Cookie", Request.Body + std::to_string(Index) + "=" +
                                                                  std::string(3000, 'c'));
                }
                Result.Headers.emplace_back("Set-Cookie", "huge=" + std::string(5000, 'h'));
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

    // A service that floods the jar: the newest cookies are kept within its bounds, and requests go on.
    for (const char* Flood : {"floodA", "floodB", "floodC"})
    {
        PostAndWait(Loop, Api, Flood);
    }
    Api.SetCookie(FOrvCookie{"forged", "x\r\nHost: evil", "127.0.0.1", "/"});
    EXPECT_TRUE(PostAndWait(Loop, Api, "after").bSuccess);
    const std::string& Sent = Service.GetRequests().back().Cookie;
    EXPECT_LE(Sent.size(), FOrvCookieJar::MaxJarBytes);
    EXPECT_NE(Sent.find("floodC7="), std::string::npos);
    EXPECT_EQ(Sent.find("floodA0="), std::string::npos);
    EXPECT_EQ(Sent.find("huge="), std::string::npos);
    EXPECT_EQ(Sent.find("forged="), std::string::npos);
}

TEST(FOrvHttpCatalogApiTest, DestroyingTheClientFirstDropsTheCompletionSafely)
{
    FOrvHostEventLoop Loop;
    FOrvTestCatalogService Service(Loop.Context(), [](const FOrvTestCatalogRequest&)
                                   { return Answer(R"({"status":true})", 200, 0.05); });
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
