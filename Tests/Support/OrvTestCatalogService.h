#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace boost::asio
{
    class io_context;
}

namespace OrvWebBridge
{
    /** @brief One request the test catalogue service received. */
    struct FOrvTestCatalogRequest
    {
        std::string Method;
        std::string Target;
        std::string ContentType;
        std::string Cookie; ///< empty when none
        std::string Body;
    };

    /** @brief What the test catalogue service answers, as application/json. */
    struct FOrvTestCatalogAnswer
    {
        std::string Body;
        int Status = 200;
        std::vector<std::pair<std::string, std::string>> Headers; ///< e.g. Set-Cookie, in order
        double DelaySeconds = 0.0;
        /** A hostile service: when set, these bytes go out instead of a well-formed answer, followed by
         *  RawRepeat over and over (every RepeatSeconds) until the client hangs up. */
        std::string Raw;
        std::string RawRepeat;
        double RepeatSeconds = 0.0;
    };

    /**
     * @brief A catalogue service on 127.0.0.1 (OS-chosen port) that runs on the given io_context, so it
     * answers while the test pumps the host's event loop. It records every request.
     */
    class FOrvTestCatalogService
    {
    public:
        using FAnswerFunction = std::function<FOrvTestCatalogAnswer(const FOrvTestCatalogRequest& Request)>;

        FOrvTestCatalogService(boost::asio::io_context& Context, FAnswerFunction Answer);
        ~FOrvTestCatalogService();

        /** "http://127.0.0.1:PORT" */
        std::string GetBaseUrl() const;
        const std::vector<FOrvTestCatalogRequest>& GetRequests() const;

        struct FState;

    private:
        std::shared_ptr<FState> State;
    };
} // namespace OrvWebBridge
