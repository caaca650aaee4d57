#include "Tests/Support/OrvTestHttpClient.h"

#include "Core/Common/OrvStrings.h"

#include <boost/asio/executor_work_guard.hpp>
#include <boost/asio/read.hpp>
#include <boost/asio/write.hpp>

#include <array>

namespace OrvWebBridge
{
    using namespace OrvBeast;

    std::string FOrvTestHttpReply::Header(std::string_view Name) const
    {
        for (const auto& [Key, Value] : Headers)
        {
            if (FOrvStrings::EqualsIgnoreCase(Key, Name))
            {
                return Value;
            }
        }
        return {};
    }

    namespace
    {
        /** The status and headers of an answer read. */
        template <class FMessage> void ReadHead(const FMessage& Message, FOrvTestHttpReply& Reply)
        {
            Reply.bReceived = true;
            Reply.Status = static_cast<int>(Message.result_int());
            for (const auto& Field : Message)
            {
                Reply.Headers.emplace_back(std::string(Field.name_string()), std::string(Field.value()));
            }
        }
    } // namespace

    template <class FStart> FErrorCode FOrvTestHttpClient::Run(FStart Start, double TimeoutSeconds)
    {
        bool bDone = false;
        FErrorCode Result;
        Start(
            [&](const FErrorCode& Error, auto&&...)
            {
                Result = Error;
                bDone = true;
            });
        const auto Pump = [&](double Seconds)
        {
            auto Guard = asio::make_work_guard(Context);
            const auto Deadline = std::chrono::steady_clock::now() + OrvBeast::Seconds(Seconds);
            while (!bDone && std::chrono::steady_clock::now() < Deadline)
            {
                Context.restart();
                Context.run_one_until(Deadline);
            }
            return bDone;
        };
        if (!Pump(TimeoutSeconds))
        {
            Disconnect();
            Pump(5.0);
            return asio::error::timed_out;
        }
        if (Result)
        {
            Disconnect();
        }
        return Result;
    }

    bool FOrvTestHttpClient::Connect(double TimeoutSeconds)
    {
        if (Socket.is_open())
        {
            return true;
        }
        Buffer.clear();
        const tcp::endpoint Endpoint(asio::ip::address_v4::loopback(), Port);
        return !Run([&](auto Done) { Socket.async_connect(Endpoint, Done); }, TimeoutSeconds);
    }

    FOrvTestHttpReply FOrvTestHttpClient::Send(std::string_view Method, std::string_view Target,
                                               std::string_view Body, double TimeoutSeconds)
    {
        std::string Request =
            std::string(Method) + " " + std::string(Target) + " HTTP/1.1\r\nHost: 127.0.0.1\r\n";
        if (Method == "POST")
        {
            Request +=
                "Content-Type: application/json\r\nContent-Length: " + std::to_string(Body.size()) + "\r\n";
        }
        return SendRaw(Request + "\r\n" + std::string(Body), TimeoutSeconds);
    }

    FOrvTestHttpReply FOrvTestHttpClient::SendRaw(std::string_view Bytes, double TimeoutSeconds)
    {
        FOrvTestHttpReply Reply;
        if (!WriteRaw(Bytes, TimeoutSeconds))
        {
            Reply.Error = "connect or write failed";
            return Reply;
        }
        return ReadReply(TimeoutSeconds);
    }

    bool FOrvTestHttpClient::WriteRaw(std::string_view Bytes, double TimeoutSeconds)
    {
        const auto Data = asio::buffer(Bytes.data(), Bytes.size());
        return Connect(TimeoutSeconds) &&
               !Run([&](auto Done) { asio::async_write(Socket, Data, Done); }, TimeoutSeconds);
    }

    bool FOrvTestHttpClient::HasServerClosed()
    {
        if (!Socket.is_open())
        {
            return true;
        }
        // Lets a server on the same context run first, then looks without blocking.
        Context.restart();
        Context.poll();
        FErrorCode Error;
        Socket.non_blocking(true, Error);
        while (!Error)
        {
            const std::size_t Read = Socket.read_some(Buffer.prepare(4096), Error);
            Buffer.commit(Read);
        }
        const bool bClosed = Error != asio::error::would_block && Error != asio::error::try_again;
        Socket.non_blocking(false, Error);
        return bClosed;
    }

    FOrvTestHttpReply FOrvTestHttpClient::ReadReply(double TimeoutSeconds)
    {
        FOrvTestHttpReply Reply;
        http::response_parser<http::string_body> Parser;
        Parser.body_limit(256 * 1024 * 1024);
        if (const FErrorCode Error =
                Run([&](auto Done) { http::async_read(Socket, Buffer, Parser, Done); }, TimeoutSeconds))
        {
            Reply.Error = "read: " + Error.message();
            return Reply;
        }
        const auto& Message = Parser.get();
        ReadHead(Message, Reply);
        Reply.Body = Message.body();
        if (!Message.keep_alive())
        {
            Disconnect();
        }
        return Reply;
    }

    FOrvTestHttpReply FOrvTestHttpClient::OpenStream(std::string_view Target, double TimeoutSeconds)
    {
        FOrvTestHttpReply Reply;
        if (!WriteRaw("GET " + std::string(Target) + " HTTP/1.1\r\nHost: 127.0.0.1\r\n\r\n", TimeoutSeconds))
        {
            Reply.Error = "could not send the request";
            return Reply;
        }
        http::response_parser<http::empty_body> Parser;
        if (const FErrorCode Error = Run(
                [&](auto Done) { http::async_read_header(Socket, Buffer, Parser, Done); }, TimeoutSeconds))
        {
            Reply.Error = "read: " + Error.message();
            return Reply;
        }
        ReadHead(Parser.get(), Reply);
        // Whatever came with the header is the start of the body.
        StreamText = beast::buffers_to_string(Buffer.data());
        StreamCursor = 0;
        Buffer.consume(Buffer.size());
        return Reply;
    }

    bool FOrvTestHttpClient::ReadStreamUntil(std::string_view Needle, double TimeoutSeconds)
    {
        const auto Deadline = std::chrono::steady_clock::now() + OrvBeast::Seconds(TimeoutSeconds);
        std::array<char, 4096> Chunk{};
        while (true)
        {
            if (const std::size_t Found = StreamText.find(Needle, StreamCursor); Found != std::string::npos)
            {
                StreamCursor = Found + Needle.size();
                return true;
            }
            const double Left =
                std::chrono::duration<double>(Deadline - std::chrono::steady_clock::now()).count();
            std::size_t Read = 0;
            if (Left <= 0.0 || !Socket.is_open() ||
                Run(
                    [&](auto Done)
                    {
                        Socket.async_read_some(
                            asio::buffer(Chunk),
                            [&Read, Done](const FErrorCode& Error, std::size_t Count) mutable
                            {
                                Read = Count;
                                Done(Error);
                            });
                    },
                    Left))
            {
                return false;
            }
            StreamText.append(Chunk.data(), Read);
        }
    }

    bool FOrvTestHttpClient::WaitForServerClose(double TimeoutSeconds)
    {
        std::string Dropped;
        // Reads until the stream ends: any error (end of stream, reset) means closed, a timeout does not.
        return Run([&](auto Done) { asio::async_read(Socket, asio::dynamic_buffer(Dropped), Done); },
                   TimeoutSeconds) != asio::error::timed_out;
    }

    void FOrvTestHttpClient::Disconnect()
    {
        FErrorCode Ignored;
        Socket.shutdown(tcp::socket::shutdown_both, Ignored);
        Socket.close(Ignored);
    }
} // namespace OrvWebBridge
