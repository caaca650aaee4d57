#pragma once

#include "Core/Ports/IOrvImageWrapper.h"

#include <cstdint>
#include <memory>

namespace OrvWebBridge
{
    /**
     * @brief The host's ImageWrapper module: JPEG encoders over TurboJPEG, set up as the engine's JPEG
     * wrapper sets up its TurboJPEG path (BGRA input, 4:2:0 chroma subsampling, fast DCT).
     *
     * One compressor handle and one output buffer serve capture after capture: a wrapper borrows them
     * from the module when no other wrapper holds them (otherwise it gets its own). SetRaw keeps the
     * caller's pointer without copying, so the pixels are read once, by the encoder.
     *
     * Quality follows the engine's JPEG wrapper: 0 means its default 85, 1 ("uncompressed") means 100,
     * and anything else is clamped to 40..100.
     */
    class FOrvTurboJpegModule : public IOrvImageWrapperModule
    {
    public:
        FOrvTurboJpegModule();
        ~FOrvTurboJpegModule() override;

        std::unique_ptr<IOrvImageWrapper> CreateJpegWrapper() override;

        /** The quality TurboJPEG is given for a requested quality: the same, kept within 1..100. */
        static int MapQuality(std::int32_t Requested);

        struct FEncoder;

    private:
        std::shared_ptr<FEncoder> Shared;
    };
} // namespace OrvWebBridge
