#pragma once

#include <cstdint>
#include <memory>
#include <span>

namespace OrvWebBridge
{
    /** @brief One image encoder of the engine's ImageWrapper module (IImageWrapper). Game thread. */
    class IOrvImageWrapper
    {
    public:
        virtual ~IOrvImageWrapper() = default;

        /** SetRaw of 8-bit BGRA pixels; Data must stay alive until GetCompressed returns. */
        virtual bool SetRaw(const void* Data, std::int64_t SizeInBytes, std::int32_t Width,
                            std::int32_t Height) = 0;

        /** Whether the encoded image keeps the alpha channel (a JPEG never does: its encoder skips that
         * byte). */
        virtual bool KeepsAlpha() const = 0;

        /** The compressed image at Quality (1-100); empty on failure; valid until the next call. */
        virtual std::span<const std::uint8_t> GetCompressed(std::int32_t Quality) = 0;
    };

    /** @brief The ImageWrapper module: makes encoders. Game thread. */
    class IOrvImageWrapperModule
    {
    public:
        virtual ~IOrvImageWrapperModule() = default;

        /** CreateImageWrapper(EImageFormat::JPEG); null when no JPEG encoder is available. */
        virtual std::unique_ptr<IOrvImageWrapper> CreateJpegWrapper() = 0;
    };
} // namespace OrvWebBridge
