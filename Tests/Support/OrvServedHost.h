#pragma once

#include "Tests/Support/OrvHostProcess.h"
#include "Tests/Support/OrvTestHttpClient.h"

#include "Core/Json/OrvRapidJson.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace OrvWebBridge
{
    /** @brief What a tools/call answered: the HTTP reply and its one content block. */
    struct FOrvToolCallReply
    {
        FOrvTestHttpReply Http;
        std::string Type;                          ///< "text" or "image"
        std::string Text;                          ///< text block's text, or image's Base64 data
        std::string MimeType;                      ///< of an image
        std::shared_ptr<rapidjson::Document> Json; ///< Text parsed as JSON when it is (structured results)

        /** The structured result's "error" code word; empty when it is not an error. */
        std::string ErrorCode() const;
    };

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

        /** POSTs a body to a path and parses the answer; null when it is not JSON. */
        std::shared_ptr<rapidjson::Document> Rpc(std::string_view Path, std::string_view Body,
                                                 FOrvTestHttpReply* OutReply = nullptr);

        /** tools/call with an arguments object written as JSON text. */
        FOrvToolCallReply CallTool(std::string_view Name, std::string_view ArgumentsJson = "{}");

        /** Runs a console command; its answer, lines joined by line feeds. */
        std::string Console(std::string_view Command);

    private:
        OrvBeast::asio::io_context Io;
        FOrvHostProcess Child;
        std::unique_ptr<FOrvTestHttpClient> HttpClient;
        std::uint16_t Port = 0;
    };
} // namespace OrvWebBridge
