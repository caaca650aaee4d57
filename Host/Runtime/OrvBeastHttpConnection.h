#pragma once

// Private to the Beast HTTP server module: includes Beast, so only its .cpp files may include it.

#include "Host/Runtime/OrvBeast.h"
#include "Host/Runtime/OrvBeastHttpRequestReader.h"
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
        std::unordered_map<std::uint64_t, std::weak_ptr<FOrvBeastHttpConnection>> Connections; ///< open ones
        std::uint64_t LastConnectionId = 0;
        std::uint64_t LastStreamSerial = 0;
    };

    /**
     * @brief One accepted connection: reads requests one after the other, hands each to its route's handler
     * and writes the answer whenever the handler completes, then reads the next (keep-alive). It holds at
     * most one answer: the next request is neither read nor handled before the answer is sent, so a client
     * that never reads holds one answer for SendTimeoutSeconds at most. A request for an event stream that
     * its handler accepts turns the connection into that stream until either side ends it (the stream part
     * lives in OrvBeastHttpEventStream.cpp, the answering half in OrvBeastHttpConnectionAnswer.cpp).
     */
    class FOrvBeastHttpConnection : public std::enable_shared_from_this<FOrvBeastHttpConnection>
    {
    public:
        FOrvBeastHttpConnection(OrvBeast::tcp::socket&& Socket, std::shared_ptr<FOrvHostHttpRouter> InRouter,
                                std::shared_ptr<FOrvBeastHttpShared> InShared);
        ~FOrvBeastHttpConnection();

        /** Takes a slot (a full server first closes the connection idle longest) and starts reading; with
         *  no slot to be had, answers 503 and closes. */
        void Start();

        /** Closes the socket at once; pending operations end and the connection goes away. */
        void Close();

        /** Queues formatted event-stream bytes; false when the stream is ending or closed, or (closing it)
         * when the bytes waiting behind the write in progress would pass the bound. */
        bool QueueStreamBytes(std::string_view Bytes);

        /** Ends the event stream: writes what is queued, then closes. */
        void EndStream();

    private:
        enum class EPhase
        {
            Idle,      ///< waiting for the first byte of a request
            Header,    ///< reading a request's header
            Body,      ///< reading its body
            Handling,  ///< the handler has it
            Sending,   ///< writing the answer
            Lingering, ///< answered and closing
            Streaming, ///< an open event stream
        };

        enum class EStreamPhase
        {
            None,
            Opening, ///< inside the stream handler: events queue, nothing is written yet
            Open,
        };

        using FResponse = OrvBeast::http::response<OrvBeast::http::string_body>;

        static bool CloseLongestIdle(FOrvBeastHttpShared& Shared);
        void Refuse();
        void AwaitRequest();
        void ReadSome();
        void OnRead(const OrvBeast::FErrorCode& Error, std::size_t Bytes);
        void Advance(EOrvHttpReadProgress Progress);
        void OnHeaderDone();
        void Dispatch();
        void DispatchStream(const FOrvHttpEventStreamHandler& Handler, const FOrvHttpRequest& Request);
        void CloseOldestStreamsOverCap();
        void WatchStreamPeer();
        void WriteStream();
        void ArmHeartbeat();
        FOrvHttpResultCallback MakeCompletion(std::uint64_t Serial);
        void Complete(std::uint64_t Serial, std::unique_ptr<FOrvHttpResponse> Response);
        void SendResponse(std::unique_ptr<FOrvHttpResponse> Reply);
        void SendPlain(unsigned Status, std::string_view Text, bool bKeepAlive);
        void Send(FResponse&& Response);
        void WriteSome();
        void OnWritten(const OrvBeast::FErrorCode& Error);
        void LingerAndClose();
        void Drain();

        friend struct FOrvPendingReply;

        OrvBeast::beast::tcp_stream Stream;
        FOrvBeastHttpRequestReader Reader;
        FResponse Response;
        std::optional<OrvBeast::http::response_serializer<OrvBeast::http::string_body>> Serializer;
        std::shared_ptr<FOrvHostHttpRouter> Router;
        std::shared_ptr<FOrvBeastHttpShared> Shared;
        std::array<char, 4096> Scratch{};
        std::size_t DrainedBytes = 0;
        std::uint64_t Id = 0;
        std::uint64_t RequestSerial = 0;
        std::uint64_t StreamSerial = 0;
        std::chrono::steady_clock::time_point IdleSince;
        std::chrono::steady_clock::time_point RequestDeadline; ///< of the header, then the body's grace
        EPhase Phase = EPhase::Idle;
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
