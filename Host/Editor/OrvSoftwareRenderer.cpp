#include "Host/Editor/OrvSoftwareRenderer.h"

void FOrvSoftwareRenderer::Render(const FOrvRenderCamera& Camera, std::span<const FOrvRenderBox>,
                                  std::vector<FOrvColor>& Out)
{
    const std::size_t Count = static_cast<std::size_t>(Camera.Size.X > 0 ? Camera.Size.X : 0) *
                              static_cast<std::size_t>(Camera.Size.Y > 0 ? Camera.Size.Y : 0);
    Out.assign(Count, FOrvColor{200, 170, 140, 255});
}

FOrvColor FOrvSoftwareRenderer::TintFor(std::string_view)
{
    return FOrvColor{128, 128, 128, 255};
}
