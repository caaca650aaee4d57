// Requests an attacker would send: any local process, and any web page through a text/plain POST, can
// reach the endpoint. Each must get a bounded, valid answer, never a crash.
#include "Core/Common/OrvUtf8.h"
#include "Core/Json/OrvJson.h"
#include "Core/Mcp/OrvMcpHandler.h"
#include "Tests/Support/OrvMcpTestRequests.h"
#include "Tests/Support/OrvNullEditorPorts.h"

#include <gtest/gtest.h>

#include <string>

using namespace OrvWebBridge;

namespace
{
    constexpr const char* ParseErrorEnvelope =
        R"({"jsonrpc":"2.0","id":null,"error":{"code":-32700,"message":"Parse error: invalid JSON"}})";

    std::string Repeat(std::string_view Text, std::size_t Count)
    {
        std::string Out;
        Out.reserve(Text.size() * Count);
        for (std::size_t Index = 0; Index < Count; ++Index)
        {
            Out.append(Text);
        }
        return Out;
    }

    /** An id nested Depth arrays deep whose innermost array holds Filler repeated until about Bytes long. */
    std::string DeepWideId(std::size_t Depth, std::string_view Filler, std::size_t Bytes)
    {
        std::string Elements;
        for (std::size_t Index = 0; Index < Bytes / (Filler.size() + 1); ++Index)
        {
            Elements.append(Index ? "," : "").append(Filler);
        }
        return Repeat("[", Depth) + Elements + Repeat("]", Depth);
    }

    class FOrvMcpHostileRequestTest : public ::testing::Test
    {
    protected:
        std::string Answer(std::string_view Body)
        {
            return OrvSendMcpRequest(Handler, Editor.GameThread, Body);
        }

        FOrvNullEditorPorts Editor;
        FOrvMcpHandler Handler{Editor.Ports()};
    };
} // namespace

TEST_F(FOrvMcpHostileRequestTest, NestingDeeperThanTheBoundIsAParseErrorNotACrash)
{
    for (const std::string& Body :
         {Repeat("[", 100000), Repeat(R"({"a":)", 100000),
          R"({"id":1,"method":"ping","params":)" + Repeat("[", 256) + Repeat("]", 256) + "}"})
    {
        EXPECT_EQ(OrvCondensedJson(Answer(Body)), ParseErrorEnvelope) << Body.substr(0, 60);
    }
    // The bound itself is fine: the root object and 255 arrays inside it.
    EXPECT_EQ(OrvCondensedJson(
                  Answer(R"({"id":1,"method":"ping","params":)" + Repeat("[", 255) + Repeat("]", 255) + "}")),
              R"({"jsonrpc":"2.0","id":1,"result":{}})");
}

// The guarantee: an answer is at most 6 times its request plus 1 KiB, plus what a tool itself writes.
// The worst case under the depth bound is a number such as 1e20, which the writer spells out in 23
// characters; pretty printing never multiplies, because an array or object id is written condensed.
TEST_F(FOrvMcpHostileRequestTest, AnswersStayWithinSixTimesTheRequestAndAreValidUtf8)
{
    const std::string InvalidBytes = Repeat("\xFF", 65536);
    const std::string Bodies[] = {
        // Deep and wide ids: pretty printed, these grew with the square of the depth (64 KB -> 1 GiB).
        R"({"id":)" + DeepWideId(254, "[]", 65536) + R"(,"method":"ping"})",
        R"({"id":)" + DeepWideId(254, "{}", 65536) + R"(,"method":"tools/list"})",
        R"({"id":)" + Repeat(R"({"a":)", 254) + "0" + Repeat("}", 254) + R"(,"method":"initialize"})",
        R"({"id":)" + DeepWideId(1, "1e20", 65536) + R"(,"method":")" + InvalidBytes + R"("})",
        R"({"id":")" + InvalidBytes + R"(","method":"tools/call","params":{"name":")" + InvalidBytes +
            R"("}})",
        R"({"id":")" + Repeat("\\udc00", 10000) + R"(","method":"ping"})",
        R"({"id":1,"method":")" + std::string(10 << 20, 'x') + R"("})",
        R"({"id":1e20,"method":"x"})",
    };
    for (const std::string& Body : Bodies)
    {
        const std::string Text = Answer(Body);
        EXPECT_LE(Text.size(), 6 * Body.size() + 1024) << Body.substr(0, 60);
        EXPECT_TRUE(FOrvUtf8::IsValid(Text)) << Body.substr(0, 60);
        rapidjson::Document Request;
        rapidjson::Document Parsed;
        if (Body.size() > (1 << 20))
        {
            continue; // the huge string: its answer is long but plain (and slow to reparse under ASan)
        }
        ASSERT_TRUE(FOrvJson::ParseObject(Body, Request));
        ASSERT_TRUE(FOrvJson::ParseObject(Text, Parsed)) << Text.substr(0, 200);
        if (FOrvUtf8::IsValid(Body) && Body.find("\\udc00") == std::string::npos)
        {
            EXPECT_TRUE(Parsed["id"] == Request["id"]) << Body.substr(0, 60);
        }
    }
}

TEST_F(FOrvMcpHostileRequestTest, LoneSurrogatesAndInvalidBytesComeBackAsReplacementCharacters)
{
    EXPECT_EQ(OrvCondensedJson(Answer("{\"id\":\"\\udc00x\",\"method\":\"a\xFF\xC3\"}")),
              "{\"jsonrpc\":\"2.0\",\"id\":\"\xEF\xBF\xBDx\",\"error\":{\"code\":-32601,"
              "\"message\":\"Method not found: a\xEF\xBF\xBD\xEF\xBF\xBD\"}}");
}

TEST_F(FOrvMcpHostileRequestTest, NumbersTheEngineCouldNotHoldAreRefusedOthersEchoed)
{
    EXPECT_EQ(OrvCondensedJson(Answer(R"({"id":1e999,"method":"ping"})")), ParseErrorEnvelope);
    EXPECT_EQ(OrvCondensedJson(Answer(R"({"id":NaN,"method":"ping"})")), ParseErrorEnvelope);
    EXPECT_EQ(OrvCondensedJson(Answer(R"({"id":21e308,"method":"ping"})")), ParseErrorEnvelope)
        << "rounds to infinity, which would be echoed as null";
    EXPECT_EQ(OrvCondensedJson(Answer(R"({"id":18446744073709551615,"method":"ping"})")),
              R"({"jsonrpc":"2.0","id":18446744073709551615,"result":{}})");
    EXPECT_EQ(OrvCondensedJson(Answer(R"({"id":1018446744073701551616,"method":"ping"})")),
              R"({"jsonrpc":"2.0","id":1.0184467440737016e21,"result":{}})")
        << "the id that came in, correctly rounded, so the client can match it";
    EXPECT_EQ(OrvCondensedJson(Answer(R"({"id":-0,"method":"ping"})")),
              R"({"jsonrpc":"2.0","id":0,"result":{}})");
}
