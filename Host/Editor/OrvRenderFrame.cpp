#include "Host/Editor/OrvRenderFrame.h"

#include <algorithm>
#include <cmath>

namespace OrvWebBridge
{
    namespace
    {
        constexpr double Pi = 3.14159265358979323846;
    } // namespace

    FOrvRenderAxes FOrvRenderAxes::From(const FOrvRotator& Rotation)
    {
        const double P = Rotation.Pitch * Pi / 180.0;
        const double Yw = Rotation.Yaw * Pi / 180.0;
        const double R = Rotation.Roll * Pi / 180.0;
        const double SP = std::sin(P), CP = std::cos(P);
        const double SY = std::sin(Yw), CY = std::cos(Yw);
        const double SR = std::sin(R), CR = std::cos(R);
        return {{CP * CY, CP * SY, SP},
                {SR * SP * CY - CR * SY, SR * SP * SY + CR * CY, -SR * CP},
                {-(CR * SP * CY + SR * SY), CY * SR - CR * SP * SY, CR * CP}};
    }

    FOrvRenderFrame::FOrvRenderFrame(const FOrvRenderCamera& Camera, std::vector<FOrvColor>& InPixels,
                                     std::vector<float>& InDepth)
        : Pixels(InPixels), Depth(InDepth), Width(Camera.Size.X), Height(Camera.Size.Y),
          bPerspective(Camera.bPerspective), Eye(FOrvRenderVec::From(Camera.View.Location))
    {
        const FOrvRenderAxes Axes = FOrvRenderAxes::From(Camera.View.Rotation);
        Forward = Axes.X;
        Right = Axes.Y;
        Up = Axes.Z;
        // The field of view is horizontal, as the editor's ViewFOV.
        const double Fov = std::clamp(Camera.FieldOfView, 1.0, 179.0);
        Focal = (Width * 0.5) / std::tan(Fov * 0.5 * Pi / 180.0);
        OrthoScale = Width / std::max(Camera.OrthoWidth, 1e-3);
        ColumnLengths.resize(Width);
        for (int Column = 0; Column < Width; ++Column)
        {
            const double U = (Column + 0.5 - Width * 0.5) / Focal;
            ColumnLengths[Column] = std::sqrt(1.0 + U * U);
        }
    }

    FOrvColor FOrvRenderFrame::Mix(const FOrvColor& A, const FOrvColor& B, double T)
    {
        const int W = static_cast<int>(std::clamp(T, 0.0, 1.0) * 256.0);
        const auto Channel = [W](int From, int To)
        { return static_cast<std::uint8_t>((From * (256 - W) + To * W) >> 8); };
        return {Channel(A.B, B.B), Channel(A.G, B.G), Channel(A.R, B.R), 255};
    }
} // namespace OrvWebBridge
