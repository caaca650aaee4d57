#include "Tests/Support/OrvHostProcess.h"

#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ;

namespace
{
    using FClock = std::chrono::steady_clock;

    double SecondsLeft(FClock::time_point Deadline)
    {
        return std::chrono::duration<double>(Deadline - FClock::now()).count();
    }

    FClock::time_point DeadlineIn(double Seconds)
    {
        return FClock::now() +
               std::chrono::duration_cast<FClock::duration>(std::chrono::duration<double>(Seconds));
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
    CloseFd(InputFd);
    if (Pid > 0 && !ExitCode)
    {
        kill(Pid, SIGKILL);
        int Status = 0;
        waitpid(Pid, &Status, 0);
    }
    CloseFd(OutputFd);
    CloseFd(ErrorFd);
}

bool FOrvHostProcess::Start(const std::string& Executable, const std::vector<std::string>& Args,
                            std::string& Error)
{
    int InPipe[2];
    int OutPipe[2];
    int ErrPipe[2];
    if (pipe2(InPipe, O_CLOEXEC) != 0 || pipe2(OutPipe, O_CLOEXEC) != 0 || pipe2(ErrPipe, O_CLOEXEC) != 0)
    {
        Error = "pipe failed";
        return false;
    }
    posix_spawn_file_actions_t Actions;
    posix_spawn_file_actions_init(&Actions);
    posix_spawn_file_actions_adddup2(&Actions, InPipe[0], STDIN_FILENO);
    posix_spawn_file_actions_adddup2(&Actions, OutPipe[1], STDOUT_FILENO);
    posix_spawn_file_actions_adddup2(&Actions, ErrPipe[1], STDERR_FILENO);

    std::vector<std::string> Words{Executable};
    Words.insert(Words.end(), Args.begin(), Args.end());
    std::vector<char*> Argv;
    for (std::string& Word : Words)
    {
        Argv.push_back(Word.data());
    }
    Argv.push_back(nullptr);
    const int Result = posix_spawn(&Pid, Executable.c_str(), &Actions, nullptr, Argv.data(), environ);
    posix_spawn_file_actions_destroy(&Actions);
    close(InPipe[0]);
    close(OutPipe[1]);
    close(ErrPipe[1]);
    InputFd = InPipe[1];
    OutputFd = OutPipe[0];
    ErrorFd = ErrPipe[0];
    if (Result != 0)
    {
        Pid = -1;
        Error = "cannot start " + Executable + ": errno " + std::to_string(Result);
        return false;
    }
    // A child that dies must not kill the test with SIGPIPE when we write to its input.
    std::signal(SIGPIPE, SIG_IGN);
    return true;
}

bool FOrvHostProcess::Pump(double TimeoutSeconds)
{
    pollfd Fds[2] = {{OutputFd, POLLIN, 0}, {ErrorFd, POLLIN, 0}};
    if (OutputFd < 0 && ErrorFd < 0)
    {
        return false;
    }
    const int Millis = TimeoutSeconds > 0 ? static_cast<int>(TimeoutSeconds * 1000.0) + 1 : 0;
    const int Ready = poll(Fds, 2, Millis);
    if (Ready <= 0)
    {
        return true;
    }
    char Chunk[4096];
    int* Descriptors[2] = {&OutputFd, &ErrorFd};
    std::string* Sinks[2] = {&Output, &Errors};
    for (int Index = 0; Index < 2; ++Index)
    {
        if (*Descriptors[Index] < 0 || Fds[Index].revents == 0)
        {
            continue;
        }
        const ssize_t Read = read(*Descriptors[Index], Chunk, sizeof(Chunk));
        if (Read > 0)
        {
            Sinks[Index]->append(Chunk, static_cast<std::size_t>(Read));
        }
        else if (Read == 0 || errno != EINTR)
        {
            CloseFd(*Descriptors[Index]);
        }
    }
    return OutputFd >= 0 || ErrorFd >= 0;
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
        const double Left = SecondsLeft(Deadline);
        if (Left <= 0 || !Pump(Left))
        {
            return std::nullopt;
        }
    }
}

bool FOrvHostProcess::WaitForErrorText(std::string_view Text, double TimeoutSeconds)
{
    const auto Deadline = DeadlineIn(TimeoutSeconds);
    while (Errors.find(Text) == std::string::npos)
    {
        const double Left = SecondsLeft(Deadline);
        if (Left <= 0 || !Pump(Left))
        {
            return Errors.find(Text) != std::string::npos;
        }
    }
    return true;
}

bool FOrvHostProcess::Write(std::string_view Text)
{
    while (!Text.empty() && InputFd >= 0)
    {
        const ssize_t Written = write(InputFd, Text.data(), Text.size());
        if (Written < 0 && errno == EINTR)
        {
            continue;
        }
        if (Written <= 0)
        {
            return false;
        }
        Text.remove_prefix(static_cast<std::size_t>(Written));
    }
    return Text.empty();
}

void FOrvHostProcess::CloseInput()
{
    CloseFd(InputFd);
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
    while (!ExitCode && Pid > 0)
    {
        int Status = 0;
        const pid_t Done = waitpid(Pid, &Status, WNOHANG);
        if (Done == Pid)
        {
            ExitCode = WIFEXITED(Status) ? WEXITSTATUS(Status) : 128 + WTERMSIG(Status);
            break;
        }
        const double Left = SecondsLeft(Deadline);
        if (Left <= 0)
        {
            return std::nullopt;
        }
        // Reading keeps the child from blocking on a full pipe; short waits notice the exit soon.
        if (!Pump(Left < 0.02 ? Left : 0.02))
        {
            usleep(1000);
        }
    }
    // Whatever was still in the pipes belongs to the output too; an ended child closes them soon.
    const auto DrainDeadline = DeadlineIn(1.0);
    while (ExitCode && SecondsLeft(DrainDeadline) > 0 && Pump(0.05))
    {
    }
    return ExitCode;
}

unsigned OrvParseServingPort(std::string_view Line)
{
    constexpr std::string_view Prefix = "Serving MCP on http://127.0.0.1:";
    if (Line.substr(0, Prefix.size()) != Prefix)
    {
        return 0;
    }
    Line.remove_prefix(Prefix.size());
    unsigned Port = 0;
    std::size_t Index = 0;
    while (Index < Line.size() && Line[Index] >= '0' && Line[Index] <= '9' && Port <= 65535)
    {
        Port = Port * 10 + static_cast<unsigned>(Line[Index] - '0');
        ++Index;
    }
    return Line.substr(Index) == "/mcp" && Port <= 65535 ? Port : 0;
}
