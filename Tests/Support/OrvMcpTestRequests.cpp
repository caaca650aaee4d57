#include "Tests/Support/OrvMcpTestRequests.h"

#include "Core/Json/OrvJsonWriter.h"

#include "Core/Json/OrvRapidJson.h"

namespace OrvWebBridge
{
    std::vector<std::string> OrvSendMcpRequest(FOrvMcpHandler& Handler, FOrvManualGameThread& GameThread,
                                               std::string_view Body)
    {
        std::vector<std::string> Responses;
        Handler.HandleRequest(Body, [&Responses](std::string Text) { Responses.push_back(std::move(Text)); });
        GameThread.RunPending();
        return Responses;
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
} // namespace OrvWebBridge
