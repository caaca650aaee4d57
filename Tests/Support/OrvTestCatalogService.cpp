#include "Tests/Support/OrvTestCatalogService.h"

#include "Host/Runtime/OrvBeast.h"

#include <unordered_set>

using namespace OrvBeast;

namespace
{
    class FOrvTestCatalogSession;
}

struct FOrvTestCatalogService::FState : std::enable_shared_from_this<FOrvTestCatalogService::FState>
{
    FState(asio::io_context& InContext, FAnswerFunction InAnswer)
        : Acceptor(InContext), Answer(std::move(InAnswer))
    {
    }

    void Accept();

    tcp::acceptor Acceptor;
    FAnswerFunction Answer;
    std::vector<FOrvTestCatalogRequest> Requests;
    std::vector<std::weak_ptr<FOrvTestCatalogSession>> Sessions;
    bool bStopped = false;
};

namespace
{
    /** @brief One connection: one request, one (possibly delayed) answer, then close. */
    class FOrvTestCatalogSession : public std::enable_shared_from_this<FOrvTestCatalogSession>
    {
    public:
        FOrvTestCatalogSession(tcp::socket&& Socket, std::shared_ptr<FOrvTestCatalogService::FState> InState)
            : Stream(std::move(Socket)), Timer(Stream.get_executor()), State(std::move(InState))
        {
        }

        void Start()
        {
            http::async_read(Stream, Buffer, Request,
                             [Self = shared_from_this()](const FErrorCode& Error, std::size_t)
                             {
                                 if (!Error && !Self->State->bStopped)
                                 {
                                     Self->OnRequest();
                                 }
                             });
        }

        void Stop()
        {
            Timer.cancel();
            Stream.close();
        }

    private:
        void OnRequest()
        {
            FOrvTestCatalogRequest Seen;
            Seen.Method = std::string(Request.method_string());
            Seen.Target = std::string(Request.target());
            Seen.ContentType = std::string(Request[http::field::content_type]);
            Seen.Cookie = std::string(Request[http::field::cookie]);
            Seen.Body = Request.body();
            State->Requests.push_back(Seen);
            const FOrvTestCatalogAnswer Answer =
                State->Answer ? State->Answer(Seen) : FOrvTestCatalogAnswer{};

            Response.version(11);
            Response.result(static_cast<unsigned>(Answer.Status));
            Response.set(http::field::content_type, Answer.ContentType);
            for (const auto& [Name, Value] : Answer.Headers)
            {
                Response.insert(Name, Value);
            }
            Response.body() = Answer.Body;
            Response.keep_alive(false);
            Response.prepare_payload();
            Timer.expires_after(Seconds(Answer.DelaySeconds));
            Timer.async_wait(
                [Self = shared_from_this()](const FErrorCode& Error)
                {
                    if (Error || Self->State->bStopped)
                    {
                        return;
                    }
                    http::async_write(Self->Stream, Self->Response,
                                      [Self](const FErrorCode&, std::size_t)
                                      {
                                          FErrorCode Ignored;
                                          Self->Stream.socket().shutdown(tcp::socket::shutdown_send, Ignored);
                                      });
                });
        }

        beast::tcp_stream Stream;
        asio::steady_timer Timer;
        beast::flat_buffer Buffer;
        http::request<http::string_body> Request;
        http::response<http::string_body> Response;
        std::shared_ptr<FOrvTestCatalogService::FState> State;
    };
} // namespace

void FOrvTestCatalogService::FState::Accept()
{
    Acceptor.async_accept(
        [Self = shared_from_this()](const FErrorCode& Error, tcp::socket Socket)
        {
            if (Error || Self->bStopped)
            {
                return;
            }
            auto Session = std::make_shared<FOrvTestCatalogSession>(std::move(Socket), Self);
            Self->Sessions.push_back(Session);
            Session->Start();
            Self->Accept();
        });
}

FOrvTestCatalogService::FOrvTestCatalogService(boost::asio::io_context& Context, FAnswerFunction Answer)
    : State(std::make_shared<FState>(Context, std::move(Answer)))
{
    const tcp::endpoint Endpoint(asio::ip::address_v4::loopback(), 0);
    State->Acceptor.open(Endpoint.protocol());
    State->Acceptor.bind(Endpoint);
    State->Acceptor.listen();
    State->Accept();
}

FOrvTestCatalogService::~FOrvTestCatalogService()
{
    State->bStopped = true;
    FErrorCode Ignored;
    State->Acceptor.close(Ignored);
    for (const auto& Weak : State->Sessions)
    {
        if (auto Session = Weak.lock())
        {
            Session->Stop();
        }
    }
}

std::uint16_t FOrvTestCatalogService::GetPort() const
{
    FErrorCode Ignored;
    return State->Acceptor.local_endpoint(Ignored).port();
}

std::string FOrvTestCatalogService::GetBaseUrl() const
{
    return "http://127.0.0.1:" + std::to_string(GetPort());
}

const std::vector<FOrvTestCatalogRequest>& FOrvTestCatalogService::GetRequests() const
{
    return State->Requests;
}
