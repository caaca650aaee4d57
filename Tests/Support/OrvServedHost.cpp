#include "Tests/Support/OrvServedHost.h"

#include <csignal>
#include <utility>

#include <boost/asio/io_context.hpp>

namespace
{
    constexpr double StartTimeoutSeconds = 20.0;
    constexpr double ConsoleTimeoutSeconds = 10.0;
} // namespace

struct FOrvServedHost::FContext
{
    boost::asio::io_context Io;
};

std::string FOrvToolCallReply::ErrorCode() const
{
    if (Json && Json->IsObject() && Json->HasMember("error") && (*Json)["error"].IsString())
    {
        return (*Json)["error"].GetString();
    }
    return {};
}

FOrvServedHost::FOrvServedHost() : Context(std::make_unique<FContext>()) {}

FOrvServedHost::~FOrvServedHost()
{
    HttpClient.reset();
    Child.Signal(SIGTERM);
    Child.WaitForExit(10.0);
}

bool FOrvServedHost::Start(const std::string& Executable, const std::vector<std::string>& ExtraArgs,
                           std::string& Error)
{
    std::vector<std::string> Args{"serve", "--port", "0"};
    Args.insert(Args.end(), ExtraArgs.begin(), ExtraArgs.end());
    if (!Child.Start(Executable, Args, Error))
    {
        return false;
    }
    const auto Line = Child.WaitForOutputLine(
        [](const std::string& Text) { return OrvParseServingPort(Text) != 0; }, StartTimeoutSeconds);
    if (!Line)
    {
        Error = "no URL line; output: " + Child.GetOutput() + "\nerrors: " + Child.GetErrors();
        return false;
    }
    Port = static_cast<std::uint16_t>(OrvParseServingPort(*Line));
    HttpClient = std::make_unique<FOrvTestHttpClient>(Context->Io, Port);
    return true;
}

std::shared_ptr<rapidjson::Document> FOrvServedHost::Rpc(std::string_view Path, std::string_view Body,
                                                         FOrvTestHttpReply* OutReply)
{
    FOrvTestHttpReply Reply = HttpClient->Post(Path, Body);
    auto Envelope = std::make_shared<rapidjson::Document>();
    Envelope->Parse(Reply.Body.data(), Reply.Body.size());
    if (OutReply)
    {
        *OutReply = std::move(Reply);
    }
    return Envelope->HasParseError() ? nullptr : Envelope;
}

FOrvToolCallReply FOrvServedHost::CallTool(std::string_view Name, std::string_view ArgumentsJson)
{
    const std::string Body = "{\"jsonrpc\":\"2.0\",\"id\":" + std::to_string(NextId++) +
                             ",\"method\":\"tools/call\",\"params\":{\"name\":\"" + std::string(Name) +
                             "\",\"arguments\":" + std::string(ArgumentsJson) + "}}";
    FOrvToolCallReply Reply;
    Reply.Envelope = Rpc("/mcp", Body, &Reply.Http);
    if (!Reply.Envelope || !Reply.Envelope->IsObject() || !Reply.Envelope->HasMember("result"))
    {
        return Reply;
    }
    const rapidjson::Value& Result = (*Reply.Envelope)["result"];
    if (!Result.HasMember("content") || !Result["content"].IsArray() || Result["content"].Empty())
    {
        return Reply;
    }
    const rapidjson::Value& Block = Result["content"][0];
    Reply.Type = Block["type"].GetString();
    if (Reply.Type == "text")
    {
        Reply.Text = Block["text"].GetString();
        auto Parsed = std::make_shared<rapidjson::Document>();
        Parsed->Parse(Reply.Text.c_str());
        if (!Parsed->HasParseError())
        {
            Reply.Json = Parsed;
        }
    }
    else
    {
        Reply.Text = Block["data"].GetString();
        Reply.MimeType = Block["mimeType"].GetString();
    }
    return Reply;
}

std::string FOrvServedHost::Console(std::string_view Command)
{
    // The console answers an unknown command with one known line: it marks the end of the answer.
    constexpr std::string_view EndLine = "Unknown command \"#orv-end\"; type help for the list.";
    if (!Child.Write(std::string(Command) + "\n#orv-end\n"))
    {
        return {};
    }
    std::string Answer;
    // Without the end line the host stopped (quit) or timed out: what came is the answer.
    Child.WaitForOutputLine(
        [&](const std::string& Text)
        {
            if (Text == EndLine)
            {
                return true;
            }
            if (!Text.empty() && Text.rfind("Console ready", 0) != 0)
            {
                Answer += (Answer.empty() ? "" : "\n") + Text;
            }
            return false;
        },
        ConsoleTimeoutSeconds);
    return Answer;
}
