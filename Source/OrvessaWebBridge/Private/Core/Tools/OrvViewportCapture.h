#pragma once

#include "Core/Common/OrvTypes.h"
#include "Core/Mcp/OrvMcpContent.h"
#include "Core/Ports/IOrvImageWrapper.h"
#include "Core/Ports/IOrvViewport.h"

#include <cstdint>
#include <vector>

namespace OrvWebBridge
{
    /**
     * @brief Reads the level viewport and encodes it as a JPEG image block. Game thread.
     * Keeps its pixel buffer between captures so that repeated captures do not reallocate.
     */
    class FOrvViewportCapture
    {
    public:
        /** The image block, or a text block holding the {"error": "..."} sentence of the failed step. */
        FOrvMcpContent Capture(IOrvViewport& Viewport, IOrvImageWrapperModule& Images, std::int32_t Quality);

    private:
        std::vector<FOrvColor> Pixels;
    };
} // namespace OrvWebBridge
