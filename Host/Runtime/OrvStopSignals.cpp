#include "Host/Runtime/OrvStopSignals.h"

#include "Host/Runtime/OrvHostEventLoop.h"

#include <utility>

#include <boost/asio/signal_set.hpp>

#include <csignal>

namespace OrvWebBridge
{
    struct FOrvStopSignals::FState : std::enable_shared_from_this<FOrvStopSignals::FState>
    {
        FState(boost::asio::io_context& Context, std::function<void(int)> InOnSignal)
            : Signals(Context), OnSignal(std::move(InOnSignal))
        {
            // The error_code forms: a signal that cannot be watched leaves Ctrl+C to its default, it does not
            // stop the host from starting.
            boost::system::error_code Ignored;
            Signals.add(SIGINT, Ignored);
            Signals.add(SIGTERM, Ignored);
        }

        void Wait()
        {
            Signals.async_wait(
                [Weak = weak_from_this()](const boost::system::error_code& Error, int Signal)
                {
                    const auto Self = Weak.lock();
                    if (Error || !Self)
                    {
                        return;
                    }
                    if (Self->OnSignal)
                    {
                        Self->OnSignal(Signal);
                    }
                    Self->Wait();
                });
        }

        boost::asio::signal_set Signals;
        std::function<void(int)> OnSignal;
    };

    FOrvStopSignals::FOrvStopSignals(FOrvHostEventLoop& Loop, std::function<void(int Signal)> OnSignal)
        : State(std::make_shared<FState>(Loop.Context(), std::move(OnSignal)))
    {
        State->Wait();
    }

    FOrvStopSignals::~FOrvStopSignals()
    {
        State->OnSignal = nullptr;
        boost::system::error_code Ignored;
        State->Signals.cancel(Ignored);
        State->Signals.clear(Ignored);
    }
} // namespace OrvWebBridge
