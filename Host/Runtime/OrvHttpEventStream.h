#pragma once

#include "Core/Ports/IOrvHttpRouter.h"

#include <functional>
#include <memory>
#include <string_view>

namespace OrvWebBridge
{
    /** @brief A response that stays open and carries server-sent events until either side ends it. Event loop
     * only. */
    class IOrvHttpEventStream
    {
    public:
        virtual ~IOrvHttpEventStream() = default;

        /** Queues one event ("event: Name" line unless Name is empty, one "data: " line per line of Data,
            then an empty line); false once the stream is closed. */
        virtual bool SendEvent(std::string_view EventName, std::string_view Data) = 0;

        /** Ends the response and closes the connection. */
        virtual void Close() = 0;

        /** Whether the stream is still open. */
        virtual bool IsOpen() const = 0;

        /** Sets what runs once when the stream ends, by either side (posted, never inside SendEvent or
         * Close). */
        virtual void SetOnClosed(std::function<void()> OnClosed) = 0;
    };

    /** @brief Accepts a stream (returns null: "200 text/event-stream" headers go out at once and Stream is
       live) or refuses it (returns the response to send instead, e.g. a 403; Stream never opens). */
    using FOrvHttpEventStreamHandler = std::function<std::unique_ptr<FOrvHttpResponse>(
        const FOrvHttpRequest& Request, const std::shared_ptr<IOrvHttpEventStream>& Stream)>;
} // namespace OrvWebBridge
