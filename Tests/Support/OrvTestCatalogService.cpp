#include "Tests/Support/OrvTestCatalogService.h"

#include "Host/Runtime/OrvBeast.h"

namespace OrvWebBridge
{
    using namespace OrvBeast;

    namespace
    {
        /** @brief One connection: one request, one (possibly delayed) answer, then close. */
        struct FOrvTestCatalogSession
        {
            explicit FOrvTestCatalogSession(tcp::socket&& InSocket)
                : Socket(std::move(InSocket)), Timer(Socket.get_executor())
            {
            }
            tcp::socket Socket;
            asio::steady_timer Timer;
            beast::flat_buffer Buffer;
            http::request_parser<http::string_body> Parser;
            http::response<http::string_body> Response;
            std::string Raw;
        };
    } // namespace

    struct FOrvTestCatalogService::FState : std::enable_shared_from_this<FOrvTestCatalogService::FState>
    {
        FState(asio::io_context& Context, FAnswerFunction InAnswer)
            : Acceptor(Context), Answer(std::move(InAnswer))
        {
        }

        void Accept()
        {
            Acceptor.async_accept(
                [Self = shared_from_this()](const FErrorCode& Error, tcp::socket Socket)
                {
                    if (Error || Self->bStopped)
                    {
                        return;
                    }
                    auto Session = std::make_shared<FOrvTestCatalogSession>(std::move(Socket));
                    // Room for the whole cookie jar the client may send back.
                    Session->Parser.header_limit(64 * 1024);
                    http::async_read(Session->Socket, Session->Buffer, Session->Parser,
                                     [Self, Session](const FErrorCode& ReadError, std::size_t)
                                     {
                                         if (!ReadError && !Self->bStopped)
                                         {
                                             Self->Respond(Session);
                                         }
                                     });
                    Self->Accept();
                });
        }

        void Respond(const std::shared_ptr<FOrvTestCatalogSession>& Session)
        {
            const auto& Request = Session->Parser.get();
            Requests.push_back({std::string(Request.method_string()), std::string(Request.target()),
                                std::string(Request[http::field::content_type]),
                                std::string(Request[http::field::cookie]), Request.body()});
            const FOrvTestCatalogAnswer Reply = Answer(Requests.back());
            if (!Reply.Raw.empty())
            {
                Session->Raw = Reply.Raw;
                WriteRaw(Session, Reply);
                return;
            }
            auto& Response = Session->Response;
            Response.result(static_cast<unsigned>(Reply.Status));
            Response.set(http::field::content_type, "application/json");
            for (const auto& [Name, Value] : Reply.Headers)
            {
                Response.insert(Name, Value);
            }
            Response.body() = Reply.Body;
            Response.keep_alive(false);
            Response.prepare_payload();
            Session->Timer.expires_after(Seconds(Reply.DelaySeconds));
            Session->Timer.async_wait(
                [Self = shared_from_this(), Session](const FErrorCode& Error)
                {
                    if (!Error && !Self->bStopped)
                    {
                        http::async_write(Session->Socket, Session->Response,
                                          [Session](const FErrorCode&, std::size_t)
                                          {
                                              FErrorCode Ignored;
                                              Session->Socket.shutdown(tcp::socket::shutdown_send, Ignored);
                                          });
                    }
                });
        }

        void WriteRaw(const std::shared_ptr<FOrvTestCatalogSession>& Session,
                      const FOrvTestCatalogAnswer& Reply)
        {
            asio::async_write(
                Session->Socket, asio::buffer(Session->Raw),
                [Self = shared_from_this(), Session, Reply](const FErrorCode& Error, std::size_t)
                {
                    if (Error || Self->bStopped || Reply.RawRepeat.empty())
                    {
                        return;
                    }
                    Session->Raw = Reply.RawRepeat;
                    Session->Timer.expires_after(Seconds(Reply.RepeatSeconds));
                    Session->Timer.async_wait([Self, Session, Reply](const FErrorCode&)
                                              { Self->WriteRaw(Session, Reply); });
                });
        }

        tcp::acceptor Acceptor;
        FAnswerFunction Answer;
        std::vector<FOrvTestCatalogRequest> Requests;
        bool bStopped = false;
    };

    FOrvTestCatalogService::FOrvTestCatalogService(boost::asio::io_context& Context, FAnswerFunction Answer)
        : State(std::make_shared<FState>(Context, std::move(Answer)))
    {
        State->Acceptor = tcp::acceptor(Context, {asio::ip::address_v4::loopback(), 0});
        State->Accept();
    }

    FOrvTestCatalogService::~FOrvTestCatalogService()
    {
        State->bStopped = true;
        FErrorCode Ignored;
        State->Acceptor.close(Ignored);
    }

    std::string FOrvTestCatalogService::GetBaseUrl() const
    {
        FErrorCode Ignored;
        return "http://127.0.0.1:" + std::to_string(State->Acceptor.local_endpoint(Ignored).port());
    }

    const std::vector<FOrvTestCatalogRequest>& FOrvTestCatalogService::GetRequests() const
    {
        return State->Requests;
    }
} // namespace OrvWebBridge
