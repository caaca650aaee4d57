#include "Tests/Support/OrvTestHttpClient.h"

#include "Core/Common/OrvStrings.h"
#include "Host/Runtime/OrvBeast.h"

#include <boost/asio/connect.hpp>
#include <boost/asio/executor_work_guard.hpp>
#include <boost/asio/write.hpp>

#include <optional>

using namespace OrvBeast;

struct FOrvTestHttpClient::FState
{
    FState(asio::io_context& InContext, std::uint16_t InPort)
        : Context(InContext), Port(InPort), Socket(InContext)
    {
    }

    /** Pumps the context until bDone or the time is up; false on timeout. */
    bool Pump(const bool& bDone, double TimeoutSeconds)
    {
        if (Context.stopped())
        {
            Context.restart();
        }
        auto Guard = asio::make_work_guard(Context);
        const auto Deadline = std::chrono::steady_clock::now() + Seconds(TimeoutSeconds);
        while (!bDone)
        {
            const auto Now = std::chrono::steady_clock::now();
            if (Now >= Deadline)
            {
                return false;
            }
            Context.run_one_for(Deadline - Now);
            if (Context.stopped())
            {
                Context.restart();
            }
        }
        return true;
    }

    bool Connect(double TimeoutSeconds)
    {
        if (Socket.is_open())
        {
            return true;
        }
        bool bDone = false;
        FErrorCode Result;
        Socket.async_connect(tcp::endpoint(asio::ip::address_v4::loopback(), Port),
                             [&](const FErrorCode& Error)
                             {
                                 Result = Error;
                                 bDone = true;
                             });
        if (!Pump(bDone, TimeoutSeconds) || Result)
        {
            Abandon(bDone);
            return false;
        }
        Buffer.clear();
        return true;
    }

    bool Write(std::string_view Bytes, double TimeoutSeconds, std::string& Error)
    {
        bool bDone = false;
        FErrorCode Result;
        asio::async_write(Socket, asio::buffer(Bytes.data(), Bytes.size()),
                          [&](const FErrorCode& WriteError, std::size_t)
                          {
                              Result = WriteError;
                              bDone = true;
                          });
        if (!Pump(bDone, TimeoutSeconds) || Result)
        {
            Error = bDone ? "write failed: " + Result.message() : "write timed out";
            Abandon(bDone);
            return false;
        }
        return true;
    }

    FOrvTestHttpReply Read(double TimeoutSeconds)
    {
        FOrvTestHttpReply Reply;
        if (!Socket.is_open())
        {
            Reply.Error = "not connected";
            return Reply;
        }
        http::response_parser<http::string_body> Parser;
        Parser.body_limit(256 * 1024 * 1024);
        bool bDone = false;
        FErrorCode Result;
        http::async_read(Socket, Buffer, Parser,
                         [&](const FErrorCode& ReadError, std::size_t)
                         {
                             Result = ReadError;
                             bDone = true;
                         });
        if (!Pump(bDone, TimeoutSeconds) || Result)
        {
            Reply.Error = bDone ? "read failed: " + Result.message() : "read timed out";
            Abandon(bDone);
            return Reply;
        }
        const auto& Message = Parser.get();
        Reply.bReceived = true;
        Reply.Status = static_cast<int>(Message.result_int());
        for (const auto& Field : Message)
        {
            Reply.Headers.emplace_back(std::string(Field.name_string()), std::string(Field.value()));
        }
        Reply.Body = Message.body();
        if (!Message.keep_alive())
        {
            Close();
        }
        return Reply;
    }

    /** Closes after a failure; an operation still pending is cancelled and waited for. */
    void Abandon(bool& bDone)
    {
        Close();
        Pump(bDone, 5.0);
    }

    void Close()
    {
        FErrorCode Ignored;
        Socket.shutdown(tcp::socket::shutdown_both, Ignored);
        Socket.close(Ignored);
        Buffer.clear();
    }

    asio::io_context& Context;
    std::uint16_t Port;
    tcp::socket Socket;
    beast::flat_buffer Buffer;
};

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

bool FOrvTestHttpReply::HasHeader(std::string_view Name) const
{
    for (const auto& [Key, Value] : Headers)
    {
        if (FOrvStrings::EqualsIgnoreCase(Key, Name))
        {
            return true;
        }
    }
    return false;
}

FOrvTestHttpClient::FOrvTestHttpClient(boost::asio::io_context& Context, std::uint16_t Port)
    : State(std::make_unique<FState>(Context, Port))
{
}

FOrvTestHttpClient::~FOrvTestHttpClient()
{
    State->Close();
}

FOrvTestHttpReply FOrvTestHttpClient::Get(std::string_view Target, double TimeoutSeconds)
{
    return Send("GET", Target, {}, {}, TimeoutSeconds);
}

FOrvTestHttpReply FOrvTestHttpClient::Post(std::string_view Target, std::string_view Body,
                                           double TimeoutSeconds)
{
    return Send("POST", Target, Body, {{"Content-Type", "application/json"}}, TimeoutSeconds);
}

FOrvTestHttpReply FOrvTestHttpClient::Send(std::string_view Method, std::string_view Target,
                                           std::string_view Body,
                                           const std::vector<std::pair<std::string, std::string>>& Headers,
                                           double TimeoutSeconds)
{
    std::string Request = std::string(Method) + " " + std::string(Target) +
                          " HTTP/1.1\r\nHost: 127.0.0.1:" + std::to_string(State->Port) + "\r\n";
    for (const auto& [Name, Value] : Headers)
    {
        Request += Name + ": " + Value + "\r\n";
    }
    if (!Body.empty() || Method == "POST")
    {
        Request += "Content-Length: " + std::to_string(Body.size()) + "\r\n";
    }
    Request += "\r\n";
    Request += Body;
    return SendRaw(Request, TimeoutSeconds);
}

FOrvTestHttpReply FOrvTestHttpClient::SendRaw(std::string_view Bytes, double TimeoutSeconds)
{
    FOrvTestHttpReply Reply;
    if (!State->Connect(TimeoutSeconds))
    {
        Reply.Error = "connect failed";
        return Reply;
    }
    if (!State->Write(Bytes, TimeoutSeconds, Reply.Error))
    {
        return Reply;
    }
    return State->Read(TimeoutSeconds);
}

FOrvTestHttpReply FOrvTestHttpClient::ReadReply(double TimeoutSeconds)
{
    return State->Read(TimeoutSeconds);
}

bool FOrvTestHttpClient::Connect(double TimeoutSeconds)
{
    return State->Connect(TimeoutSeconds);
}

bool FOrvTestHttpClient::WaitForServerClose(double TimeoutSeconds)
{
    if (!State->Socket.is_open())
    {
        return true;
    }
    bool bDone = false;
    FErrorCode Result;
    std::array<char, 4096> Scratch{};
    // Whatever the server still sends (an answer) is read away; only the end of the stream counts.
    std::function<void()> ReadMore;
    ReadMore = [&]()
    {
        State->Socket.async_read_some(asio::buffer(Scratch),
                                      [&](const FErrorCode& Error, std::size_t)
                                      {
                                          if (Error)
                                          {
                                              Result = Error;
                                              bDone = true;
                                              return;
                                          }
                                          ReadMore();
                                      });
    };
    ReadMore();
    const bool bFinished = State->Pump(bDone, TimeoutSeconds);
    if (!bFinished)
    {
        State->Abandon(bDone);
        return false;
    }
    State->Close();
    return true;
}

void FOrvTestHttpClient::Disconnect()
{
    State->Close();
}

bool FOrvTestHttpClient::IsConnected() const
{
    return State->Socket.is_open();
}
