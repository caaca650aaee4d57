#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <sys/types.h>
#include <vector>

/**
 * @brief A child process (orv-host) with its standard input, output and error on pipes, for end-to-end
 * tests. Every wait is bounded; the destructor kills and reaps a child that is still running.
 */
class FOrvHostProcess
{
public:
    FOrvHostProcess() = default;
    ~FOrvHostProcess();
    FOrvHostProcess(const FOrvHostProcess&) = delete;
    FOrvHostProcess& operator=(const FOrvHostProcess&) = delete;

    /** Starts Executable with Args (not including the program name); false with Error when it cannot. */
    bool Start(const std::string& Executable, const std::vector<std::string>& Args, std::string& Error);

    /** Reads output until a line of standard output satisfies Match; that line, or nothing on timeout
     *  or when the child closed its output first. Lines already matched once are not offered again. */
    std::optional<std::string> WaitForOutputLine(const std::function<bool(const std::string&)>& Match,
                                                 double TimeoutSeconds);

    /** Reads output until standard error contains Text; false on timeout or end of output. */
    bool WaitForErrorText(std::string_view Text, double TimeoutSeconds);

    /** Writes to the child's standard input. */
    bool Write(std::string_view Text);

    /** Closes the child's standard input (end of input). */
    void CloseInput();

    /** Sends a signal (SIGTERM, SIGINT). */
    void Signal(int SignalNumber);

    /** Waits for the child to end, reading its output meanwhile; the exit code (128 + signal when
     *  killed), or nothing on timeout. */
    std::optional<int> WaitForExit(double TimeoutSeconds);

    const std::string& GetOutput() const { return Output; }
    const std::string& GetErrors() const { return Errors; }

private:
    /** Reads whatever the child wrote within the time; false when both pipes are closed. */
    bool Pump(double TimeoutSeconds);

    pid_t Pid = -1;
    int InputFd = -1;
    int OutputFd = -1;
    int ErrorFd = -1;
    std::string Output;
    std::string Errors;
    std::size_t OutputScanned = 0; ///< bytes of Output already offered to WaitForOutputLine
    std::optional<int> ExitCode;
};

/** The port of the "Serving MCP on http://127.0.0.1:PORT/mcp" line; 0 when Line is not that line. */
unsigned OrvParseServingPort(std::string_view Line);
