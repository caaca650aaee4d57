#include "Core/Mcp/OrvMcpHandler.h"
#include "Tests/Support/OrvMcpTestRequests.h"
#include "Tests/Support/OrvNullEditorPorts.h"

#include "Core/Json/OrvRapidJson.h"
#include <gtest/gtest.h>

#include <cctype>
#include <string>

using namespace OrvWebBridge;

namespace
{
    constexpr const char* ParseErrorEnvelope =
        R"({"jsonrpc":"2.0","id":null,"error":{"code":-32700,"message":"Parse error: invalid JSON"}})";

    std::string UnknownToolText(const std::string& Name)
    {
        return "Unknown tool: " + Name +
               ". (Catalog tools are served by the ORVESSA Hub — make sure 'orvessa' npm package is "
               "configured in your MCP client.)";
    }

    class FOrvMcpHandlerTest : public ::testing::Test
    {
    protected:
        /** The one response, condensed: content and key order without layout. */
        std::string Call(std::string_view Body)
        {
            return OrvCondensedJson(OrvSendMcpRequest(Handler, Editor.GameThread, Body));
        }

        FOrvNullEditorPorts Editor;
        FOrvMcpHandler Handler{Editor.Ports()};
    };
} // namespace

TEST_F(FOrvMcpHandlerTest, BodiesThatAreNotAJsonObjectGetTheParseErrorWithNullId)
{
    for (const char* Body :
         {"{", "", "[1,2]", R"([{"method":"ping"}])", "\"ping\"", "42", R"({"method":"ping"} x)"})
    {
        EXPECT_EQ(Call(Body), ParseErrorEnvelope) << "body: " << Body;
    }
}

TEST_F(FOrvMcpHandlerTest, RequestIdComesBackUnchangedWhateverItsTypeAndNullWhenAbsent)
{
    for (const std::string Id : {R"("a1")", "7", "-3", "1.5", "12345678901234567890", "true", "null",
                                 R"({"k":[1,"x"]})", "[]", R"("\"quoted\" \\ ü")"})
    {
        EXPECT_EQ(Call(R"({"jsonrpc":"2.0","id":)" + Id + R"(,"method":"ping"})"),
                  R"({"jsonrpc":"2.0","id":)" + Id + R"(,"result":{}})");
    }
    EXPECT_EQ(Call(R"({"method":"ping"})"), R"({"jsonrpc":"2.0","id":null,"result":{}})");

    // A notification still gets an answer, like a request without id.
    EXPECT_EQ(Call(R"({"jsonrpc":"2.0","method":"notifications/initialized"})"),
              R"({"jsonrpc":"2.0","id":null,"result":{}})");
}

// Members are found as the engine finds them: ignoring letter case, and a repeated one keeps its last value.
TEST_F(FOrvMcpHandlerTest, MemberAndMethodNamesIgnoreLetterCaseTheLastRepeatWinsAndTheVersionIsNotChecked)
{
    EXPECT_EQ(Call(R"({"id":1,"method":"PING"})"), R"({"jsonrpc":"2.0","id":1,"result":{}})");
    EXPECT_EQ(Call(R"({"jsonrpc":"1.0","id":2,"method":"Notifications/Initialized"})"),
              R"({"jsonrpc":"2.0","id":2,"result":{}})");
    EXPECT_EQ(Call(R"({"id":3,"method":"TOOLS/LIST"})"), Call(R"({"id":3,"method":"tools/list"})"));
    EXPECT_EQ(Call(R"({"id":4,"method":"Initialize"})"), Call(R"({"id":4,"method":"initialize"})"));
    EXPECT_EQ(Call(R"({"ID":1,"id":2,"METHOD":"nope","Method":"ping"})"),
              R"({"jsonrpc":"2.0","id":2,"result":{}})");
    EXPECT_NE(Call(R"({"id":3,"method":"tools/call","PARAMS":{"Name":"first","name":"ue_nope"}})")
                  .find("Unknown tool: ue_nope."),
              std::string::npos);
}

TEST_F(FOrvMcpHandlerTest, InitializeDeclaresOnlyToolsAndNamesTheServer)
{
    // Whatever version the client asks for, the server answers with its own.
    EXPECT_EQ(
        Call(R"({"jsonrpc":"2.0","id":0,"method":"initialize","params":{"protocolVersion":"2024-11-05"}})"),
        R"({"jsonrpc":"2.0","id":0,"result":{"protocolVersion":"2025-06-18",)"
        R"("capabilities":{"tools":{"listChanged":false}},)"
        R"("serverInfo":{"name":"ORVESSA","version":"1.1.0",)"
        R"("iconUrl":"https://orvessa.com/img/logo-square.svg",)"
        R"("homepage":"https://orvessa.com/integrations/mcp","vendor":"ORVESSA Srl"}}})");
}

TEST_F(FOrvMcpHandlerTest, UnknownOrMissingMethodIsMethodNotFoundNamingTheMethod)
{
    EXPECT_EQ(Call(R"({"id":1,"method":"foo"})"),
              R"({"jsonrpc":"2.0","id":1,"error":{"code":-32601,"message":"Method not found: foo"}})");
    EXPECT_EQ(Call(R"({"id":"x"})"),
              R"({"jsonrpc":"2.0","id":"x","error":{"code":-32601,"message":"Method not found: "}})");
    EXPECT_EQ(Call(R"({"id":2,"method":7})"),
              R"({"jsonrpc":"2.0","id":2,"error":{"code":-32601,"message":"Method not found: "}})");
    EXPECT_EQ(
        Call(R"({"id":3,"method":"resources/list"})"),
        R"({"jsonrpc":"2.0","id":3,"error":{"code":-32601,"message":"Method not found: resources/list"}})");
}

TEST_F(FOrvMcpHandlerTest, ToolsCallWithoutParamsOrToolNameIsInvalidParams)
{
    const std::string Error = R"({"jsonrpc":"2.0","id":5,"error":{"code":-32602,"message":")";
    const std::pair<const char*, const char*> Cases[] = {
        {"", "Missing params for tools/call"},
        {R"(,"params":"ue_list_scene")", "Missing params for tools/call"},
        {R"(,"params":null)", "Missing params for tools/call"},
        {R"(,"params":{})", "Missing tool name"},
        {R"(,"params":{"name":null,"arguments":{}})", "Missing tool name"},
        {R"(,"params":{"name":3})", "Missing tool name"}};
    for (const auto& [Params, Message] : Cases)
    {
        EXPECT_EQ(Call(std::string(R"({"id":5,"method":"tools/call")") + Params + "}"),
                  Error + Message + "\"}}");
    }
}

TEST_F(FOrvMcpHandlerTest, UnknownToolIsAPlainTextResultPointingToTheHub)
{
    EXPECT_EQ(Call(R"({"id":9,"method":"tools/call","params":{"name":"ue_nope","arguments":{}}})"),
              R"({"jsonrpc":"2.0","id":9,"result":{"content":[{"type":"text","text":")" +
                  UnknownToolText("ue_nope") + R"("}]}})");

    // The name is echoed as given, so it must come back escaped and the answer still parse.
    const std::string Response = Call(R"({"id":10,"method":"tools/call","params":{"name":"a\"b\n"}})");
    rapidjson::Document Parsed;
    ASSERT_FALSE(Parsed.Parse(Response.c_str()).HasParseError()) << Response;
    EXPECT_EQ(Parsed["result"]["content"][0]["text"].GetString(), UnknownToolText("a\"b\n"));
    EXPECT_FALSE(Parsed["result"].HasMember("isError"));
}

TEST_F(FOrvMcpHandlerTest, EveryListedToolIsReachableByNameInAnyCaseAndKeepsTheIdUntilItAnswers)
{
    rapidjson::Document List;
    List.Parse(Call(R"({"id":1,"method":"tools/list"})").c_str());
    ASSERT_TRUE(List.IsObject() && List["result"]["tools"].IsArray());
    for (const rapidjson::Value& Tool : List["result"]["tools"].GetArray())
    {
        std::string Name = Tool["name"].GetString();
        for (char& Letter : Name)
        {
            Letter = static_cast<char>(std::toupper(static_cast<unsigned char>(Letter)));
        }
        // A non-object "arguments" counts as none; tools answer on a later game-thread turn.
        const std::string Response = Call(R"({"id":"late","method":"tools/call","params":{"name":")" + Name +
                                          R"(","arguments":"x"}})");
        EXPECT_TRUE(Response.starts_with(R"({"jsonrpc":"2.0","id":"late","result":{"content":[)"))
            << Response;
        EXPECT_EQ(Response.find("Unknown tool"), std::string::npos) << Response;
        EXPECT_EQ(Response.find("isError"), std::string::npos) << Response;
    }
}

TEST_F(FOrvMcpHandlerTest, RequestsWithoutAResponseCallbackAreStillHandled)
{
    Handler.HandleRequest("{", nullptr);
    Handler.HandleRequest(R"({"id":1,"method":"ping"})", nullptr);
    Handler.HandleRequest(R"({"id":2,"method":"tools/call","params":{"name":"ue_list_scene"}})", nullptr);
    Editor.GameThread.RunPending();
    EXPECT_EQ(Editor.GameThread.PendingCount(), 0u);
}
