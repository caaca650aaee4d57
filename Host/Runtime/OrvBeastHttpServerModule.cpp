#include "Host/Runtime/OrvBeastHttpServerModule.h"

#include "Host/Runtime/OrvBeastHttpConnection.h"
#include "Host/Runtime/OrvHostEventLoop.h"

#include <map>
#include <vector>

namespace OrvWebBridge
{
    using namespace OrvBeast;

    namespace
    {
        // After a failed accept (out of descriptors, say), wait a little instead of spinning.
        constexpr double AcceptRetrySeconds = 0.05;

        /** @brief The listening socket and router of one requested port. */
        struct FOrvHttpListener
        {
            explicit FOrvHttpListener(asio::io_context& Context) : Acceptor(Context), RetryTimer(Context) {}

            tcp::acceptor Acceptor;
            asio::steady_timer RetryTimer;
            std::shared_ptr<FOrvHostHttpRouter> Router = std::make_shared<FOrvHostHttpRouter>();
            std::uint32_t BoundPort = 0;
            std::string BindError;
            bool bPortInUse = false;
            bool bAccepting = false;
        };
    } // namespace

    struct FOrvBeastHttpServerModule::FState : std::enable_shared_from_this<FOrvBeastHttpServerModule::FState>
    {
        FState(asio::io_context& Context, const FOrvHttpServerLimits& Limits)
            : Shared(std::make_shared<FOrvBeastHttpShared>(Context, Limits))
        {
        }

        bool Bind(FOrvHttpListener& Listener, std::uint32_t RequestedPort)
        {
            FErrorCode Error;
            const tcp::endpoint Endpoint(asio::ip::address_v4::loopback(),
                                         static_cast<unsigned short>(RequestedPort));
            Listener.Acceptor.open(Endpoint.protocol(), Error);
            if (!Error)
            {
                // Lets a restarted host take its port back while old connections sit in TIME_WAIT; a port
                // that another socket listens on still fails to bind on Linux.
                Listener.Acceptor.set_option(tcp::acceptor::reuse_address(true), Error);
            }
            if (!Error)
            {
                Listener.Acceptor.bind(Endpoint, Error);
            }
            if (!Error)
            {
                Listener.Acceptor.listen(asio::socket_base::max_listen_connections, Error);
            }
            if (Error)
            {
                FErrorCode Ignored;
                Listener.Acceptor.close(Ignored);
                Listener.BindError = Error.message();
                Listener.bPortInUse = Error == asio::error::address_in_use;
                Listener.BoundPort = 0;
                return false;
            }
            Listener.BindError.clear();
            Listener.bPortInUse = false;
            Listener.BoundPort = Listener.Acceptor.local_endpoint(Error).port();
            return true;
        }

        void Accept(const std::shared_ptr<FOrvHttpListener>& Listener)
        {
            if (!Listener->bAccepting || !Listener->Acceptor.is_open())
            {
                return;
            }
            Listener->Acceptor.async_accept(
                [Self = shared_from_this(), Listener](const FErrorCode& Error, tcp::socket Socket)
                {
                    if (!Listener->bAccepting)
                    {
                        return;
                    }
                    if (Error)
                    {
                        if (Error == asio::error::operation_aborted)
                        {
                            return;
                        }
                        Listener->RetryTimer.expires_after(Seconds(AcceptRetrySeconds));
                        Listener->RetryTimer.async_wait(
                            [Self, Listener](const FErrorCode& WaitError)
                            {
                                if (!WaitError)
                                {
                                    Self->Accept(Listener);
                                }
                            });
                        return;
                    }
                    FErrorCode Ignored;
                    Socket.set_option(tcp::no_delay(true), Ignored);
                    auto Connection = std::make_shared<FOrvBeastHttpConnection>(
                        std::move(Socket), Listener->Router, Self->Shared);
                    if (Self->Shared->Connections.size() >= Self->Shared->Limits.MaxConnections)
                    {
                        Connection->Refuse();
                    }
                    else
                    {
                        Connection->Start();
                    }
                    Self->Accept(Listener);
                });
        }

        void CloseAll()
        {
            for (auto& [Port, Listener] : Listeners)
            {
                Listener->bAccepting = false;
                FErrorCode Ignored;
                Listener->Acceptor.close(Ignored);
                Listener->RetryTimer.cancel();
                Listener->BoundPort = 0;
            }
            // Copied first: closing a connection may end it and erase it from the map.
            std::vector<std::shared_ptr<FOrvBeastHttpConnection>> Open;
            for (const auto& [Id, Weak] : Shared->Connections)
            {
                if (auto Connection = Weak.lock())
                {
                    Open.push_back(std::move(Connection));
                }
            }
            for (const auto& Connection : Open)
            {
                Connection->Close();
            }
        }

        std::shared_ptr<FOrvBeastHttpShared> Shared;
        std::map<std::uint32_t, std::shared_ptr<FOrvHttpListener>> Listeners;
    };

    FOrvBeastHttpServerModule::FOrvBeastHttpServerModule(FOrvHostEventLoop& Loop, FOrvHttpServerLimits Limits)
        : State(std::make_shared<FState>(Loop.Context(), Limits))
    {
    }

    FOrvBeastHttpServerModule::~FOrvBeastHttpServerModule()
    {
        State->CloseAll();
    }

    std::shared_ptr<IOrvHttpRouter> FOrvBeastHttpServerModule::GetHttpRouter(std::uint32_t Port, bool)
    {
        return GetHostHttpRouter(Port);
    }

    std::shared_ptr<FOrvHostHttpRouter> FOrvBeastHttpServerModule::GetHostHttpRouter(std::uint32_t Port)
    {
        if (Port > 65535)
        {
            return nullptr;
        }
        auto& Listener = State->Listeners[Port];
        if (!Listener)
        {
            Listener = std::make_shared<FOrvHttpListener>(State->Shared->Context);
        }
        // Bound here rather than in StartAllListeners, so that a port that cannot be had is reported to the
        // caller as a missing router (whatever bFailOnBindFailure says).
        if (!Listener->Acceptor.is_open() && !State->Bind(*Listener, Port))
        {
            return nullptr;
        }
        return Listener->Router;
    }

    void FOrvBeastHttpServerModule::StartAllListeners()
    {
        for (auto& [Port, Listener] : State->Listeners)
        {
            if (Listener->Acceptor.is_open() && !Listener->bAccepting)
            {
                Listener->bAccepting = true;
                State->Accept(Listener);
            }
        }
    }

    void FOrvBeastHttpServerModule::StopAllListeners()
    {
        State->CloseAll();
    }

    std::uint32_t FOrvBeastHttpServerModule::GetBoundPort(std::uint32_t RequestedPort) const
    {
        const auto Found = State->Listeners.find(RequestedPort);
        return Found != State->Listeners.end() && Found->second->Acceptor.is_open() ? Found->second->BoundPort
                                                                                    : 0;
    }

    std::string FOrvBeastHttpServerModule::GetBindError(std::uint32_t RequestedPort) const
    {
        const auto Found = State->Listeners.find(RequestedPort);
        return Found != State->Listeners.end() ? Found->second->BindError : std::string();
    }

    bool FOrvBeastHttpServerModule::WasPortInUse(std::uint32_t RequestedPort) const
    {
        const auto Found = State->Listeners.find(RequestedPort);
        return Found != State->Listeners.end() && Found->second->bPortInUse;
    }

    std::size_t FOrvBeastHttpServerModule::GetOpenConnectionCount() const
    {
        return State->Shared->Connections.size();
    }
} // namespace OrvWebBridge
