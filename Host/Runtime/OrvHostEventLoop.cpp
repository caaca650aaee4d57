#include "Host/Runtime/OrvHostEventLoop.h"

#include "Core/Common/OrvStrings.h"

#include <utility>

#include <boost/asio/executor_work_guard.hpp>
#include <boost/asio/io_context.hpp>
#include <boost/asio/post.hpp>
#include <boost/asio/steady_timer.hpp>

#include <chrono>
#include <cstdint>
#include <exception>
#include <unordered_map>

namespace OrvWebBridge
{
    namespace
    {
        class FOrvLoopGameThread final : public IOrvGameThread
        {
        public:
            explicit FOrvLoopGameThread(boost::asio::io_context& InContext) : Context(InContext) {}

            void Post(std::function<void()> Task) override
            {
                // asio::post never runs the task inside this call, which is what the port promises.
                boost::asio::post(Context,
                                  [Task = std::move(Task)]()
                                  {
                                      if (Task)
                                      {
                                          Task();
                                      }
                                  });
            }

        private:
            boost::asio::io_context& Context;
        };

        class FOrvLoopTimers final : public IOrvTimers
        {
        public:
            explicit FOrvLoopTimers(boost::asio::io_context& InContext) : Context(InContext) {}

            ~FOrvLoopTimers() override
            {
                for (auto& [Id, Timer] : Pending)
                {
                    Timer->cancel();
                }
            }

            FOrvTimerHandle SetTimer(double DelaySeconds, std::function<void()> Callback) override
            {
                const std::uint64_t Id = ++LastId;
                auto Timer = std::make_shared<boost::asio::steady_timer>(Context);
                const double Clamped = DelaySeconds > 0.0 ? DelaySeconds : 0.0;
                Timer->expires_after(std::chrono::duration_cast<std::chrono::steady_clock::duration>(
                    std::chrono::duration<double>(Clamped)));
                Pending.emplace(Id, Timer);
                Timer->async_wait(
                    [this, Id, Callback = std::move(Callback)](const boost::system::error_code& Error)
                    {
                        // A timer that expired just before ClearTimer still has its handler queued, so the
                        // map, not the error code, decides whether it is still wanted.
                        const auto Found = Pending.find(Id);
                        if (Error || Found == Pending.end())
                        {
                            return;
                        }
                        Pending.erase(Found);
                        if (Callback)
                        {
                            Callback();
                        }
                    });
                return FOrvTimerHandle{Id};
            }

            void ClearTimer(FOrvTimerHandle& Handle) override
            {
                const auto Found = Pending.find(Handle.Value);
                if (Found != Pending.end())
                {
                    Found->second->cancel();
                    Pending.erase(Found);
                }
                Handle = FOrvTimerHandle{};
            }

        private:
            boost::asio::io_context& Context;
            std::unordered_map<std::uint64_t, std::shared_ptr<boost::asio::steady_timer>> Pending;
            std::uint64_t LastId = 0;
        };
    } // namespace

    struct FOrvHostEventLoop::FState
    {
        // Declared first so that it is destroyed last: timers and sockets need it while they go.
        boost::asio::io_context Context;
        FOrvLoopGameThread GameThread{Context};
        FOrvLoopTimers Timers{Context};
    };

    FOrvHostEventLoop::FOrvHostEventLoop() : State(std::make_unique<FState>()) {}

    FOrvHostEventLoop::~FOrvHostEventLoop() = default;

    IOrvGameThread& FOrvHostEventLoop::GameThread()
    {
        return State->GameThread;
    }

    IOrvTimers& FOrvHostEventLoop::Timers()
    {
        return State->Timers;
    }

    boost::asio::io_context& FOrvHostEventLoop::Context()
    {
        return State->Context;
    }

    void FOrvHostEventLoop::Run(IOrvLog* Log)
    {
        boost::asio::io_context& Context = State->Context;
        if (Context.stopped())
        {
            Context.restart();
        }
        // Without work the context would return at once; Run is meant to last until Stop.
        auto Guard = boost::asio::make_work_guard(Context);
        while (true)
        {
            try
            {
                Context.run();
                return;
            }
            catch (const std::exception& Error)
            {
                if (!Log)
                {
                    throw;
                }
                // The throwing handler is gone and released what it held; the context carries on.
                Log->Log(EOrvLogCategory::LogTemp, EOrvLogVerbosity::Error,
                         FOrvStrings::Printf("orv-host: a request failed inside the host (%s); still serving",
                                             Error.what()));
            }
        }
    }

    bool FOrvHostEventLoop::RunUntil(const std::function<bool()>& Done, double TimeoutSeconds)
    {
        boost::asio::io_context& Context = State->Context;
        if (Context.stopped())
        {
            Context.restart();
        }
        auto Guard = boost::asio::make_work_guard(Context);
        const auto Deadline = std::chrono::steady_clock::now() +
                              std::chrono::duration_cast<std::chrono::steady_clock::duration>(
                                  std::chrono::duration<double>(TimeoutSeconds > 0.0 ? TimeoutSeconds : 0.0));
        while (!(Done && Done()))
        {
            const auto Now = std::chrono::steady_clock::now();
            if (Now >= Deadline)
            {
                return false;
            }
            Context.run_one_for(Deadline - Now);
            if (Context.stopped())
            {
                // Stop was called from a handler: honour it, but report whether the goal was met.
                return Done && Done();
            }
        }
        return true;
    }

    void FOrvHostEventLoop::Stop()
    {
        State->Context.stop();
    }
} // namespace OrvWebBridge
