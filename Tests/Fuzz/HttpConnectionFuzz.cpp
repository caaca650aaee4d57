// Raw bytes into one connection of the host's real HTTP server, over a loopback socket, as a client sends
// them: then the client ends its side and reads until the server closes. Always: the server answers and
// closes within seconds (no hang), everything it sent is a sequence of well-formed HTTP/1.1 responses, and
// no connection outlives its client. Routes: an immediate GET, a deferred POST echo, an event stream and a
// fallback, so every path of the connection is reachable.
#include "Host/Runtime/OrvBeast.h"
#include "Tests/Fuzz/Support/OrvFuzzCheck.h"
#include "Tests/Support/OrvBeastServerRig.h"

#include <boost/asio/read.hpp>
#include <boost/asio/write.hpp>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

using namespace OrvWebBridge;
using namespace OrvWebBridge::OrvBeast;

namespace
{
    /** The test rig's server with a route of every kind: immediate, deferred, event stream, fallback. */
    struct FOrvFuzzServer : FOrvBeastServerRig
    {
        FOrvFuzzServer()
        {
            BindEcho("/mcp", EOrvHttpVerb::Post);
            Router->BindRoute("/health", EOrvHttpVerb::Get,
                              [](const FOrvHttpRequest& Request, const FOrvHttpResultCallback& Done)
                              {
                                  Done(MakeTextResponse(Request.Query));
                                  return true;
                              });
            Router->BindEventStream(
                "/events",
                [](const FOrvHttpRequest& Request, const std::shared_ptr<IOrvHttpEventStream>& Stream)
                {
                    Stream->SendEvent("query", Request.Query);
                    return nullptr; // the handle is dropped: the stream ends after its event
                });
            Router->SetFallbackHandler(
                [](const FOrvHttpRequest& Request, const FOrvHttpResultCallback& Done)
                {
                    if (Request.Path.size() % 2 == 0)
                    {
                        return false;
                    }
                    auto Response = MakeTextResponse(Request.Path, 404);
                    Response->Headers = {{"X-Header-Count", std::to_string(Request.Headers.size())}};
                    Done(std::move(Response));
                    return true;
                });
        }
    };

    /** Everything the server sent must parse as whole responses, the last one possibly ended by the close. */
    void CheckResponses(std::string_view Received)
    {
        while (!Received.empty())
        {
            http::response_parser<http::string_body> Parser;
            Parser.body_limit(boost::none);
            Parser.eager(true);
            FErrorCode Error;
            const std::size_t Used = Parser.put(asio::buffer(Received.data(), Received.size()), Error);
            if ((!Error || Error == http::error::need_more) && !Parser.is_done() && Used == Received.size())
            {
                // Only a response without a length may end with the connection.
                Parser.put_eof(Error);
            }
            OrvFuzzCheck(!Error && Parser.is_done(), "the server sends whole, well-formed responses",
                         Received);
            const auto& Response = Parser.get();
            OrvFuzzCheck(Response.version() == 11, "responses are HTTP/1.1", Received);
            OrvFuzzCheck(Response.result_int() == 100 || Response.has_content_length() ||
                             Response[http::field::content_type] == "text/event-stream",
                         "a response has a length unless it is an event stream", Received);
            Received.remove_prefix(Used);
        }
    }
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Data, std::size_t Size)
{
    static FOrvFuzzServer Server;
    tcp::socket Client(Server.Loop.Context());
    // Asynchronous, so libFuzzer's timer signals cannot interrupt it.
    std::optional<FErrorCode> Connected;
    Client.async_connect({asio::ip::address_v4::loopback(), Server.Port()},
                         [&Connected](const FErrorCode& Error) { Connected = Error; });
    Server.Loop.RunUntil([&] { return Connected.has_value(); }, 5.0);
    OrvFuzzCheck(Connected && !*Connected, "the server accepts",
                 Connected ? Connected->message() : "no answer");

    // Written and read at once: the server may answer (and close) before it has read everything.
    asio::async_write(Client, asio::buffer(Data, Size),
                      [&Client](const FErrorCode&, std::size_t)
                      {
                          FErrorCode Ignored;
                          Client.shutdown(tcp::socket::shutdown_send, Ignored);
                      });
    std::string Received;
    bool bClosed = false;
    asio::async_read(Client, asio::dynamic_buffer(Received),
                     [&bClosed](const FErrorCode&, std::size_t) { bClosed = true; });
    OrvFuzzCheck(Server.Loop.RunUntil([&] { return bClosed; }, 5.0), "the server answers and closes in time");
    FErrorCode Ignored;
    Client.close(Ignored);
    CheckResponses(Received);
    OrvFuzzCheck(Server.Loop.RunUntil([&] { return Server.Module.GetOpenConnectionCount() == 0; }, 5.0),
                 "no connection outlives its client");
    return 0;
}
