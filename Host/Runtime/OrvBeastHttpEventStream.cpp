#include "Host/Runtime/OrvBeastHttpEventStream.h"

#include "Host/Runtime/OrvBeastHttpConnection.h"

namespace OrvWebBridge
{
    using namespace OrvBeast;

    namespace
    {
        // No Content-Length and no chunking: the body ends when the connection closes, which both EventSource
        // and curl read live.
        constexpr std::string_view StreamHeader = "HTTP/1.1 200 OK\r\n"
                                                  "Content-Type: text/event-stream\r\n"
                                                  "Cache-Control: no-cache\r\n"
                                                  "Connection: close\r\n\r\n";

        // A comment line: EventSource ignores it, but writing it shows a dead peer and keeps proxies open.
        constexpr std::string_view HeartbeatText = ": \n\n";

        std::string FormatEvent(std::string_view EventName, std::string_view Data)
        {
            std::string Text;
            Text.reserve(EventName.size() + Data.size() + 16);
            if (!EventName.empty())
            {
                Text += "event: ";
                // A line break in the name would end the field early and break the stream's framing.
                for (const char Character : EventName)
                {
                    if (Character != '\r' && Character != '\n')
                    {
                        Text += Character;
                    }
                }
                Text += '\n';
            }
            // EventSource ends a line at CRLF, CR or LF; each line of Data becomes its own data field.
            std::size_t Start = 0;
            while (true)
            {
                const std::size_t End = Data.find_first_of("\r\n", Start);
                Text += "data: ";
                Text += Data.substr(Start, End == std::string_view::npos ? End : End - Start);
                Text += '\n';
                if (End == std::string_view::npos)
                {
                    break;
                }
                Start = End + (Data.compare(End, 2, "\r\n") == 0 ? 2 : 1);
            }
            Text += '\n';
            return Text;
        }
    } // namespace

    FOrvBeastHttpEventStream::FOrvBeastHttpEventStream(std::weak_ptr<FOrvBeastHttpConnection> InConnection,
                                                       asio::any_io_executor InExecutor)
        : Connection(std::move(InConnection)), Executor(std::move(InExecutor))
    {
    }

    FOrvBeastHttpEventStream::~FOrvBeastHttpEventStream()
    {
        if (State == EState::Open)
        {
            if (const auto Target = Connection.lock())
            {
                Target->EndStream();
            }
        }
    }

    bool FOrvBeastHttpEventStream::SendEvent(std::string_view EventName, std::string_view Data)
    {
        const auto Target = IsOpen() ? Connection.lock() : nullptr;
        return Target && Target->QueueStreamBytes(FormatEvent(EventName, Data));
    }

    void FOrvBeastHttpEventStream::Close()
    {
        if (State != EState::Open)
        {
            return;
        }
        MarkEnded();
        if (const auto Target = Connection.lock())
        {
            Target->EndStream();
        }
    }

    bool FOrvBeastHttpEventStream::IsOpen() const
    {
        return State == EState::Open && !Connection.expired();
    }

    void FOrvBeastHttpEventStream::SetOnClosed(std::function<void()> InOnClosed)
    {
        if (State == EState::Refused)
        {
            return;
        }
        OnClosed = std::move(InOnClosed);
        if (State == EState::Ended)
        {
            PostOnClosed();
        }
    }

    void FOrvBeastHttpEventStream::MarkEnded()
    {
        if (State == EState::Open)
        {
            State = EState::Ended;
            PostOnClosed();
        }
    }

    void FOrvBeastHttpEventStream::MarkRefused()
    {
        if (State == EState::Open)
        {
            State = EState::Refused;
            OnClosed = nullptr;
        }
    }

    void FOrvBeastHttpEventStream::PostOnClosed()
    {
        if (OnClosed)
        {
            asio::post(Executor, [Run = std::move(OnClosed)]() { Run(); });
            OnClosed = nullptr;
        }
    }

    // The connection's event-stream mode.

    void FOrvBeastHttpConnection::DispatchStream(const FOrvHttpEventStreamHandler& Handler,
                                                 const FOrvHttpRequest& Request)
    {
        auto Handle = std::make_shared<FOrvBeastHttpEventStream>(weak_from_this(), Stream.get_executor());
        EventStream = Handle;
        StreamPhase = EStreamPhase::Opening;
        std::unique_ptr<FOrvHttpResponse> Refusal = Handler(Request, Handle);
        if (bClosed)
        {
            return;
        }
        if (Refusal)
        {
            Handle->MarkRefused();
            EventStream.reset();
            StreamQueued.clear();
            StreamPhase = EStreamPhase::None;
            bStreamEnding = false;
            SendResponse(std::move(Refusal));
            return;
        }
        StreamPhase = EStreamPhase::Open;
        StreamQueued.insert(0, StreamHeader);
        WatchStreamPeer();
        if (!bStreamEnding)
        {
            ArmHeartbeat();
        }
        WriteStream();
    }

    bool FOrvBeastHttpConnection::QueueStreamBytes(std::string_view Bytes)
    {
        if (bClosed || StreamPhase == EStreamPhase::None || bStreamEnding)
        {
            return false;
        }
        // Only bytes behind the write in progress count, so one large event still reaches a client that keeps
        // up; a client that stopped reading is dropped instead of growing the host's memory.
        if (!StreamQueued.empty() && StreamQueued.size() + Bytes.size() > Shared->Limits.MaxStreamQueueBytes)
        {
            Close();
            return false;
        }
        StreamQueued.append(Bytes);
        if (StreamPhase == EStreamPhase::Open)
        {
            WriteStream();
        }
        return true;
    }

    void FOrvBeastHttpConnection::EndStream()
    {
        if (bClosed || StreamPhase == EStreamPhase::None || bStreamEnding)
        {
            return;
        }
        bStreamEnding = true;
        Heartbeat.cancel();
        if (StreamPhase == EStreamPhase::Open)
        {
            WriteStream();
        }
    }

    void FOrvBeastHttpConnection::WatchStreamPeer()
    {
        // Nothing the client sends matters now, but its end does. The read never times out: a write may have
        // set the read deadline while no read was pending, so it is cleared each time.
        Stream.expires_never();
        Stream.async_read_some(asio::buffer(Scratch),
                               [Self = shared_from_this()](const FErrorCode& Error, std::size_t)
                               {
                                   if (Error)
                                   {
                                       Self->Close();
                                       return;
                                   }
                                   Self->WatchStreamPeer();
                               });
    }

    void FOrvBeastHttpConnection::WriteStream()
    {
        if (bClosed || !StreamWriting.empty())
        {
            return;
        }
        if (StreamQueued.empty())
        {
            if (bStreamEnding)
            {
                Close();
            }
            return;
        }
        std::swap(StreamWriting, StreamQueued);
        Stream.expires_after(Seconds(Shared->Limits.WriteTimeoutSeconds));
        asio::async_write(Stream, asio::buffer(StreamWriting),
                          [Self = shared_from_this()](const FErrorCode& Error, std::size_t)
                          {
                              if (Error)
                              {
                                  Self->Close();
                                  return;
                              }
                              Self->StreamWriting.clear();
                              Self->WriteStream();
                          });
    }

    void FOrvBeastHttpConnection::ArmHeartbeat()
    {
        Heartbeat.expires_after(Seconds(Shared->Limits.StreamHeartbeatSeconds));
        Heartbeat.async_wait(
            [Self = shared_from_this()](const FErrorCode& Error)
            {
                if (!Error && Self->QueueStreamBytes(HeartbeatText))
                {
                    Self->ArmHeartbeat();
                }
            });
    }
} // namespace OrvWebBridge
