#include "Host/Runtime/OrvConsoleInput.h"

#include "Host/Runtime/OrvHostEventLoop.h"

#include <utility>

#include <boost/asio/posix/stream_descriptor.hpp>
#include <boost/asio/read_until.hpp>
#include <boost/asio/streambuf.hpp>

#include <sys/stat.h>
#include <unistd.h>

namespace OrvWebBridge
{
    namespace
    {
        // A line longer than this is not a console command; reading stops instead of growing without end.
        constexpr std::size_t MaxLineBytes = 64 * 1024;
    } // namespace

    struct FOrvConsoleInput::FState : std::enable_shared_from_this<FOrvConsoleInput::FState>
    {
        FState(boost::asio::io_context& Context, FOrvLineHandler InOnLine, std::function<void()> InOnEnd)
            : Stream(Context), Buffer(MaxLineBytes), OnLine(std::move(InOnLine)), OnEnd(std::move(InOnEnd))
        {
        }

        void ReadLine()
        {
            boost::asio::async_read_until(
                Stream, Buffer, '\n',
                [Self = shared_from_this()](const boost::system::error_code& Error, std::size_t Length)
                {
                    if (Self->bStopped)
                    {
                        return;
                    }
                    if (Error)
                    {
                        // End of input may leave a last line without its line end.
                        const std::size_t Left = Self->Buffer.size();
                        if (Error == boost::asio::error::eof && Left > 0 && Left < MaxLineBytes)
                        {
                            Self->Deliver(Left);
                        }
                        Self->End();
                        return;
                    }
                    Self->Deliver(Length);
                    if (!Self->bStopped)
                    {
                        Self->ReadLine();
                    }
                });
        }

        void Deliver(std::size_t Length)
        {
            std::string Line(boost::asio::buffers_begin(Buffer.data()),
                             boost::asio::buffers_begin(Buffer.data()) + static_cast<std::ptrdiff_t>(Length));
            Buffer.consume(Length);
            while (!Line.empty() && (Line.back() == '\n' || Line.back() == '\r'))
            {
                Line.pop_back();
            }
            if (OnLine)
            {
                OnLine(Line);
            }
        }

        void End()
        {
            bStopped = true;
            boost::system::error_code Ignored;
            Stream.close(Ignored);
            if (auto Callback = std::move(OnEnd))
            {
                Callback();
            }
        }

        boost::asio::posix::stream_descriptor Stream;
        boost::asio::streambuf Buffer;
        FOrvLineHandler OnLine;
        std::function<void()> OnEnd;
        bool bStopped = false;
    };

    FOrvConsoleInput::FOrvConsoleInput(FOrvHostEventLoop& Loop, FOrvLineHandler InOnLine,
                                       std::function<void()> InOnEnd)
        : State(std::make_shared<FState>(Loop.Context(), std::move(InOnLine), std::move(InOnEnd)))
    {
    }

    FOrvConsoleInput::~FOrvConsoleInput()
    {
        Stop();
    }

    bool FOrvConsoleInput::Start(int Descriptor)
    {
        struct stat Info
        {
        };
        if (fstat(Descriptor, &Info) != 0 || S_ISREG(Info.st_mode) || S_ISDIR(Info.st_mode))
        {
            return false;
        }
        // A character device that is no terminal (/dev/null when run in the background) has no lines.
        if (S_ISCHR(Info.st_mode) && !isatty(Descriptor))
        {
            return false;
        }
        const int Duplicate = dup(Descriptor);
        if (Duplicate < 0)
        {
            return false;
        }
        boost::system::error_code Error;
        State->Stream.assign(Duplicate, Error);
        if (Error)
        {
            close(Duplicate);
            return false;
        }
        State->bStopped = false;
        State->ReadLine();
        return true;
    }

    void FOrvConsoleInput::Stop()
    {
        State->bStopped = true;
        State->OnLine = nullptr;
        State->OnEnd = nullptr;
        boost::system::error_code Ignored;
        if (State->Stream.is_open())
        {
            State->Stream.close(Ignored);
        }
    }
} // namespace OrvWebBridge
