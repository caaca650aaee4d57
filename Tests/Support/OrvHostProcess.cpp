#include "Tests/Support/OrvHostProcess.h"

#include <cerrno>
#include <chrono>
#include <csignal>
#include <fcntl.h>
#include <fstream>
#include <iterator>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ;

namespace OrvWebBridge
{
    namespace
    {
        using FClock = std::chrono::steady_clock;

        FClock::time_point DeadlineIn(double Seconds)
        {
            return FClock::now() +
                   std::chrono::duration_cast<FClock::duration>(std::chrono::duration<double>(Seconds));
        }

        double SecondsLeft(FClock::time_point Deadline)
        {
            return std::chrono::duration<double>(Deadline - FClock::now()).count();
        }

        void CloseFd(int& Fd)
        {
            if (Fd >= 0)
            {
                close(Fd);
                Fd = -1;
            }
        }
    } // namespace

    FOrvHostProcess::~FOrvHostProcess()
    {
        CloseFd(Fds[0]);
        if (Pid > 0 && !ExitCode)
        {
            kill(Pid, SIGKILL);
            waitpid(Pid, nullptr, 0);
        }
        CloseFd(Fds[1]);
        unlink(ErrorsPath.c_str());
    }

    bool FOrvHostProcess::Start(const std::string& Executable, const std::vector<std::string>& Args,
                                std::string& Error)
    {
        static int Started = 0;
        ErrorsPath = "/tmp/orv-host-errors-" + std::to_string(getpid()) + "-" + std::to_string(++Started);
        int In[2], Out[2];
        if (pipe2(In, O_CLOEXEC) != 0 || pipe2(Out, O_CLOEXEC) != 0)
        {
            Error = "pipe failed";
            return false;
        }
        posix_spawn_file_actions_t Actions;
        posix_spawn_file_actions_init(&Actions);
        posix_spawn_file_actions_adddup2(&Actions, In[0], 0);
        posix_spawn_file_actions_adddup2(&Actions, Out[1], 1);
        posix_spawn_file_actions_addopen(&Actions, 2, ErrorsPath.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
        std::vector<char*> Argv{const_cast<char*>(Executable.c_str())};
        for (const std::string& Arg : Args)
        {
            Argv.push_back(const_cast<char*>(Arg.c_str()));
        }
        Argv.push_back(nullptr);
        const int Result = posix_spawn(&Pid, Executable.c_str(), &Actions, nullptr, Argv.data(), environ);
        posix_spawn_file_actions_destroy(&Actions);
        close(In[0]);
        close(Out[1]);
        Fds[0] = In[1];
        Fds[1] = Out[0];
        if (Result != 0)
        {
            Pid = -1;
            Error = "cannot start " + Executable + ": errno " + std::to_string(Result);
            return false;
        }
        // A child that died must not kill the test with SIGPIPE when we write to its input.
        std::signal(SIGPIPE, SIG_IGN);
        return true;
    }

    bool FOrvHostProcess::Pump(double TimeoutSeconds)
    {
        pollfd Polled{Fds[1], POLLIN, 0};
        if (Fds[1] >= 0 && poll(&Polled, 1, static_cast<int>(TimeoutSeconds * 1000.0) + 1) > 0)
        {
            char Chunk[4096];
            const ssize_t Read = read(Fds[1], Chunk, sizeof(Chunk));
            if (Read > 0)
            {
                Output.append(Chunk, static_cast<std::size_t>(Read));
            }
            else if (Read == 0 || errno != EINTR)
            {
                CloseFd(Fds[1]);
            }
        }
        return Fds[1] >= 0;
    }

    std::string FOrvHostProcess::GetErrors() const
    {
        std::ifstream Stream(ErrorsPath, std::ios::binary);
        return {std::istreambuf_iterator<char>(Stream), {}};
    }

    std::optional<std::string>
    FOrvHostProcess::WaitForOutputLine(const std::function<bool(const std::string&)>& Match,
                                       double TimeoutSeconds)
    {
        const auto Deadline = DeadlineIn(TimeoutSeconds);
        while (true)
        {
            std::size_t LineEnd;
            while ((LineEnd = Output.find('\n', OutputScanned)) != std::string::npos)
            {
                std::string Line = Output.substr(OutputScanned, LineEnd - OutputScanned);
                OutputScanned = LineEnd + 1;
                if (Match(Line))
                {
                    return Line;
                }
            }
            if (SecondsLeft(Deadline) <= 0 || !Pump(SecondsLeft(Deadline)))
            {
                return std::nullopt;
            }
        }
    }

    bool FOrvHostProcess::Write(std::string_view Text)
    {
        while (!Text.empty())
        {
            const ssize_t Written = write(Fds[0], Text.data(), Text.size());
            if (Written <= 0 && errno != EINTR)
            {
                return false;
            }
            Text.remove_prefix(Written > 0 ? static_cast<std::size_t>(Written) : 0);
        }
        return true;
    }

    void FOrvHostProcess::CloseInput()
    {
        CloseFd(Fds[0]);
    }

    void FOrvHostProcess::Signal(int SignalNumber)
    {
        if (Pid > 0 && !ExitCode)
        {
            kill(Pid, SignalNumber);
        }
    }

    std::optional<int> FOrvHostProcess::WaitForExit(double TimeoutSeconds)
    {
        const auto Deadline = DeadlineIn(TimeoutSeconds);
        while (!ExitCode && Pid > 0 && SecondsLeft(Deadline) > 0)
        {
            int Status = 0;
            if (waitpid(Pid, &Status, WNOHANG) == Pid)
            {
                ExitCode = WIFEXITED(Status) ? WEXITSTATUS(Status) : 128 + WTERMSIG(Status);
            }
            // Reading keeps the child from blocking on a full pipe; short waits notice the exit soon.
            else if (!Pump(0.02))
            {
                usleep(1000);
            }
        }
        // What is still in the pipe belongs to the output too; an ended child's pipe closes soon.
        const auto DrainDeadline = DeadlineIn(1.0);
        while (ExitCode && SecondsLeft(DrainDeadline) > 0 && Pump(0.05))
        {
        }
        return ExitCode;
    }
} // namespace OrvWebBridge
