#pragma once

// Private to the Beast HTTP server module: includes Beast, so only its .cpp files may include it.

#include "Host/Runtime/OrvBeast.h"
#include "Host/Runtime/OrvBeastHttpServerModule.h"
#include "Host/Runtime/OrvHostHttpRouter.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace OrvWebBridge
{
    class FOrvBeastHttpConnection;
    class FOrvBeastHttpEventStream;

    /** @brief What the module and its connections share; outlives the module while connections close. */
    struct FOrvBeastHttpShared
    {
        explicit FOrvBeastHttpShared(OrvBeast::asio::io_context& InContext,
                                     const FOrvHttpServerLimits& InLimits)
            : Context(InContext), Limits(InLimits)
        {
        }

        OrvBeast::asio::io_context& Context;
        FOrvHttpServerLimits Limits;
        std::unordered_map<std::uint64_t, std::weak_ptr<FOrvBeastHttpConnection>> Connections;
        std::uint64_t LastConnectionId = 0;
    };

    /**
     * @brief One accepted connection: reads requests one after the other, hands each to its route's handler
     * and writes the answer whenever the handler completes, then reads the next (keep-alive). A request for
     * an event stream that its handler accepts turns the connection into that stream until either side ends
     * it (the stream part lives in OrvBeastHttpEventStream.cpp).
     */
    class FOrvBeastHttpConnection : public std::enable_shared_from_this<FOrvBeastHttpConnection>
    {
    public:
        FOrvBeastHttpConnection(OrvBeast::tcp::socket&& Socket, std::shared_ptr<FOrvHostHttpRouter> InRouter,
                                std::shared_ptr<FOrvBeastHttpShared> InShared);
        ~FOrvBeastHttpConnection();

        /** Registers the connection and starts reading. */
        void Start();

        /** Answers 503 and closes: the server has too many connections. */
        void Refuse();

        /** Closes the socket at once; pending operations end and the connection goes away. */
        void Close();

        /** Queues formatted event-stream bytes; false when the stream is ending or closed, or (closing it)
         * when the bytes waiting behind the write in progress would pass the bound. */
        bool QueueStreamBytes(std::string_view Bytes);

        /** Ends the event stream: writes what is queued, then closes. */
        void EndStream();

    private:
        enum class EStreamPhase
        {
            None,
            Opening, ///< inside the stream handler: events queue, nothing is written yet
            Open,
        };

        using FResponse = OrvBeast::http::response<OrvBeast::http::string_body>;

        void ReadHeader();
        void OnHeader(const OrvBeast::FErrorCode& Error);
        void ReadBody();
        void OnBody(const OrvBeast::FErrorCode& Error);
        void Dispatch();
        void DispatchStream(const FOrvHttpEventStreamHandler& Handler, const FOrvHttpRequest& Request);
        void WatchStreamPeer();
        void WriteStream();
        void ArmHeartbeat();
        FOrvHttpResultCallback MakeCompletion(std::uint64_t Serial);
        void Complete(std::uint64_t Serial, std::unique_ptr<FOrvHttpResponse> Response);
        void SendResponse(std::unique_ptr<FOrvHttpResponse> Reply);
        void SendPlain(unsigned Status, std::string_view Text, bool bKeepAlive);
        void Send(FResponse&& Response);
        void OnWritten(const OrvBeast::FErrorCode& Error);
        void LingerAndClose();
        void Drain();
        void RejectReadError(const OrvBeast::FErrorCode& Error);

        friend struct FOrvPendingReply;

        OrvBeast::beast::tcp_stream Stream;
        OrvBeast::beast::flat_buffer Buffer;
        std::optional<OrvBeast::http::request_parser<OrvBeast::http::string_body>> Parser;
        FResponse Response;
        std::shared_ptr<FOrvHostHttpRouter> Router;
        std::shared_ptr<FOrvBeastHttpShared> Shared;
        std::array<char, 4096> Scratch{};
        std::size_t DrainedBytes = 0;
        std::uint64_t Id = 0;
        std::uint64_t RequestSerial = 0;
        bool bAwaitingHandler = false;
        bool bKeepAlive = false;
        bool bClosed = false;

        std::weak_ptr<FOrvBeastHttpEventStream> EventStream;
        std::string StreamQueued;  ///< waiting behind the write in progress
        std::string StreamWriting; ///< the write in progress
        OrvBeast::asio::steady_timer Heartbeat;
        EStreamPhase StreamPhase = EStreamPhase::None;
        bool bStreamEnding = false;
    };
} // namespace OrvWebBridge
