#pragma once

// Private to the Beast HTTP server module: includes Beast, so only its .cpp files may include it.

#include "Host/Runtime/OrvBeast.h"
#include "Host/Runtime/OrvHttpEventStream.h"

#include <functional>
#include <memory>

namespace OrvWebBridge
{
    class FOrvBeastHttpConnection;

    /**
     * @brief The application's handle on one event stream. The connection does the writing; this only formats
     * events and remembers how the stream ended. A handle dropped while open ends the response like Close,
     * without OnClosed (its owner is gone).
     */
    class FOrvBeastHttpEventStream final : public IOrvHttpEventStream
    {
    public:
        FOrvBeastHttpEventStream(std::weak_ptr<FOrvBeastHttpConnection> InConnection,
                                 OrvBeast::asio::any_io_executor InExecutor);
        ~FOrvBeastHttpEventStream() override;
        FOrvBeastHttpEventStream(const FOrvBeastHttpEventStream&) = delete;
        FOrvBeastHttpEventStream& operator=(const FOrvBeastHttpEventStream&) = delete;

        bool SendEvent(std::string_view EventName, std::string_view Data) override;
        void Close() override;
        bool IsOpen() const override;
        void SetOnClosed(std::function<void()> InOnClosed) override;

        /** The connection ended (peer gone, write failed, queue bound passed, server stopped). */
        void MarkEnded();

        /** The handler refused the stream: it never opened, so OnClosed never runs. */
        void MarkRefused();

    private:
        enum class EState
        {
            Open,
            Ended,
            Refused,
        };

        void PostOnClosed();

        std::weak_ptr<FOrvBeastHttpConnection> Connection;
        OrvBeast::asio::any_io_executor Executor;
        std::function<void()> OnClosed;
        EState State = EState::Open;
    };
} // namespace OrvWebBridge
