#pragma once

#include "Host/Runtime/OrvBeast.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace OrvWebBridge
{
    /** @brief One HTTP answer as a test sees it. */
    struct FOrvTestHttpReply
    {
        bool bReceived = false; ///< false: no complete answer (see Error)
        std::string Error;
        int Status = 0;
        std::vector<std::pair<std::string, std::string>> Headers;
        std::string Body;

        /** The value of the first header with this name (ignoring case); empty when absent. */
        std::string Header(std::string_view Name) const;
    };

    /**
     * @brief A blocking HTTP/1.1 client over one keep-alive connection. It pumps the given io_context while
     * it waits, so a server on the same context is served by the same calls. Every wait is bounded.
     */
    class FOrvTestHttpClient
    {
    public:
        FOrvTestHttpClient(OrvBeast::asio::io_context& InContext, std::uint16_t InPort)
            : Context(InContext), Port(InPort), Socket(InContext)
        {
        }
        ~FOrvTestHttpClient() { Disconnect(); }

        FOrvTestHttpReply Get(std::string_view Target) { return Send("GET", Target, ""); }
        FOrvTestHttpReply Post(std::string_view Target, std::string_view Body)
        {
            return Send("POST", Target, Body);
        }
        FOrvTestHttpReply Send(std::string_view Method, std::string_view Target, std::string_view Body,
                               double TimeoutSeconds = 10.0);

        /** Writes Bytes as they are and reads one answer; connects first when not connected. */
        FOrvTestHttpReply SendRaw(std::string_view Bytes, double TimeoutSeconds = 10.0);

        /** Reads one more answer without sending (the second of two pipelined requests). */
        FOrvTestHttpReply ReadReply(double TimeoutSeconds = 10.0);

        /** Sends a GET and reads only the answer's status and headers: an event stream's body does not end.
         */
        FOrvTestHttpReply OpenStream(std::string_view Target, double TimeoutSeconds = 10.0);

        /** Reads the open stream on until Needle arrives after the previous match; false on timeout or close.
         */
        bool ReadStreamUntil(std::string_view Needle, double TimeoutSeconds = 10.0);

        /** The open stream's body as read so far. */
        const std::string& GetStreamText() const { return StreamText; }

        /** false when the connection is refused. */
        bool Connect(double TimeoutSeconds = 10.0);

        /** Whether the server closes the connection within the time (whatever it sends first is dropped). */
        bool WaitForServerClose(double TimeoutSeconds);

        void Disconnect();
        bool IsConnected() const { return Socket.is_open(); }

    private:
        /** Starts one asynchronous operation and pumps the context until it ends; on failure or timeout the
         *  connection is closed. */
        template <class FStart> OrvBeast::FErrorCode Run(FStart Start, double TimeoutSeconds);

        OrvBeast::asio::io_context& Context;
        std::uint16_t Port;
        OrvBeast::tcp::socket Socket;
        OrvBeast::beast::flat_buffer Buffer;
        std::string StreamText;
        std::size_t StreamCursor = 0;
    };
} // namespace OrvWebBridge
