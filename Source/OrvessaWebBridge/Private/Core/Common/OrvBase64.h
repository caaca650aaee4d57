#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

namespace OrvWebBridge
{
    /** @brief Standard Base64 (RFC 4648 alphabet, '=' padding), as the engine's FBase64 in Standard mode. */
    struct FOrvBase64
    {
        /** Length of the encoded text of Size bytes, padding included. */
        static constexpr std::size_t GetEncodedSize(std::size_t Size) { return (Size + 2) / 3 * 4; }

        /** Appends the encoding of Data to Out; reserve beforehand to keep Out from growing twice. */
        static void EncodeAppend(std::span<const std::uint8_t> Data, std::string& Out);

        /** The encoding of Data as a new string. */
        static std::string Encode(std::span<const std::uint8_t> Data);
    };
} // namespace OrvWebBridge
