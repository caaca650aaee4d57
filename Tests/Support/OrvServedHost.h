#pragma once

#include "Tests/Support/OrvHostProcess.h"
#include "Tests/Support/OrvMcpTestRequests.h"
#include "Tests/Support/OrvTestHttpClient.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace OrvWebBridge
{
    /** @brief "orv-host serve --port 0 --panel-port 0" as a child process, with an HTTP client on the port
     * its URL line names.
     */
    class FOrvServedHost
    {
    public:
        ~FOrvServedHost();

        /** Starts the host with extra serve arguments and waits for its URL line; false with Error. */
        bool Start(const std::string& Executable, const std::vector<std::string>& ExtraArgs,
                   std::string& Error);

        std::uint16_t GetPort() const { return Port; }
        FOrvHostProcess& Process() { return Child; }
        FOrvTestHttpClient& Client() { return *HttpClient; }

        /** tools/call on /mcp with an arguments object written as JSON text. */
        FOrvToolReply CallTool(std::string_view Name, std::string_view ArgumentsJson = "{}");

        /** Runs a console command; its answer, lines joined by line feeds. */
        std::string Console(std::string_view Command);

    private:
        OrvBeast::asio::io_context Io;
        FOrvHostProcess Child;
        std::unique_ptr<FOrvTestHttpClient> HttpClient;
        std::uint16_t Port = 0;
    };
} // namespace OrvWebBridge
