#include "Host/Runtime/OrvBeastHttpConnection.h"

// The answering half of a connection: answers, refusals, and the close after an answer that ends it.

namespace OrvWebBridge
{
    using namespace OrvBeast;

    namespace
    {
        // After an answer that ends the connection, unread request bytes would make the kernel reset the
        // connection and the client could lose the answer; read them away for at most this long.
        constexpr double LingerSeconds = 2.0;
    } // namespace

    void FOrvBeastHttpConnection::Refuse()
    {
        FResponse Message;
        Message.version(11);
        Message.result(503);
        Message.set(http::field::content_type, "text/plain");
        Message.set(http::field::retry_after, "1");
        Message.body() = "Too many connections; try again later.\n";
        Message.keep_alive(false);
        Message.prepare_payload();
        Send(std::move(Message));
    }

    void FOrvBeastHttpConnection::SendResponse(std::unique_ptr<FOrvHttpResponse> Reply)
    {
        // A line break would let a handler's value forge headers, and Beast throws on a field of 64 KiB.
        const auto IsSafe = [](std::string_view Name, std::string_view Value)
        {
            return !Name.empty() && Name.size() + Value.size() <= 16 * 1024 &&
                   Name.find_first_of(" \t\r\n:\0", 0, 6) == std::string_view::npos &&
                   Value.find_first_of("\r\n\0", 0, 3) == std::string_view::npos;
        };
        bool bSafe = IsSafe("Content-Type", Reply->ContentType);
        for (const auto& [Name, Value] : Reply->Headers)
        {
            bSafe = bSafe && IsSafe(Name, Value);
        }
        if (!bSafe)
        {
            SendPlain(500, "The request handler gave an invalid header.\n", bKeepAlive);
            return;
        }
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
        Phase = EPhase::Sending;
        Response = std::move(Message);
        Serializer.emplace(Response);
        WriteSome();
    }

    void FOrvBeastHttpConnection::WriteSome()
    {
        // Each write must take some bytes within the time: a reader that stops is dropped, one that reads
        // slowly is not.
        Stream.expires_after(Seconds(Shared->Limits.SendTimeoutSeconds));
        http::async_write_some(Stream, *Serializer,
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
        if (!Serializer->is_done())
        {
            WriteSome();
            return;
        }
        Serializer.reset();
        if (!Response.keep_alive())
        {
            LingerAndClose();
            return;
        }
        Response = {};
        AwaitRequest();
    }

    void FOrvBeastHttpConnection::LingerAndClose()
    {
        if (bClosed)
        {
            return;
        }
        Phase = EPhase::Lingering;
        IdleSince = std::chrono::steady_clock::now();
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
                                   if (Error || Self->DrainedBytes > Self->Shared->Limits.MaxBodyBytes)
                                   {
                                       Self->Close();
                                       return;
                                   }
                                   Self->Drain();
                               });
    }
} // namespace OrvWebBridge
