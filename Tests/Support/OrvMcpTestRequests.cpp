#include "Tests/Support/OrvMcpTestRequests.h"

#include "Core/Json/OrvJson.h"
#include "Core/Json/OrvJsonWriter.h"

#include <gtest/gtest.h>

#include <vector>

namespace OrvWebBridge
{
    std::string OrvSendMcpRequest(FOrvMcpHandler& Handler, FOrvManualGameThread& GameThread,
                                  std::string_view Body)
    {
        std::vector<std::string> Responses;
        Handler.HandleRequest(Body, [&Responses](std::string Text) { Responses.push_back(std::move(Text)); });
        GameThread.RunPending();
        EXPECT_EQ(Responses.size(), 1u) << "request: " << Body.substr(0, 200);
        return Responses.size() == 1 ? Responses.front() : std::string();
    }

    std::string OrvCondensedJson(std::string_view JsonText)
    {
        rapidjson::Document Document;
        Document.Parse(JsonText.data(), JsonText.size());
        if (Document.HasParseError())
        {
            return "<not JSON: " + std::string(JsonText) + ">";
        }
        std::string Out;
        FOrvJsonWriter Writer(Out, EOrvJsonStyle::Condensed);
        Writer.Value(Document);
        return Out;
    }

    std::string OrvToolCallRequest(std::string_view Name, std::string_view ArgumentsJson)
    {
        std::string Body = R"({"jsonrpc":"2.0","id":7,"method":"tools/call","params":{"name":")";
        OrvAppendJsonEscaped(Body, Name);
        Body += '"';
        if (!ArgumentsJson.empty())
        {
            Body += R"(,"arguments":)";
            Body += ArgumentsJson;
        }
        Body += "}}";
        return Body;
    }

    rapidjson::Document FOrvToolReply::Json() const
    {
        rapidjson::Document Document;
        Document.Parse(Text.data(), Text.size());
        return Document;
    }

    FOrvToolReply FOrvToolReply::Parse(std::string Envelope)
    {
        FOrvToolReply Reply;
        Reply.Envelope = std::move(Envelope);
        rapidjson::Document Document;
        if (!FOrvJson::ParseObject(Reply.Envelope, Document))
        {
            return Reply;
        }
        const rapidjson::Value* Result = FOrvJson::TryGetObjectField(Document, "result");
        const rapidjson::Value* Content = Result ? FOrvJson::TryGetArrayField(*Result, "content") : nullptr;
        if (!Content || Content->Size() != 1 || !(*Content)[0].IsObject())
        {
            return Reply;
        }
        const rapidjson::Value& Block = (*Content)[0];
        Reply.Type = FOrvJson::GetStringField(Block, "type");
        Reply.Text = FOrvJson::GetStringField(Block, Reply.Type == "image" ? "data" : "text");
        Reply.MimeType = FOrvJson::GetStringField(Block, "mimeType");
        return Reply;
    }
} // namespace OrvWebBridge
