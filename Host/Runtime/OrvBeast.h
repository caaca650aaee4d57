#pragma once

// Boost.Asio and Beast for the host's .cpp files only: these headers are slow to compile, so no
// public host header includes this one. <utility> first: Asio needs it under C++20 with this Boost.
#include <utility>

#include <boost/asio/ip/tcp.hpp>
#include <boost/asio/post.hpp>
#include <boost/asio/steady_timer.hpp>
#include <boost/beast/core.hpp>
#include <boost/beast/http.hpp>

#include <chrono>

namespace OrvWebBridge
{
    namespace OrvBeast
    {
        namespace asio = boost::asio;
        namespace beast = boost::beast;
        namespace http = boost::beast::http;
        using tcp = boost::asio::ip::tcp;
        using FErrorCode = boost::system::error_code;

        /** Seconds as the clock duration that Asio timers and Beast streams take. */
        inline std::chrono::steady_clock::duration Seconds(double Value)
        {
            return std::chrono::duration_cast<std::chrono::steady_clock::duration>(
                std::chrono::duration<double>(Value > 0.0 ? Value : 0.0));
        }
    } // namespace OrvBeast
} // namespace OrvWebBridge
