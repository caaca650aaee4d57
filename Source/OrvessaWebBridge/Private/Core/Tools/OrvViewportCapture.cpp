#include "Core/Tools/OrvViewportCapture.h"

FOrvMcpContent FOrvViewportCapture::Capture(IOrvViewport&, IOrvImageWrapperModule&, std::int32_t)
{
    return {};
}
