#include "Host/Runtime/OrvBeastHttpConnection.h"

#include "Host/Runtime/OrvBeastHttpEventStream.h"

namespace OrvWebBridge
{
    using namespace OrvBeast;

    namespace
    {
        constexpr std::string_view ContinueText = "HTTP/1.1 100 Continue\r\n\r\n";
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
        : Stream(std::move(Socket)), Reader(InShared->Limits), Router(std::move(InRouter)),
          Shared(std::move(InShared)), Heartbeat(Stream.get_executor())
    {
    }

    FOrvBeastHttpConnection::~FOrvBeastHttpConnection()
    {
        Shared->Connections.erase(Id);
    }

    void FOrvBeastHttpConnection::Start()
    {
        if (Shared->Connections.size() >= Shared->Limits.MaxConnections && !CloseLongestIdle(*Shared))
        {
            Refuse();
            return;
        }
        Id = ++Shared->LastConnectionId;
        Shared->Connections.emplace(Id, weak_from_this());
        AwaitRequest();
    }

    bool FOrvBeastHttpConnection::CloseLongestIdle(FOrvBeastHttpShared& Shared)
    {
        // Only a connection between requests gives way: closing it is what keep-alive allows at any time.
        std::shared_ptr<FOrvBeastHttpConnection> Longest;
        for (const auto& [ConnectionId, Weak] : Shared.Connections)
        {
            const auto Connection = Weak.lock();
            const bool bIdle =
                Connection && (Connection->Phase == EPhase::Idle || Connection->Phase == EPhase::Lingering);
            if (bIdle && (!Longest || Connection->IdleSince < Longest->IdleSince))
            {
                Longest = Connection;
            }
        }
        if (Longest)
        {
            Longest->Close();
        }
        return Longest != nullptr;
    }

    void FOrvBeastHttpConnection::Close()
    {
        if (bClosed)
        {
            return;
        }
        bClosed = true;
        Shared->Connections.erase(Id);
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

    void FOrvBeastHttpConnection::AwaitRequest()
    {
        if (bClosed)
        {
            return;
        }
        Reader.Begin();
        Phase = EPhase::Idle;
        IdleSince = std::chrono::steady_clock::now();
        if (Reader.HasBufferedBytes())
        {
            // A pipelined request arrived with the one before.
            Phase = EPhase::Header;
            RequestDeadline = IdleSince + Seconds(Shared->Limits.RequestTimeoutSeconds);
            Advance(Reader.ParseBuffered());
            return;
        }
        ReadSome();
    }

    void FOrvBeastHttpConnection::ReadSome()
    {
        // The header's deadline runs from its first byte and the body's grows only with what has come, so a
        // client that sends a byte now and then cannot keep a connection forever.
        const FOrvHttpServerLimits& Limits = Shared->Limits;
        if (Phase == EPhase::Idle)
        {
            Stream.expires_after(Seconds(Limits.IdleTimeoutSeconds));
        }
        else if (Phase == EPhase::Header)
        {
            Stream.expires_at(RequestDeadline);
        }
        else
        {
            Stream.expires_at(RequestDeadline + Seconds(static_cast<double>(Reader.GetBodyBytes()) /
                                                        Limits.MinBodyBytesPerSecond));
        }
        Stream.async_read_some(Reader.Prepare(),
                               [Self = shared_from_this()](const FErrorCode& Error, std::size_t Bytes)
                               { Self->OnRead(Error, Bytes); });
    }

    void FOrvBeastHttpConnection::OnRead(const FErrorCode& Error, std::size_t Bytes)
    {
        if (bClosed)
        {
            return;
        }
        if (Error)
        {
            // The client went away, or its deadline passed (the stream has closed the socket then).
            Close();
            return;
        }
        Reader.Commit(Bytes);
        if (Phase == EPhase::Idle)
        {
            Phase = EPhase::Header;
            RequestDeadline =
                std::chrono::steady_clock::now() + Seconds(Shared->Limits.RequestTimeoutSeconds);
        }
        Advance(Reader.ParseBuffered());
    }

    void FOrvBeastHttpConnection::Advance(EOrvHttpReadProgress Progress)
    {
        switch (Progress)
        {
        case EOrvHttpReadProgress::NeedMore:
            ReadSome();
            return;
        case EOrvHttpReadProgress::HeaderDone:
            OnHeaderDone();
            return;
        case EOrvHttpReadProgress::Complete:
            Dispatch();
            return;
        case EOrvHttpReadProgress::Rejected:
            SendPlain(Reader.GetRejection().Status, Reader.GetRejection().Text, false);
            return;
        }
    }

    void FOrvBeastHttpConnection::OnHeaderDone()
    {
        Phase = EPhase::Body;
        RequestDeadline = std::chrono::steady_clock::now() + Seconds(Shared->Limits.RequestTimeoutSeconds);
        if (!Reader.WantsContinue())
        {
            Advance(Reader.ParseBuffered());
            return;
        }
        // curl and others wait for this before sending a body larger than 1 KiB.
        Stream.expires_at(RequestDeadline);
        asio::async_write(Stream, asio::buffer(ContinueText.data(), ContinueText.size()),
                          [Self = shared_from_this()](const FErrorCode& Error, std::size_t)
                          {
                              if (Error)
                              {
                                  Self->Close();
                                  return;
                              }
                              Self->Advance(Self->Reader.ParseBuffered());
                          });
    }

    void FOrvBeastHttpConnection::Dispatch()
    {
        http::request<http::string_body> Message = Reader.TakeRequest();
        bKeepAlive = Message.keep_alive();
        Phase = EPhase::Handling;

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
        const std::string_view Target = Message.target();
        Request.Path = std::string(FOrvHostHttpRouter::NormalizePath(Target));
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
        const bool bHandled = Route.Handler(Request, MakeCompletion(Serial));
        if (!bHandled && Phase == EPhase::Handling && RequestSerial == Serial)
        {
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
        if (bClosed || Phase != EPhase::Handling || Serial != RequestSerial)
        {
            return;
        }
        if (!Reply)
        {
            SendPlain(500, "The request handler ended without an answer.\n", bKeepAlive);
            return;
        }
        SendResponse(std::move(Reply));
    }

} // namespace OrvWebBridge
