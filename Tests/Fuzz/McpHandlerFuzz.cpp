// Request text to answer text through the JSON-RPC handler, tools included, over the host's in-memory
// editor. Always: exactly one answer, valid UTF-8 JSON, at most 6x the request plus what a tool writes,
// carrying the request's id (or null, with the parse error, when the request is not a JSON object).
#include "Core/Json/OrvJson.h"
#include "Core/Json/OrvJsonWriter.h"
#include "Tests/Fuzz/Support/OrvFuzzCheck.h"
#include "Tests/Fuzz/Support/OrvFuzzEditor.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

using namespace OrvWebBridge;

namespace
{
    // The largest answer a tool writes on the demo room's 64 x 40 viewport (tools/list is about 10 KiB).
    constexpr std::size_t OrvFuzzToolOutputAllowance = 64 * 1024;

    std::string Condensed(const rapidjson::Value& Value)
    {
        std::string Out;
        FOrvJsonWriter(Out, EOrvJsonStyle::Condensed).Value(Value);
        return Out;
    }
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Data, std::size_t Size)
{
    const std::string_view Request(reinterpret_cast<const char*>(Data), Size);
    FOrvFuzzEditor Fuzz;
    FOrvMcpHandler Handler(Fuzz.Ports());
    std::vector<std::string> Answers;
    Handler.HandleRequest(Request, [&Answers](std::string Text) { Answers.push_back(std::move(Text)); });
    Fuzz.GameThread.RunPending();

    OrvFuzzCheck(Answers.size() == 1, "exactly one answer");
    const std::string& Answer = Answers.front();
    OrvFuzzCheckUtf8(Answer, "the answer is valid UTF-8");
    OrvFuzzCheck(Answer.size() <= 6 * Size + OrvFuzzToolOutputAllowance, "the answer is bounded", Answer);

    rapidjson::Document Parsed;
    OrvFuzzCheck(FOrvJson::ParseObject(Answer, Parsed), "the answer is a JSON object", Answer);
    const rapidjson::Value* AnswerId = FOrvJson::FindField(Parsed, "id");
    OrvFuzzCheck(AnswerId != nullptr, "the answer has an id", Answer);

    rapidjson::Document Read;
    const rapidjson::Value Null;
    const rapidjson::Value* RequestId = &Null;
    if (FOrvJson::ParseObject(Request, Read))
    {
        if (const rapidjson::Value* Found = FOrvJson::FindField(Read, "id"))
        {
            RequestId = Found;
        }
    }
    OrvFuzzCheck(Condensed(*AnswerId) == Condensed(*RequestId), "the answer carries the request's id",
                 Answer);
    return 0;
}
