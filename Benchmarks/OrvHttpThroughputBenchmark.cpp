// HTTP throughput of the host's MCP endpoint against a bare Beast server, both on loopback, driven by
// wrk with keep-alive. The bare server answers the exact bytes the endpoint answers, so the ratio is
// the cost of the host's HTTP module, router and JSON-RPC handler. Usage:
//   OrvHttpThroughputBenchmark [SECONDS_PER_RUN] [WRK_SCRIPT]
// Each server is measured in alternating rounds and its best round counts: on a shared machine other
// work only ever lowers a rate, so the best round is the least disturbed one.
#include "Host/Editor/OrvDemoScene.h"
#include "Host/Editor/OrvMemoryEditor.h"
#include "Host/Editor/OrvSceneFile.h"
#include "Host/Editor/OrvTurboJpegModule.h"
#include "Host/Runtime/OrvBeast.h"
#include "Host/Runtime/OrvConsoleLog.h"
#include "Host/Runtime/OrvHostEventLoop.h"
#include "Host/Runtime/OrvHostMcpEndpoint.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <thread>

using namespace OrvWebBridge;

using namespace OrvBeast;

namespace
{
    /** @brief One keep-alive connection of the bare server: read a request, write the fixed answer. */
    class FOrvBareSession : public std::enable_shared_from_this<FOrvBareSession>
    {
    public:
        FOrvBareSession(tcp::socket&& Socket, const std::string& InBody)
            : Stream(std::move(Socket)), Body(InBody)
        {
        }

        void Read()
        {
            Request = {};
            http::async_read(Stream, Buffer, Request,
                             [Self = shared_from_this()](const FErrorCode& Error, std::size_t)
                             {
                                 if (!Error)
                                 {
                                     Self->Write();
                                 }
                             });
        }

    private:
        void Write()
        {
            Response = {};
            Response.version(11);
            Response.result(http::status::ok);
            Response.set(http::field::content_type, "application/json");
            Response.set(http::field::access_control_allow_origin, "*");
            Response.body() = Body;
            Response.keep_alive(Request.keep_alive());
            Response.prepare_payload();
            http::async_write(Stream, Response,
                              [Self = shared_from_this()](const FErrorCode& Error, std::size_t)
                              {
                                  if (!Error)
                                  {
                                      Self->Read();
                                  }
                              });
        }

        beast::tcp_stream Stream;
        beast::flat_buffer Buffer;
        http::request<http::string_body> Request;
        http::response<http::string_body> Response;
        const std::string& Body;
    };

    /** @brief The reference: a Beast server on its own thread that answers every request with Body. */
    class FOrvBareServer
    {
    public:
        FOrvBareServer() : Acceptor(Context, tcp::endpoint(asio::ip::address_v4::loopback(), 0))
        {
            Accept();
            Thread = std::thread([this] { Context.run(); });
        }

        ~FOrvBareServer()
        {
            Context.stop();
            Thread.join();
        }

        std::uint16_t Port() const { return Acceptor.local_endpoint().port(); }

        /** Set while no load runs: the sessions read it on the server thread. */
        std::string Body;

    private:
        void Accept()
        {
            Acceptor.async_accept(
                [this](const FErrorCode& Error, tcp::socket Socket)
                {
                    if (Error)
                    {
                        return;
                    }
                    Socket.set_option(tcp::no_delay(true));
                    std::make_shared<FOrvBareSession>(std::move(Socket), Body)->Read();
                    Accept();
                });
        }

        asio::io_context Context;
        tcp::acceptor Acceptor;
        std::thread Thread;
    };

    /** @brief The host's endpoint on the demo room, its event loop on its own thread. */
    class FOrvHostServer
    {
    public:
        FOrvHostServer() : Log(false, Quiet())
        {
            FOrvSceneFile::LoadText(std::string(FOrvDemoScene::SceneJson()), "demo room", Editor);
            const FOrvMcpPorts Ports = Editor.McpPorts(Jpeg, Loop.GameThread(), Log);
            Endpoint = std::make_unique<FOrvHostMcpEndpoint>(Loop, Ports, Log);
            std::string Error;
            if (!Endpoint->Start(0, Error))
            {
                std::fprintf(stderr, "cannot start the endpoint: %s\n", Error.c_str());
                std::exit(1);
            }
            Thread = std::thread([this] { Loop.Run(); });
        }

        ~FOrvHostServer()
        {
            Loop.Stop();
            Thread.join();
            Endpoint.reset();
        }

        std::uint16_t Port() const { return static_cast<std::uint16_t>(Endpoint->GetBoundPort()); }

    private:
        static std::FILE* Quiet()
        {
            static std::FILE* Null = std::fopen("/dev/null", "w");
            return Null ? Null : stderr;
        }

        FOrvConsoleLog Log;
        FOrvMemoryEditor Editor;
        FOrvTurboJpegModule Jpeg;
        FOrvHostEventLoop Loop;
        std::unique_ptr<FOrvHostMcpEndpoint> Endpoint;
        std::thread Thread;
    };

    /** One blocking POST on a fresh connection: the endpoint's exact answer body. */
    std::string FetchAnswer(std::uint16_t Port, const std::string& Body)
    {
        asio::io_context Context;
        tcp::socket Socket(Context);
        Socket.connect(tcp::endpoint(asio::ip::address_v4::loopback(), Port));
        http::request<http::string_body> Request{http::verb::post, "/mcp", 11};
        Request.set(http::field::host, "127.0.0.1");
        Request.set(http::field::content_type, "application/json");
        Request.body() = Body;
        Request.prepare_payload();
        http::write(Socket, Request);
        beast::flat_buffer Buffer;
        http::response<http::string_body> Response;
        http::read(Socket, Buffer, Response);
        return Response.body();
    }

    /** Runs wrk against a port; the requests per second it reports, or nothing when it failed. */
    std::optional<double> RunWrk(std::uint16_t Port, const std::string& Body, const std::string& Script,
                                 int Seconds)
    {
        setenv("ORV_WRK_BODY", Body.c_str(), 1);
        const std::string Command = "wrk -t1 -c16 -d" + std::to_string(Seconds) + "s -s '" + Script +
                                    "' http://127.0.0.1:" + std::to_string(Port) + "/mcp 2>&1";
        std::FILE* Pipe = popen(Command.c_str(), "r");
        if (!Pipe)
        {
            return std::nullopt;
        }
        std::optional<double> Rate;
        bool bNon200 = false;
        std::array<char, 512> Line{};
        while (std::fgets(Line.data(), Line.size(), Pipe))
        {
            double Value = 0;
            int Count = 0;
            if (std::sscanf(Line.data(), "Requests/sec: %lf", &Value) == 1)
            {
                Rate = Value;
            }
            if (std::sscanf(Line.data(), "orv-non-200: %d", &Count) == 1 && Count > 0)
            {
                bNon200 = true;
            }
        }
        const int Status = pclose(Pipe);
        if (Status != 0 || bNon200)
        {
            return std::nullopt;
        }
        return Rate;
    }
} // namespace

int main(int Argc, char** Argv)
{
    const int Seconds = Argc > 1 ? std::max(1, std::atoi(Argv[1])) : 2;
    const std::string Script =
        Argc > 2 ? Argv[2] : (std::filesystem::path(__FILE__).parent_path() / "orv-wrk-post.lua").string();
    if (std::system("command -v wrk > /dev/null 2>&1") != 0 || !std::filesystem::exists(Script))
    {
        std::fprintf(stderr, "needs wrk on the PATH and the script %s\n", Script.c_str());
        return 1;
    }

    FOrvBareServer Bare;
    FOrvHostServer Host;
    struct FCase
    {
        const char* Name;
        const char* Body;
    };
    const FCase Cases[] = {{"ping", R"({"jsonrpc":"2.0","id":1,"method":"ping"})"},
                           {"tools/list", R"({"jsonrpc":"2.0","id":2,"method":"tools/list"})"}};

    constexpr int Rounds = 3;
    std::printf("HTTP throughput over loopback, wrk -t1 -c16 keep-alive, best of %d rounds of %d s\n", Rounds,
                Seconds);
    std::printf("%-12s %10s %14s %14s %8s\n", "request", "answer B", "bare req/s", "host req/s", "ratio");
    bool bAllMet = true;
    for (const FCase& Case : Cases)
    {
        Bare.Body = FetchAnswer(Host.Port(), Case.Body);
        double BareRate = 0;
        double HostRate = 0;
        for (int Round = 0; Round < Rounds; ++Round)
        {
            const std::optional<double> BareRound = RunWrk(Bare.Port(), Case.Body, Script, Seconds);
            const std::optional<double> HostRound = RunWrk(Host.Port(), Case.Body, Script, Seconds);
            if (!BareRound || !HostRound)
            {
                std::fprintf(stderr, "wrk failed for %s\n", Case.Name);
                return 1;
            }
            BareRate = std::max(BareRate, *BareRound);
            HostRate = std::max(HostRate, *HostRound);
        }
        if (BareRate <= 0)
        {
            std::fprintf(stderr, "the bare server answered nothing for %s\n", Case.Name);
            return 1;
        }
        const double Ratio = HostRate / BareRate;
        bAllMet = bAllMet && Ratio >= 0.5;
        std::printf("%-12s %10zu %14.0f %14.0f %7.2fx\n", Case.Name, Bare.Body.size(), BareRate, HostRate,
                    Ratio);
    }
    std::printf("target: host >= 0.5x bare: %s\n", bAllMet ? "met" : "NOT met");
    return 0;
}
