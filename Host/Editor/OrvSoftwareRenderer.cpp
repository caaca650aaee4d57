#include "Host/Editor/OrvSoftwareRenderer.h"

#include "Host/Editor/OrvRenderFrame.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace OrvWebBridge
{
    void FOrvSoftwareRenderer::Render(const FOrvRenderCamera& Camera, std::span<const FOrvRenderBox> Boxes,
                                      std::vector<FOrvColor>& Out)
    {
        const int Width = std::max(Camera.Size.X, 0);
        const int Height = std::max(Camera.Size.Y, 0);
        const std::size_t Count = static_cast<std::size_t>(Width) * static_cast<std::size_t>(Height);
        Out.resize(Count);
        Depth.resize(Count);
        if (Count == 0)
        {
            return;
        }
        FOrvRenderFrame Frame(Camera, Out, Depth);
        Frame.DrawBackground();
        for (const FOrvRenderBox& Box : Boxes)
        {
            Frame.DrawBox(Box);
        }
    }

    FOrvColor FOrvSoftwareRenderer::TintFor(std::string_view Key)
    {
        // FNV-1a: the same key gives the same colour on every platform and run.
        std::uint32_t Hash = 2166136261u;
        for (const char Char : Key)
        {
            Hash = (Hash ^ static_cast<std::uint8_t>(Char)) * 16777619u;
        }
        const double Hue = (Hash % 360u) / 60.0;
        const double Saturation = 0.30 + ((Hash >> 9) % 25u) / 100.0;
        const double Value = 0.72 + ((Hash >> 17) % 18u) / 100.0;
        const double Chroma = Value * Saturation;
        const double Second = Chroma * (1.0 - std::fabs(std::fmod(Hue, 2.0) - 1.0));
        const double Base = Value - Chroma;
        double R = 0.0, G = 0.0, B = 0.0;
        switch (static_cast<int>(Hue))
        {
        case 0:
            R = Chroma, G = Second;
            break;
        case 1:
            R = Second, G = Chroma;
            break;
        case 2:
            G = Chroma, B = Second;
            break;
        case 3:
            G = Second, B = Chroma;
            break;
        case 4:
            R = Second, B = Chroma;
            break;
        default:
            R = Chroma, B = Second;
            break;
        }
        const auto Byte = [Base](double Channel)
        { return static_cast<std::uint8_t>((Channel + Base) * 255.0 + 0.5); };
        return {Byte(B), Byte(G), Byte(R), 255};
    }
} // namespace OrvWebBridge
