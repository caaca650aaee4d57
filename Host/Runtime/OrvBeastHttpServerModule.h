#pragma once

#include "Core/Ports/IOrvHttpRouter.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

namespace OrvWebBridge
{
    class FOrvHostEventLoop;
    class FOrvHostHttpRouter;

    /** @brief Protection limits of the host's HTTP server. */
    struct FOrvHttpServerLimits
    {
        std::size_t MaxBodyBytes = 8 * 1024 * 1024; ///< a larger request body is answered 413
        std::size_t MaxHeaderBytes = 64 * 1024;     ///< larger request headers are answered 431
        std::size_t MaxConnections = 256;           ///< further connections get a 503 and are closed
        double ReadTimeoutSeconds = 30.0;  ///< idle keep-alive or slow request: the connection is closed
        double WriteTimeoutSeconds = 30.0; ///< a client that does not read its answer is dropped
        std::size_t MaxStreamQueueBytes = 1 << 20; ///< unsent event bytes past this end the stream
        double StreamHeartbeatSeconds = 15.0;      ///< how often an event stream gets a comment line
    };

    /**
     * @brief The host's HTTP server module (the engine's FHttpServerModule) over Boost.Beast.
     *
     * One router per requested port. The listening socket is bound to 127.0.0.1 inside GetHttpRouter, so a
     * port that cannot be had yields a null router; port 0 lets the system choose (see GetBoundPort).
     * Requests are delivered on the event loop; a handler may complete later. Unknown paths or verbs get a
     * 404 at once, unless the router has a fallback handler. Event streams are connections too: they count
     * toward MaxConnections and end when the server stops. StopAllListeners closes every listener and
     * connection; routers stay and rebind on the next GetHttpRouter.
     */
    class FOrvBeastHttpServerModule : public IOrvHttpServerModule
    {
    public:
        explicit FOrvBeastHttpServerModule(FOrvHostEventLoop& Loop, FOrvHttpServerLimits Limits = {});
        ~FOrvBeastHttpServerModule() override;
        FOrvBeastHttpServerModule(const FOrvBeastHttpServerModule&) = delete;
        FOrvBeastHttpServerModule& operator=(const FOrvBeastHttpServerModule&) = delete;

        std::shared_ptr<IOrvHttpRouter> GetHttpRouter(std::uint32_t Port, bool bFailOnBindFailure) override;
        void StartAllListeners() override;
        void StopAllListeners() override;

        /** GetHttpRouter as the host's router, which also binds event streams and a fallback handler. */
        std::shared_ptr<FOrvHostHttpRouter> GetHostHttpRouter(std::uint32_t Port);

        /** The port actually listened on for a requested port (the chosen one for 0); 0 when not bound. */
        std::uint32_t GetBoundPort(std::uint32_t RequestedPort) const;

        /** Why the last bind for RequestedPort failed; empty when it did not. */
        std::string GetBindError(std::uint32_t RequestedPort) const;

        /** Whether the last bind for RequestedPort failed because another socket holds the port. */
        bool WasPortInUse(std::uint32_t RequestedPort) const;

        /** Connections currently open (for tests and diagnostics). */
        std::size_t GetOpenConnectionCount() const;

    private:
        struct FState;
        std::shared_ptr<FState> State;
    };
} // namespace OrvWebBridge
