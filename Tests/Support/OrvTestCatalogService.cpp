#include "Tests/Support/OrvTestCatalogService.h"

#include "Host/Runtime/OrvBeast.h"

using namespace OrvBeast;

struct FOrvTestCatalogService::FState : std::enable_shared_from_this<FOrvTestCatalogService::FState>
{
    FState(asio::io_context& Context, FAnswerFunction InAnswer)
        : Acceptor(Context), Answer(std::move(InAnswer))
    {
    }

    void Accept();

    tcp::acceptor Acceptor;
    FAnswerFunction Answer;
    std::vector<FOrvTestCatalogRequest> Requests;
    bool bStopped = false;
};

namespace
{
    /** @brief One connection: one request, one (possibly delayed) answer, then close. */
    struct FOrvTestCatalogSession : std::enable_shared_from_this<FOrvTestCatalogSession>
    {
        FOrvTestCatalogSession(tcp::socket&& InSocket,
                               std::shared_ptr<FOrvTestCatalogService::FState> InState)
            : Socket(std::move(InSocket)), Timer(Socket.get_executor()), State(std::move(InState))
        {
        }

        void Start()
        {
            http::async_read(Socket, Buffer, Request,
                             [Self = shared_from_this()](const FErrorCode& Error, std::size_t)
                             {
                                 if (!Error && !Self->State->bStopped)
                                 {
                                     Self->OnRequest();
                                 }
                             });
        }

        void OnRequest()
        {
            State->Requests.push_back({std::string(Request.method_string()), std::string(Request.target()),
                                       std::string(Request[http::field::content_type]),
                                       std::string(Request[http::field::cookie]), Request.body()});
            const FOrvTestCatalogAnswer Answer = State->Answer(State->Requests.back());
            Response.result(static_cast<unsigned>(Answer.Status));
            Response.set(http::field::content_type, "application/json");
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
                    if (!Error && !Self->State->bStopped)
                    {
                        http::async_write(Self->Socket, Self->Response,
                                          [Self](const FErrorCode&, std::size_t)
                                          {
                                              FErrorCode Ignored;
                                              Self->Socket.shutdown(tcp::socket::shutdown_send, Ignored);
                                          });
                    }
                });
        }

        tcp::socket Socket;
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
            if (!Error && !Self->bStopped)
            {
                std::make_shared<FOrvTestCatalogSession>(std::move(Socket), Self)->Start();
                Self->Accept();
            }
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
