#include "Tests/Support/OrvBeastServerRig.h"
#include "Tests/Support/OrvTestHttpClient.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace OrvWebBridge;

namespace
{
    std::string Chunked(const std::string& Head, const std::string& Body)
    {
        return "POST /mcp HTTP/1.1\r\nHost: x\r\n" + Head + "\r\n" + Body;
    }
} // namespace

// Each request is one a smuggling proxy, a fuzzer or a hostile page could send: it must be answered with a
// 4xx (501 for a coding the server cannot decode) and a closed connection, never a crash or a hang, and no
// handler may ever see it, with or without a body.
TEST(FOrvHostileHttpRequestTest, MalformedSmuggledAndOversizedRequestsGetAnErrorAndACloseAndNoHandlerSeesThem)
{
    FOrvBeastServerRig Rig;
    std::vector<std::string> Seen;
    Rig.Router->BindRoute("/mcp", EOrvHttpVerb::Post,
                          [&](const FOrvHttpRequest& Request, const FOrvHttpResultCallback& Done)
                          {
                              Seen.push_back(Request.Body);
                              Done(MakeTextResponse(Request.Body));
                              return true;
                          });
    const std::string Te = "Transfer-Encoding: chunked\r\n";
    const struct
    {
        const char* Case;
        std::string Bytes;
        int Status;
    } Cases[] = {
        {"trailer field of 64 KiB",
         Chunked(Te, "1\r\nA\r\n0\r\nX-T: " + std::string(64 * 1024, 'a') + "\r\n\r\n"), 400},
        {"chunk-size line of 100 KB", Chunked(Te, std::string(100000, '0') + "1\r\nA\r\n0\r\n\r\n"), 400},
        {"Content-Length and chunked", Chunked("Content-Length: 3\r\n" + Te, "1\r\nA\r\n0\r\n\r\n"), 400},
        {"two Content-Lengths", Chunked("Content-Length: 1\r\nContent-Length: 2\r\n", "AB"), 400},
        {"chunked not last", Chunked("Transfer-Encoding: chunked, gzip\r\n", "1\r\nA\r\n0\r\n\r\n"), 400},
        {"gzip then chunked", Chunked("Transfer-Encoding: gzip, chunked\r\n", "1\r\nA\r\n0\r\n\r\n"), 501},
        {"chunked in HTTP/1.0", "POST /mcp HTTP/1.0\r\n" + Te + "\r\n1\r\nA\r\n0\r\n\r\n", 400},
        {"folded Content-Length", Chunked("Content-Length:\r\n 2\r\n", "AB"), 400},
        {"bare line feeds", "POST /mcp HTTP/1.1\nHost: x\nContent-Length: 2\n\nAB", 400},
        {"HTTP/0.9", "GET /mcp\r\n\r\n", 400},
        {"HTTP/2 preface", "PRI * HTTP/2.0\r\n\r\nSM\r\n\r\n", 400},
        {"control byte in the method", "P\x01ST /mcp HTTP/1.1\r\nHost: x\r\n\r\n", 400},
        {"method of 70 KB", std::string(70000, 'P') + " /mcp HTTP/1.1\r\nHost: x\r\n\r\n", 431},
        {"absolute target", Chunked("Content-Length: 2\r\n", "AB").replace(5, 4, "http://evil/mcp"), 400},
    };
    for (const auto& [Case, Bytes, Status] : Cases)
    {
        FOrvTestHttpClient Client(Rig.Loop.Context(), Rig.Port());
        const FOrvTestHttpReply Reply = Client.SendRaw(Bytes, 5.0);
        EXPECT_EQ(Reply.Status, Status) << Case << ": " << Reply.Error;
        EXPECT_EQ(Reply.Header("Connection"), "close") << Case;
        EXPECT_FALSE(Reply.Body.empty()) << Case << ": the answer says what is wrong";
    }
    EXPECT_TRUE(Seen.empty()) << "a handler saw: " << Seen.front();
    EXPECT_TRUE(Rig.WaitForConnections(0)) << "every hostile connection is closed";
    EXPECT_EQ(FOrvTestHttpClient(Rig.Loop.Context(), Rig.Port()).Post("/mcp", "{}").Body, "{}");
}
