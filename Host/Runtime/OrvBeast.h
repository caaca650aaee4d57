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

        /** Seconds as the clock duration that Asio timers and Beast streams take; negative or NaN is none,
         * and anything past a billion seconds (infinity too) is a billion, which the clock can still hold. */
        inline std::chrono::steady_clock::duration Seconds(double Value)
        {
            const double Clamped = Value > 0.0 ? (Value < 1e9 ? Value : 1e9) : 0.0;
            return std::chrono::duration_cast<std::chrono::steady_clock::duration>(
                std::chrono::duration<double>(Clamped));
        }
    } // namespace OrvBeast
} // namespace OrvWebBridge
