#include "Host/Runtime/OrvBeastHttpRequestReader.h"

#include "Core/Common/OrvStrings.h"

#include <algorithm>
#include <exception>
#include <iterator>

namespace OrvWebBridge
{
    using namespace OrvBeast;

    FOrvBeastHttpRequestReader::FOrvBeastHttpRequestReader(const FOrvHttpServerLimits& InLimits)
        : Limits(InLimits)
    {
    }

    void FOrvBeastHttpRequestReader::Begin()
    {
        Parser.emplace();
        Parser->body_limit(Limits.MaxBodyBytes);
        Parser->header_limit(static_cast<std::uint32_t>(std::min(Limits.MaxHeaderBytes, MaxBufferedBytes)));
        HeaderFieldCount = 0;
        BodyBytes = 0;
        Rejection = {};
        if (Buffer.size() == 0 && Buffer.capacity() > 4096)
        {
            // An idle keep-alive connection should not sit on the buffer of its last large request.
            Buffer.shrink_to_fit();
        }
    }

    asio::mutable_buffer FOrvBeastHttpRequestReader::Prepare()
    {
        const std::size_t Room = Buffer.max_size() - Buffer.size();
        // Headers arrive in small reads; a body in reads as large as what is still to come allows.
        std::size_t Wanted = std::max<std::size_t>(512, Buffer.capacity() - Buffer.size());
        if (Parser->is_header_done())
        {
            Wanted = std::max<std::size_t>(Wanted, Parser->content_length_remaining().value_or(Room));
        }
        return Buffer.prepare(std::min(Wanted, Room));
    }

    EOrvHttpReadProgress FOrvBeastHttpRequestReader::ParseBuffered()
    {
        while (Buffer.size() > 0 && !Parser->is_done())
        {
            const bool bHadHeader = Parser->is_header_done();
            FErrorCode Error;
            std::size_t Used = 0;
            try
            {
                Used = Parser->put(Buffer.data(), Error);
            }
            catch (const std::exception&)
            {
                // Beast's field limits throw; the bounded buffer keeps them out of reach, this keeps a future
                // Beast from turning one bad request into a dead host.
                return Reject(400, "Bad request.\n");
            }
            const std::string_view Parsed(static_cast<const char*>(Buffer.data().data()), Used);
            if (bHadHeader)
            {
                BodyBytes += Used;
            }
            if (Error == http::error::body_limit)
            {
                return Reject(413, FOrvStrings::Printf("Request body too large: the limit is %zu bytes.\n",
                                                       Limits.MaxBodyBytes));
            }
            if (Error == http::error::header_limit)
            {
                return Reject(431, "Request header fields too large.\n");
            }
            if (Error && Error != http::error::need_more)
            {
                return Reject(400, "Bad request: " + Error.message() + ".\n");
            }
            const EOrvHttpReadProgress HeaderVerdict = !bHadHeader && Parser->is_header_done()
                                                           ? CheckHeader(Parsed)
                                                           : EOrvHttpReadProgress::NeedMore;
            Buffer.consume(Used);
            if (HeaderVerdict != EOrvHttpReadProgress::NeedMore)
            {
                return HeaderVerdict;
            }
            if (Error)
            {
                break;
            }
        }
        if (Parser->is_done())
        {
            return EOrvHttpReadProgress::Complete;
        }
        if (Buffer.size() == Buffer.max_size())
        {
            return Parser->is_header_done()
                       ? Reject(400, "Bad request: a chunk line or the trailer is too long.\n")
                       : Reject(431, "Request header fields too large.\n");
        }
        return EOrvHttpReadProgress::NeedMore;
    }

    EOrvHttpReadProgress FOrvBeastHttpRequestReader::CheckHeader(std::string_view HeaderBytes)
    {
        // Beast joins a folded line to the one before; a proxy in front may read it differently.
        if (HeaderBytes.find("\n ") != std::string_view::npos ||
            HeaderBytes.find("\n\t") != std::string_view::npos)
        {
            return Reject(400, "Bad request: folded header lines are not accepted.\n");
        }
        const auto& Header = Parser->get();
        if (Header.target().empty() || Header.target().front() != '/')
        {
            return Reject(400, "Bad request: the target must be a path.\n");
        }
        // Beast reads a body as chunked only when chunked is the last coding and reads none otherwise, which
        // would leave the real body to be read as the next request.
        const auto Codings = Header.find(http::field::transfer_encoding);
        if (Codings != Header.end())
        {
            if (Header.version() < 11)
            {
                return Reject(400, "Bad request: Transfer-Encoding in an HTTP/1.0 request.\n");
            }
            if (!FOrvStrings::EqualsIgnoreCase(FOrvStrings::Trim(Codings->value()), "chunked"))
            {
                return Parser->chunked()
                           ? Reject(501, "Transfer-Encoding not supported: send the body as is or chunked.\n")
                           : Reject(400, "Bad request: the body's length cannot be known.\n");
            }
        }
        HeaderFieldCount = static_cast<std::size_t>(std::distance(Header.begin(), Header.end()));
        return EOrvHttpReadProgress::HeaderDone;
    }

    bool FOrvBeastHttpRequestReader::WantsContinue() const
    {
        const auto& Header = Parser->get();
        const auto Expect = Header.find(http::field::expect);
        return Expect != Header.end() && FOrvStrings::EqualsIgnoreCase(Expect->value(), "100-continue") &&
               !Parser->is_done() && Buffer.size() == 0;
    }

    http::request<http::string_body> FOrvBeastHttpRequestReader::TakeRequest()
    {
        http::request<http::string_body> Message = Parser->release();
        auto Trailer = Message.begin();
        std::advance(Trailer, static_cast<std::ptrdiff_t>(HeaderFieldCount));
        while (Trailer != Message.end())
        {
            Trailer = Message.erase(Trailer);
        }
        Parser.reset();
        return Message;
    }

    EOrvHttpReadProgress FOrvBeastHttpRequestReader::Reject(unsigned Status, std::string Text)
    {
        Rejection = FOrvHttpRejection{Status, std::move(Text)};
        return EOrvHttpReadProgress::Rejected;
    }
} // namespace OrvWebBridge
