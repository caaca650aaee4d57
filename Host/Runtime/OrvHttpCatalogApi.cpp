#include "Host/Runtime/OrvHttpCatalogApi.h"

#include "Core/Common/OrvStrings.h"
#include "Core/Json/OrvJson.h"
#include "Host/Runtime/OrvBeast.h"
#include "Host/Runtime/OrvHostEventLoop.h"
#include "Host/Runtime/OrvHttpUrl.h"

#include "Core/Json/OrvRapidJson.h"

#include <cstdint>
#include <unordered_map>

namespace OrvWebBridge
{
    using namespace OrvBeast;

    namespace
    {
        class FOrvCatalogRequest;

        // The answer waits in a buffer of at most 64 KiB, so an endless header, chunk line or trailer cannot
        // grow memory, nor reach Beast's own 64 KiB field limit, which Beast enforces by throwing.
        constexpr std::size_t MaxBufferedBytes = 64 * 1024;
        constexpr std::uint32_t MaxAnswerHeaderBytes = 32 * 1024;
    } // namespace

    struct FOrvHttpCatalogApi::FState
    {
        FState(asio::io_context& InContext, std::string InBaseUrl, FOrvHttpClientLimits InLimits)
            : Context(InContext), BaseUrl(std::move(InBaseUrl)), Limits(InLimits)
        {
            Url = FOrvHttpUrl::Parse(BaseUrl, UrlError);
        }

        asio::io_context& Context;
        std::string BaseUrl;
        FOrvHttpClientLimits Limits;
        std::optional<FOrvHttpUrl> Url;
        std::string UrlError;
        FOrvCookieJar Jar;
        std::string LastError;
        bool bDestroyed = false;
        std::uint64_t LastRequestId = 0;
        std::unordered_map<std::uint64_t, std::weak_ptr<FOrvCatalogRequest>> Active;
    };

    namespace
    {
        /** @brief One POST: resolve, connect, write, read, under one deadline; completes exactly once. */
        class FOrvCatalogRequest : public std::enable_shared_from_this<FOrvCatalogRequest>
        {
        public:
            FOrvCatalogRequest(std::shared_ptr<FOrvHttpCatalogApi::FState> InState, std::string InTarget,
                               std::string JsonBody, FOrvApiCallback InOnComplete)
                : State(std::move(InState)), Resolver(State->Context), Stream(State->Context),
                  Deadline(State->Context), Target(std::move(InTarget)), OnComplete(std::move(InOnComplete))
            {
                const FOrvHttpUrl& Url = *State->Url;
                Request.method(http::verb::post);
                Request.target(Target);
                Request.version(11);
                Request.set(http::field::host, Url.HostHeader());
                Request.set(http::field::content_type, "application/json");
                Request.set(http::field::accept, "application/json");
                Request.set(http::field::user_agent, "orv-host/0.6.0");
                Request.keep_alive(false);
                const std::string Cookies = State->Jar.CookieHeader(Url.Host, Target);
                if (!Cookies.empty())
                {
                    Request.set(http::field::cookie, Cookies);
                }
                Request.body() = std::move(JsonBody);
                Request.prepare_payload();
                Parser.body_limit(State->Limits.MaxAnswerBytes);
                Parser.header_limit(MaxAnswerHeaderBytes);
            }

            void Start()
            {
                Id = ++State->LastRequestId;
                State->Active.emplace(Id, weak_from_this());
                Deadline.expires_after(Seconds(State->Limits.TimeoutSeconds));
                Deadline.async_wait(
                    [Self = shared_from_this()](const FErrorCode& Error)
                    {
                        if (!Error)
                        {
                            Self->Fail(FOrvStrings::Printf("no answer within %g s",
                                                           Self->State->Limits.TimeoutSeconds));
                        }
                    });
                const FOrvHttpUrl& Url = *State->Url;
                Resolver.async_resolve(
                    Url.Host, std::to_string(Url.Port),
                    [Self = shared_from_this()](const FErrorCode& Error, tcp::resolver::results_type Results)
                    {
                        if (Error)
                        {
                            Self->Fail("cannot resolve the host: " + Error.message());
                            return;
                        }
                        Self->Connect(Results);
                    });
            }

            /** Ends the request without calling back: the client is going away. */
            void Abandon()
            {
                bFinished = true;
                Shutdown();
            }

        private:
            void Connect(const tcp::resolver::results_type& Results)
            {
                Stream.async_connect(
                    Results,
                    [Self = shared_from_this()](const FErrorCode& Error, const tcp::endpoint&)
                    {
                        if (Error)
                        {
                            Self->Fail("cannot connect: " + Error.message());
                            return;
                        }
                        http::async_write(
                            Self->Stream, Self->Request,
                            [Self](const FErrorCode& WriteError, std::size_t)
                            {
                                if (WriteError)
                                {
                                    Self->Fail("cannot send the request: " + WriteError.message());
                                    return;
                                }
                                http::async_read(Self->Stream, Self->Buffer, Self->Parser,
                                                 [Self](const FErrorCode& ReadError, std::size_t)
                                                 { Self->OnRead(ReadError); });
                            });
                    });
            }

            void OnRead(const FErrorCode& Error)
            {
                if (Error == http::error::body_limit)
                {
                    Fail(FOrvStrings::Printf("the answer is larger than %zu bytes",
                                             State->Limits.MaxAnswerBytes));
                    return;
                }
                if (Error == http::error::header_limit)
                {
                    Fail(FOrvStrings::Printf("the answer's header is larger than %u bytes",
                                             MaxAnswerHeaderBytes));
                    return;
                }
                if (Error == http::error::buffer_overflow)
                {
                    Fail("a line of the answer (chunk size or trailer) is longer than 64 KiB");
                    return;
                }
                if (Error)
                {
                    Fail("cannot read the answer: " + Error.message());
                    return;
                }
                const auto& Answer = Parser.get();
                if (!bFinished)
                {
                    for (const auto& Field : Answer)
                    {
                        if (Field.name() == http::field::set_cookie)
                        {
                            State->Jar.ApplySetCookie(Field.value(), State->Url->Host);
                        }
                    }
                }
                const unsigned Status = Answer.result_int();
                if (Status < 200 || Status > 299)
                {
                    Fail("the service answered HTTP " + std::to_string(Status) +
                         (Status >= 300 && Status <= 399 ? " (redirects are not followed)" : ""));
                    return;
                }
                auto Document = std::make_shared<rapidjson::Document>();
                FOrvJsonParseError ParseError;
                if (!FOrvJson::Parse(Answer.body(), *Document, &ParseError))
                {
                    Fail("the answer is not JSON: " +
                         FOrvJson::DescribeParseError(Answer.body(), ParseError));
                    return;
                }
                if (!Document->IsObject())
                {
                    Fail("the answer is not a JSON object");
                    return;
                }
                Finish(true, std::move(Document), {});
            }

            void Fail(std::string Why) { Finish(false, nullptr, std::move(Why)); }

            void Finish(bool bSuccess, std::shared_ptr<const rapidjson::Document> Answer, std::string Why)
            {
                if (bFinished)
                {
                    return;
                }
                bFinished = true;
                Shutdown();
                if (State->bDestroyed)
                {
                    return;
                }
                State->LastError = bSuccess ? std::string() : Target + ": " + Why;
                // Called from an I/O completion, so already on the event loop and after Post returned.
                FOrvApiCallback Callback = std::move(OnComplete);
                if (Callback)
                {
                    Callback(bSuccess, std::move(Answer));
                }
            }

            void Shutdown()
            {
                Deadline.cancel();
                Resolver.cancel();
                FErrorCode Ignored;
                Stream.socket().shutdown(tcp::socket::shutdown_both, Ignored);
                Stream.close();
                State->Active.erase(Id);
            }

            std::shared_ptr<FOrvHttpCatalogApi::FState> State;
            tcp::resolver Resolver;
            beast::tcp_stream Stream;
            asio::steady_timer Deadline;
            std::string Target;
            FOrvApiCallback OnComplete;
            http::request<http::string_body> Request;
            http::response_parser<http::string_body> Parser;
            beast::flat_buffer Buffer{MaxBufferedBytes};
            std::uint64_t Id = 0;
            bool bFinished = false;
        };
    } // namespace

    FOrvHttpCatalogApi::FOrvHttpCatalogApi(FOrvHostEventLoop& Loop, std::string BaseUrl,
                                           FOrvHttpClientLimits Limits)
        : State(std::make_shared<FState>(Loop.Context(), std::move(BaseUrl), Limits))
    {
    }

    FOrvHttpCatalogApi::~FOrvHttpCatalogApi()
    {
        State->bDestroyed = true;
        std::vector<std::shared_ptr<FOrvCatalogRequest>> Pending;
        for (const auto& [Id, Weak] : State->Active)
        {
            if (auto Request = Weak.lock())
            {
                Pending.push_back(std::move(Request));
            }
        }
        for (const auto& Request : Pending)
        {
            Request->Abandon();
        }
    }

    bool FOrvHttpCatalogApi::IsValidBaseUrl(const std::string& BaseUrl, std::string& Error)
    {
        return FOrvHttpUrl::Parse(BaseUrl, Error).has_value();
    }

    void FOrvHttpCatalogApi::Post(std::string_view Path, std::string JsonBody, FOrvApiCallback OnComplete)
    {
        if (!State->Url)
        {
            State->LastError = State->UrlError;
            // Never inline: the caller may still be setting up what the callback reads.
            asio::post(State->Context,
                       [Weak = std::weak_ptr<FState>(State), OnComplete = std::move(OnComplete)]()
                       {
                           const auto Alive = Weak.lock();
                           if (Alive && !Alive->bDestroyed && OnComplete)
                           {
                               OnComplete(false, nullptr);
                           }
                       });
            return;
        }
        auto Request = std::make_shared<FOrvCatalogRequest>(State, State->Url->JoinPath(Path),
                                                            std::move(JsonBody), std::move(OnComplete));
        Request->Start();
    }

    std::vector<FOrvCookie> FOrvHttpCatalogApi::GetCookies() const
    {
        return State->Jar.Cookies;
    }

    void FOrvHttpCatalogApi::SetCookie(const FOrvCookie& Cookie)
    {
        State->Jar.Set(Cookie);
    }

    std::string FOrvHttpCatalogApi::GetLastError() const
    {
        return State->LastError;
    }
} // namespace OrvWebBridge
