#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace boost::asio
{
    class io_context;
}

/** @brief One HTTP answer as a test sees it. */
struct FOrvTestHttpReply
{
    bool bReceived = false; ///< false: no complete answer (see Error)
    std::string Error;
    int Status = 0;
    std::vector<std::pair<std::string, std::string>> Headers; ///< in the order sent
    std::string Body;

    /** The value of the first header with this name (ignoring case); empty when absent. */
    std::string Header(std::string_view Name) const;

    /** Whether a header with this name was sent. */
    bool HasHeader(std::string_view Name) const;
};

/**
 * @brief A blocking HTTP/1.1 client over one keep-alive connection, for tests. It pumps the given
 * io_context while it waits, so a server running on the same context (the host's event loop) is served
 * by the same calls. Every wait is bounded by a timeout.
 */
class FOrvTestHttpClient
{
public:
    FOrvTestHttpClient(boost::asio::io_context& Context, std::uint16_t Port);
    ~FOrvTestHttpClient();
    FOrvTestHttpClient(const FOrvTestHttpClient&) = delete;
    FOrvTestHttpClient& operator=(const FOrvTestHttpClient&) = delete;

    FOrvTestHttpReply Get(std::string_view Target, double TimeoutSeconds = 10.0);
    FOrvTestHttpReply Post(std::string_view Target, std::string_view Body, double TimeoutSeconds = 10.0);

    /** Any verb, with extra headers; connects first when not connected. */
    FOrvTestHttpReply Send(std::string_view Method, std::string_view Target, std::string_view Body,
                           const std::vector<std::pair<std::string, std::string>>& Headers,
                           double TimeoutSeconds = 10.0);

    /** Writes Bytes as they are and reads one answer (malformed requests, pipelining). */
    FOrvTestHttpReply SendRaw(std::string_view Bytes, double TimeoutSeconds = 10.0);

    /** Reads one more answer without sending (the second of two pipelined requests). */
    FOrvTestHttpReply ReadReply(double TimeoutSeconds = 10.0);

    /** Connects without sending; false when the connection is refused. */
    bool Connect(double TimeoutSeconds = 10.0);

    /** Whether the server closes the connection (end of stream or reset) within the time. */
    bool WaitForServerClose(double TimeoutSeconds);

    /** Closes the connection at once. */
    void Disconnect();

    bool IsConnected() const;

private:
    struct FState;
    std::unique_ptr<FState> State;
};
