#pragma once

#include "Core/Common/OrvTypes.h"
#include "Core/Mcp/OrvMcpContent.h"
#include "Core/Ports/IOrvImageWrapper.h"
#include "Core/Ports/IOrvViewport.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace OrvWebBridge
{
    /**
     * @brief Reads the level viewport and encodes it as a JPEG image block. Game thread.
     * Keeps its pixel buffer between captures of ordinary sizes so that repeated captures do not
     * reallocate; a larger frame's buffer is released once its answer is made.
     */
    class FOrvViewportCapture
    {
    public:
        /** The engine's largest texture side: no editor viewport is larger. */
        static constexpr std::int32_t MaxSide = 16384;

        /** The largest buffer kept between captures: 4096 x 4096 pixels (64 MiB), above 5K screens. */
        static constexpr std::size_t MaxKeptPixels = std::size_t{4096} * 4096;

        /** The image block, or a text block holding the {"error": "..."} sentence of the failed step. */
        FOrvMcpContent Capture(IOrvViewport& Viewport, IOrvImageWrapperModule& Images, std::int32_t Quality);

        /** How many pixels the buffer kept for the next capture holds room for. */
        std::size_t GetKeptPixelCapacity() const { return Pixels.capacity(); }

    private:
        FOrvMcpContent ReadAndEncode(IOrvViewport& Viewport, IOrvImageWrapperModule& Images,
                                     std::int32_t Quality);

        std::vector<FOrvColor> Pixels;
    };
} // namespace OrvWebBridge
