#include "Tests/Support/OrvServedHost.h"

#include <charconv>
#include <csignal>

namespace OrvWebBridge
{
    namespace
    {
        /** The port of the "Serving MCP on http://127.0.0.1:PORT/mcp" line; 0 for any other line. */
        std::uint16_t ParseServingPort(std::string_view Line)
        {
            constexpr std::string_view Prefix = "Serving MCP on http://127.0.0.1:";
            std::uint16_t Port = 0;
            if (Line.starts_with(Prefix))
            {
                const char* End = Line.data() + Line.size();
                const auto [Rest, Error] = std::from_chars(Line.data() + Prefix.size(), End, Port);
                return Error == std::errc() && std::string_view(Rest, End) == "/mcp" ? Port : 0;
            }
            return 0;
        }
    } // namespace

    FOrvServedHost::~FOrvServedHost()
    {
        HttpClient.reset();
        Child.Signal(SIGTERM);
        Child.WaitForExit(10.0);
    }

    bool FOrvServedHost::Start(const std::string& Executable, const std::vector<std::string>& ExtraArgs,
                               std::string& Error)
    {
        std::vector<std::string> Args{"serve", "--port", "0", "--panel-port", "0"};
        Args.insert(Args.end(), ExtraArgs.begin(), ExtraArgs.end());
        if (!Child.Start(Executable, Args, Error))
        {
            return false;
        }
        const auto Line = Child.WaitForOutputLine(
            [](const std::string& Text) { return ParseServingPort(Text) != 0; }, 20.0);
        if (!Line)
        {
            Error = "no URL line; output: " + Child.GetOutput() + "\nerrors: " + Child.GetErrors();
            return false;
        }
        Port = ParseServingPort(*Line);
        HttpClient = std::make_unique<FOrvTestHttpClient>(Io, Port);
        return true;
    }

    FOrvToolReply FOrvServedHost::CallTool(std::string_view Name, std::string_view ArgumentsJson)
    {
        return FOrvToolReply::Parse(HttpClient->Post("/mcp", OrvToolCallRequest(Name, ArgumentsJson)).Body);
    }

    std::string FOrvServedHost::Console(std::string_view Command)
    {
        // The console answers an unknown command with one known line: it marks the end of the answer.
        constexpr std::string_view EndLine = "Unknown command \"#orv-end\"; type help for the list.";
        std::string Answer;
        if (Child.Write(std::string(Command) + "\n#orv-end\n"))
        {
            // Without the end line the host stopped (quit) or timed out: what came is the answer.
            Child.WaitForOutputLine(
                [&](const std::string& Text)
                {
                    if (Text != EndLine && !Text.empty() && !Text.starts_with("Console ready"))
                    {
                        Answer += (Answer.empty() ? "" : "\n") + Text;
                    }
                    return Text == EndLine;
                },
                10.0);
        }
        return Answer;
    }
} // namespace OrvWebBridge
