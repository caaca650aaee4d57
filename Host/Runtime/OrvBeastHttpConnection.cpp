#include "Host/Runtime/OrvBeastHttpConnection.h"

#include "Core/Common/OrvStrings.h"
#include "Host/Runtime/OrvBeastHttpEventStream.h"

namespace OrvWebBridge
{
    using namespace OrvBeast;

    namespace
    {
        constexpr std::string_view ContinueText = "HTTP/1.1 100 Continue\r\n\r\n";

        // After an answer that ends the connection, unread request bytes would make the kernel reset the
        // connection and the client could lose the answer; read them away for at most this long.
        constexpr double LingerSeconds = 2.0;
    } // namespace

    /**
     * @brief The state behind one request's completion function. It keeps the connection alive while the
     * handler holds the function; if every copy is dropped without a call, the client gets a 500, not a hang.
     */
    struct FOrvPendingReply
    {
        FOrvPendingReply(std::shared_ptr<FOrvBeastHttpConnection> InConnection, std::uint64_t InSerial)
            : Connection(std::move(InConnection)), Serial(InSerial)
        {
        }

        ~FOrvPendingReply()
        {
            if (!bDone && Connection)
            {
                // Posted: the last copy may die inside the handler call, while Dispatch is still on the
                // stack.
                auto Target = std::move(Connection);
                asio::post(Target->Stream.get_executor(),
                           [Target, ThisSerial = Serial]() { Target->Complete(ThisSerial, nullptr); });
            }
        }

        std::shared_ptr<FOrvBeastHttpConnection> Connection;
        std::uint64_t Serial = 0;
        bool bDone = false;
    };

    FOrvBeastHttpConnection::FOrvBeastHttpConnection(tcp::socket&& Socket,
                                                     std::shared_ptr<FOrvHostHttpRouter> InRouter,
                                                     std::shared_ptr<FOrvBeastHttpShared> InShared)
        : Stream(std::move(Socket)), Router(std::move(InRouter)), Shared(std::move(InShared)),
          Heartbeat(Stream.get_executor())
    {
    }

    FOrvBeastHttpConnection::~FOrvBeastHttpConnection()
    {
        if (Id != 0)
        {
            Shared->Connections.erase(Id);
        }
    }

    void FOrvBeastHttpConnection::Start()
    {
        Id = ++Shared->LastConnectionId;
        Shared->Connections.emplace(Id, weak_from_this());
        ReadHeader();
    }

    void FOrvBeastHttpConnection::Refuse()
    {
        SendPlain(503, "Too many connections; try again later.\n", false);
    }

    void FOrvBeastHttpConnection::Close()
    {
        if (bClosed)
        {
            return;
        }
        bClosed = true;
        FErrorCode Ignored;
        Stream.socket().shutdown(tcp::socket::shutdown_both, Ignored);
        Stream.close();
        Heartbeat.cancel();
        if (const auto Ended = EventStream.lock())
        {
            EventStream.reset();
            Ended->MarkEnded();
        }
    }

    void FOrvBeastHttpConnection::ReadHeader()
    {
        if (bClosed)
        {
            return;
        }
        Parser.emplace();
        Parser->body_limit(Shared->Limits.MaxBodyBytes);
        Parser->header_limit(static_cast<std::uint32_t>(Shared->Limits.MaxHeaderBytes));
        Stream.expires_after(Seconds(Shared->Limits.ReadTimeoutSeconds));
        http::async_read_header(Stream, Buffer, *Parser,
                                [Self = shared_from_this()](const FErrorCode& Error, std::size_t)
                                { Self->OnHeader(Error); });
    }

    void FOrvBeastHttpConnection::OnHeader(const FErrorCode& Error)
    {
        if (Error)
        {
            RejectReadError(Error);
            return;
        }
        const auto Expect = Parser->get().find(http::field::expect);
        if (Expect != Parser->get().end() && FOrvStrings::EqualsIgnoreCase(Expect->value(), "100-continue") &&
            !Parser->is_done())
        {
            // curl and others wait for this before sending a body larger than 1 KiB.
            asio::async_write(Stream, asio::buffer(ContinueText.data(), ContinueText.size()),
                              [Self = shared_from_this()](const FErrorCode& WriteError, std::size_t)
                              {
                                  if (WriteError)
                                  {
                                      Self->Close();
                                      return;
                                  }
                                  Self->ReadBody();
                              });
            return;
        }
        ReadBody();
    }

    void FOrvBeastHttpConnection::ReadBody()
    {
        if (Parser->is_done())
        {
            Dispatch();
            return;
        }
        Stream.expires_after(Seconds(Shared->Limits.ReadTimeoutSeconds));
        http::async_read(Stream, Buffer, *Parser,
                         [Self = shared_from_this()](const FErrorCode& Error, std::size_t)
                         { Self->OnBody(Error); });
    }

    void FOrvBeastHttpConnection::OnBody(const FErrorCode& Error)
    {
        if (Error)
        {
            RejectReadError(Error);
            return;
        }
        Dispatch();
    }

    void FOrvBeastHttpConnection::RejectReadError(const FErrorCode& Error)
    {
        if (bClosed)
        {
            return;
        }
        if (Error == http::error::body_limit)
        {
            SendPlain(413,
                      FOrvStrings::Printf("Request body too large: the limit is %zu bytes.\n",
                                          Shared->Limits.MaxBodyBytes),
                      false);
            return;
        }
        if (Error == http::error::header_limit)
        {
            SendPlain(431, "Request header fields too large.\n", false);
            return;
        }
        const bool bMalformed =
            Error.category() == http::make_error_code(http::error::end_of_stream).category() &&
            Error != http::error::end_of_stream && Error != http::error::partial_message;
        if (bMalformed)
        {
            SendPlain(400, "Bad request.\n", false);
            return;
        }
        // The client went away, stayed idle too long or was too slow: nothing to answer.
        Close();
    }

    void FOrvBeastHttpConnection::Dispatch()
    {
        http::request<http::string_body> Message = Parser->release();
        Parser.reset();
        bKeepAlive = Message.keep_alive();

        FOrvHttpRequest Request;
        if (Message.method() == http::verb::get)
        {
            Request.Verb = EOrvHttpVerb::Get;
        }
        else if (Message.method() == http::verb::post)
        {
            Request.Verb = EOrvHttpVerb::Post;
        }
        else
        {
            SendPlain(404, "Not found.\n", bKeepAlive);
            return;
        }
        Request.Path = std::string(FOrvHostHttpRouter::NormalizePath(Message.target()));
        const std::string_view Target = Message.target();
        if (const std::size_t Mark = Target.find('?'); Mark != std::string_view::npos)
        {
            Request.Query = std::string(Target.substr(Mark + 1));
        }
        const FOrvHostHttpRoute Route = Router->FindRoute(Request.Path, Request.Verb);
        if (!Route.Handler && !Route.StreamHandler)
        {
            SendPlain(404, "Not found.\n", bKeepAlive);
            return;
        }
        Request.Body = std::move(Message.body());
        Request.Headers.reserve(static_cast<std::size_t>(std::distance(Message.begin(), Message.end())));
        for (const auto& Field : Message)
        {
            Request.Headers.emplace_back(std::string(Field.name_string()), std::string(Field.value()));
        }

        // A handler may take as long as it needs (a tool's editor work), and an event stream's reads wait for
        // the client to leave: no timer runs meanwhile.
        Stream.expires_never();
        if (Route.StreamHandler)
        {
            DispatchStream(Route.StreamHandler, Request);
            return;
        }
        const std::uint64_t Serial = ++RequestSerial;
        bAwaitingHandler = true;
        const bool bHandled = Route.Handler(Request, MakeCompletion(Serial));
        if (!bHandled && bAwaitingHandler && RequestSerial == Serial)
        {
            bAwaitingHandler = false;
            SendPlain(404, "Not found.\n", bKeepAlive);
        }
    }

    FOrvHttpResultCallback FOrvBeastHttpConnection::MakeCompletion(std::uint64_t Serial)
    {
        auto Pending = std::make_shared<FOrvPendingReply>(shared_from_this(), Serial);
        return [Pending](std::unique_ptr<FOrvHttpResponse> Reply)
        {
            if (Pending->bDone || !Pending->Connection)
            {
                return;
            }
            Pending->bDone = true;
            const auto Connection = std::move(Pending->Connection);
            Connection->Complete(Pending->Serial, std::move(Reply));
        };
    }

    void FOrvBeastHttpConnection::Complete(std::uint64_t Serial, std::unique_ptr<FOrvHttpResponse> Reply)
    {
        if (bClosed || !bAwaitingHandler || Serial != RequestSerial)
        {
            return;
        }
        bAwaitingHandler = false;
        if (!Reply)
        {
            SendPlain(500, "The request handler ended without an answer.\n", bKeepAlive);
            return;
        }
        SendResponse(std::move(Reply));
    }

    void FOrvBeastHttpConnection::SendResponse(std::unique_ptr<FOrvHttpResponse> Reply)
    {
        FResponse Message;
        Message.version(11);
        Message.result(Reply->Code >= 100 && Reply->Code <= 599 ? static_cast<unsigned>(Reply->Code) : 500u);
        if (!Reply->ContentType.empty())
        {
            Message.set(http::field::content_type, Reply->ContentType);
        }
        for (const auto& [Name, Value] : Reply->Headers)
        {
            Message.insert(Name, Value);
        }
        Message.body() = std::move(Reply->Body);
        Message.keep_alive(bKeepAlive);
        Message.prepare_payload();
        Send(std::move(Message));
    }

    void FOrvBeastHttpConnection::SendPlain(unsigned Status, std::string_view Text, bool bInKeepAlive)
    {
        FResponse Message;
        Message.version(11);
        Message.result(Status);
        Message.set(http::field::content_type, "text/plain");
        Message.body() = std::string(Text);
        Message.keep_alive(bInKeepAlive);
        Message.prepare_payload();
        Send(std::move(Message));
    }

    void FOrvBeastHttpConnection::Send(FResponse&& Message)
    {
        if (bClosed)
        {
            return;
        }
        Response = std::move(Message);
        Stream.expires_after(Seconds(Shared->Limits.WriteTimeoutSeconds));
        http::async_write(Stream, Response,
                          [Self = shared_from_this()](const FErrorCode& Error, std::size_t)
                          { Self->OnWritten(Error); });
    }

    void FOrvBeastHttpConnection::OnWritten(const FErrorCode& Error)
    {
        if (Error)
        {
            Close();
            return;
        }
        if (!Response.keep_alive())
        {
            LingerAndClose();
            return;
        }
        Response = {};
        ReadHeader();
    }

    void FOrvBeastHttpConnection::LingerAndClose()
    {
        if (bClosed)
        {
            return;
        }
        FErrorCode Ignored;
        Stream.socket().shutdown(tcp::socket::shutdown_send, Ignored);
        Stream.expires_after(Seconds(LingerSeconds));
        DrainedBytes = 0;
        Drain();
    }

    void FOrvBeastHttpConnection::Drain()
    {
        Stream.async_read_some(asio::buffer(Scratch),
                               [Self = shared_from_this()](const FErrorCode& Error, std::size_t Read)
                               {
                                   Self->DrainedBytes += Read;
                                   if (Error || Self->DrainedBytes > Self->Shared->Limits.MaxBodyBytes +
                                                                         Self->Shared->Limits.MaxHeaderBytes)
                                   {
                                       Self->Close();
                                       return;
                                   }
                                   Self->Drain();
                               });
    }
} // namespace OrvWebBridge
