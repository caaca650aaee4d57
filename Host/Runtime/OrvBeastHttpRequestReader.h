#pragma once

// Private to the Beast HTTP server module: includes Beast, so only its .cpp files may include it.

#include "Host/Runtime/OrvBeast.h"
#include "Host/Runtime/OrvBeastHttpServerModule.h"

#include <cstddef>
#include <optional>
#include <string>

namespace OrvWebBridge
{
    /** @brief How far the request being read has come. */
    enum class EOrvHttpReadProgress
    {
        NeedMore,   ///< read more bytes: Prepare, read into it, Commit, ParseBuffered
        HeaderDone, ///< the header is in and acceptable; ParseBuffered again for the body
        Complete,   ///< the whole request is in: TakeRequest
        Rejected,   ///< the request cannot be served: answer GetRejection() and close
    };

    /** @brief The answer to a request that is not served. */
    struct FOrvHttpRejection
    {
        unsigned Status = 400;
        std::string Text;
    };

    /**
     * @brief Turns one connection's bytes into requests, one after the other, with Beast's parser.
     *
     * The bytes wait in a buffer of at most 64 KiB, so a header, a chunk line or a trailer can never grow the
     * host's memory past it, nor reach Beast's own 64 KiB field limit, which Beast enforces by throwing. What
     * Beast lets through but could hand a handler a body it was not sent is refused here: folded header
     * lines, transfer codings other than chunked alone, chunked in HTTP/1.0, targets that are not paths.
     * Trailer fields are dropped: they are not headers.
     */
    class FOrvBeastHttpRequestReader
    {
    public:
        static constexpr std::size_t MaxBufferedBytes = 64 * 1024;

        explicit FOrvBeastHttpRequestReader(const FOrvHttpServerLimits& InLimits);

        /** Starts the next request; bytes already read (pipelined) are its beginning. */
        void Begin();

        /** Whether bytes of the request being read are already here. */
        bool HasBufferedBytes() const { return Buffer.size() > 0; }

        /** Where the next read goes (never empty while ParseBuffered asks for more). */
        OrvBeast::asio::mutable_buffer Prepare();

        /** Adds Bytes read into the last Prepare. */
        void Commit(std::size_t Bytes) { Buffer.commit(Bytes); }

        /** Parses what has arrived. */
        EOrvHttpReadProgress ParseBuffered();

        /** Whether the client waits for "100 Continue" before it sends the body. */
        bool WantsContinue() const;

        /** Body bytes read so far, framing included. */
        std::size_t GetBodyBytes() const { return BodyBytes; }

        const FOrvHttpRejection& GetRejection() const { return Rejection; }

        /** The complete request, without trailer fields. */
        OrvBeast::http::request<OrvBeast::http::string_body> TakeRequest();

    private:
        EOrvHttpReadProgress Reject(unsigned Status, std::string Text);
        EOrvHttpReadProgress CheckHeader(std::string_view HeaderBytes);

        FOrvHttpServerLimits Limits;
        OrvBeast::beast::flat_buffer Buffer{MaxBufferedBytes};
        std::optional<OrvBeast::http::request_parser<OrvBeast::http::string_body>> Parser;
        std::size_t HeaderFieldCount = 0;
        std::size_t BodyBytes = 0;
        FOrvHttpRejection Rejection;
    };
} // namespace OrvWebBridge
