#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <sys/types.h>
#include <vector>

namespace OrvWebBridge
{
    /**
     * @brief A child process (orv-host) with its standard input and output on pipes and its standard error in
     * an unlinked temporary file. Every wait is bounded; the destructor kills and reaps a running child.
     */
    class FOrvHostProcess
    {
    public:
        FOrvHostProcess() = default;
        ~FOrvHostProcess();
        FOrvHostProcess(const FOrvHostProcess&) = delete;
        FOrvHostProcess& operator=(const FOrvHostProcess&) = delete;

        /** Starts Executable with Args (without the program name); false with Error when it cannot. */
        bool Start(const std::string& Executable, const std::vector<std::string>& Args, std::string& Error);

        /** The next line of standard output that satisfies Match; nothing on timeout or end of output. */
        std::optional<std::string> WaitForOutputLine(const std::function<bool(const std::string&)>& Match,
                                                     double TimeoutSeconds);

        bool Write(std::string_view Text);
        void CloseInput();
        void Signal(int SignalNumber);

        /** The exit code (128 + signal when killed) once the child ended, or nothing on timeout. */
        std::optional<int> WaitForExit(double TimeoutSeconds);

        const std::string& GetOutput() const { return Output; }
        pid_t GetPid() const { return Pid; }
        std::string GetErrors() const;

    private:
        /** Reads whatever the child writes within the time; false when its output is closed. */
        bool Pump(double TimeoutSeconds);

        pid_t Pid = -1;
        int Fds[2] = {-1, -1}; ///< its input and output
        std::string ErrorsPath;
        std::string Output;
        std::size_t OutputScanned = 0; ///< bytes of Output already offered to WaitForOutputLine
        std::optional<int> ExitCode;
    };
} // namespace OrvWebBridge
