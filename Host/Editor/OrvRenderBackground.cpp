#include "Host/Editor/OrvRenderFrame.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

namespace OrvWebBridge
{
    namespace
    {
        constexpr double GridSpacing = 100.0;      ///< one floor line per metre
        constexpr double FogDistance = 9000.0;     ///< where the floor is half fog
        constexpr double MaxFloorDistance = 1.0e6; ///< beyond 10 km the floor is all fog

        const FOrvColor SkyHorizon{222, 214, 204, 255};
        const FOrvColor SkyZenith{186, 150, 112, 255};
        const FOrvColor FloorColor{112, 118, 122, 255};
        const FOrvColor GridColor{78, 82, 86, 255};
        const FOrvColor AxisXColor{70, 70, 170, 255}; ///< the line Y = 0 runs along X: red, as in the editor
        const FOrvColor AxisYColor{70, 150, 70, 255}; ///< the line X = 0 runs along Y: green

        /** Distance from Value to the nearest multiple of GridSpacing; |Value| stays below MaxFloorDistance.
         */
        double GridLineDistance(double Value)
        {
            const double Cells = Value * (1.0 / GridSpacing) + 0.5;
            std::int64_t Whole = static_cast<std::int64_t>(Cells);
            Whole -= Cells < static_cast<double>(Whole) ? 1 : 0;
            return std::fabs(Cells - static_cast<double>(Whole) - 0.5) * GridSpacing;
        }
    } // namespace

    FOrvColor FOrvRenderFrame::FloorAt(double HitX, double HitY, double Distance, double Footprint) const
    {
        // Lines keep about a pixel's width and fade out where a pixel covers a large part of a cell;
        // fog is a cheap rational curve rather than an exponential, as this runs for every floor pixel.
        const double HalfWidth = std::max(0.8, Footprint * 0.6);
        const double Fade = std::clamp(1.6 - Footprint * (1.0 / 12.0), 0.0, 1.0);
        FOrvColor Color = FloorColor;
        if (std::fabs(HitY) < HalfWidth * 1.5)
        {
            Color = Mix(Color, AxisXColor, std::max(Fade, 0.35));
        }
        else if (std::fabs(HitX) < HalfWidth * 1.5)
        {
            Color = Mix(Color, AxisYColor, std::max(Fade, 0.35));
        }
        else if (Fade > 0.0 && (GridLineDistance(HitX) < HalfWidth || GridLineDistance(HitY) < HalfWidth))
        {
            Color = Mix(Color, GridColor, Fade);
        }
        return Distance > 0.0 ? Mix(Color, SkyHorizon, Distance / (Distance + FogDistance)) : Color;
    }

    void FOrvRenderFrame::DrawBackground()
    {
        for (int Row = 0; Row < Height; ++Row)
        {
            FOrvColor* PixelRow = Pixels.data() + static_cast<std::size_t>(Row) * Width;
            float* DepthRow = Depth.data() + static_cast<std::size_t>(Row) * Width;
            if (bPerspective)
            {
                DrawPerspectiveRow(Row, PixelRow, DepthRow);
            }
            else
            {
                DrawOrthographicRow(Row, PixelRow, DepthRow);
            }
        }
    }

    void FOrvRenderFrame::DrawPerspectiveRow(int Row, FOrvColor* PixelRow, float* DepthRow) const
    {
        // Rays from the eye through each pixel with a unit forward component: the ray parameter at the
        // floor is the view depth, and its inverse (the depth key) is linear along the row.
        const double Scale = 1.0 / Focal;
        const double V = (Height * 0.5 - (Row + 0.5)) * Scale;
        const FOrvRenderVec Step = Right * Scale;
        FOrvRenderVec Direction = Forward + Right * ((0.5 - Width * 0.5) * Scale) + Up * V;
        const double RowLength = std::sqrt(1.0 + V * V);
        // Only used on floor hits, which need the eye off the floor (T > 0 above the near plane).
        const double InvEyeZ = Eye.Z != 0.0 ? 1.0 / Eye.Z : 0.0;
        const double InvEyeHeight = std::fabs(InvEyeZ);
        for (int Column = 0; Column < Width; ++Column, Direction = Direction + Step)
        {
            const double T = Direction.Z != 0.0 ? -Eye.Z / Direction.Z : -1.0;
            if (T > NearPlane && T < MaxFloorDistance)
            {
                // Pixel size at depth T, stretched (up to 12.5 times) where the ray grazes the floor. The
                // ray length |(1, U, V)| is taken as |(1, U)| * |(1, V)|, a few per cent long at the
                // corners, which only widens grid lines there.
                const double Stretch = std::min(12.5, ColumnLengths[Column] * RowLength * T * InvEyeHeight);
                PixelRow[Column] =
                    FloorAt(Eye.X + Direction.X * T, Eye.Y + Direction.Y * T, T, T * Scale * Stretch);
                DepthRow[Column] = static_cast<float>(-Direction.Z * InvEyeZ);
                continue;
            }
            DepthRow[Column] = std::numeric_limits<float>::lowest();
            if (T >= MaxFloorDistance)
            {
                PixelRow[Column] = SkyHorizon; // floor so far away that fog has swallowed it
                continue;
            }
            const double Elevation = Direction.Z / std::sqrt(Dot(Direction, Direction));
            PixelRow[Column] = Mix(SkyHorizon, SkyZenith, Elevation);
        }
    }

    void FOrvRenderFrame::DrawOrthographicRow(int Row, FOrvColor* PixelRow, float* DepthRow) const
    {
        // Parallel rays from each pixel; nothing is behind an orthographic camera, so no near plane.
        const double Scale = 1.0 / OrthoScale;
        const double V = (Height * 0.5 - (Row + 0.5)) * Scale;
        const FOrvRenderVec Step = Right * Scale;
        FOrvRenderVec Origin = Eye + Right * ((0.5 - Width * 0.5) * Scale) + Up * V;
        const bool bSeesFloor = std::fabs(Forward.Z) > 1e-9;
        const FOrvColor Sky = Mix(SkyHorizon, SkyZenith, 1.0 - (Row + 0.5) / Height);
        for (int Column = 0; Column < Width; ++Column, Origin = Origin + Step)
        {
            const double T = bSeesFloor ? -Origin.Z / Forward.Z : 0.0;
            if (bSeesFloor && std::fabs(T) < MaxFloorDistance)
            {
                PixelRow[Column] = FloorAt(Origin.X + Forward.X * T, Origin.Y + Forward.Y * T, 0.0, Scale);
                DepthRow[Column] = static_cast<float>(-T);
                continue;
            }
            PixelRow[Column] = Sky;
            DepthRow[Column] = std::numeric_limits<float>::lowest();
        }
    }
} // namespace OrvWebBridge
