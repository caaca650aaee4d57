#include "Host/Editor/OrvRenderFrame.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>

namespace OrvWebBridge
{
    namespace
    {
        /** A box face: corner indices (bit 0: max X, bit 1: max Y, bit 2: max Z) and its local normal. */
        struct FOrvBoxFace
        {
            std::array<int, 4> Corners;
            int Axis; ///< 0 X, 1 Y, 2 Z
            double Sign;
        };

        constexpr std::array<FOrvBoxFace, 6> BoxFaces{{
            {{0, 2, 6, 4}, 0, -1.0},
            {{1, 3, 7, 5}, 0, 1.0},
            {{0, 1, 5, 4}, 1, -1.0},
            {{2, 3, 7, 6}, 1, 1.0},
            {{0, 1, 3, 2}, 2, -1.0},
            {{4, 5, 7, 6}, 2, 1.0},
        }};

        FOrvColor Shade(const FOrvColor& Tint, double Brightness)
        {
            const auto Channel = [Brightness](std::uint8_t Value)
            { return static_cast<std::uint8_t>(std::clamp(Value * Brightness + 0.5, 0.0, 255.0)); };
            return {Channel(Tint.B), Channel(Tint.G), Channel(Tint.R), 255};
        }
    } // namespace

    void FOrvRenderFrame::DrawBox(const FOrvRenderBox& Box)
    {
        const FOrvRenderAxes Axes = FOrvRenderAxes::From(Box.Transform.Rotation);
        const FOrvRenderVec Origin = FOrvRenderVec::From(Box.Transform.Location);
        const FOrvBox& Local = Box.LocalBounds;
        std::array<FOrvRenderVec, 8> World;
        std::array<FOrvRenderVec, 8> Camera;
        for (int Corner = 0; Corner < 8; ++Corner)
        {
            const double X = (Corner & 1) ? Local.Max.X : Local.Min.X;
            const double Y = (Corner & 2) ? Local.Max.Y : Local.Min.Y;
            const double Z = (Corner & 4) ? Local.Max.Z : Local.Min.Z;
            World[Corner] = Origin + Axes.X * X + Axes.Y * Y + Axes.Z * Z;
            Camera[Corner] = ToCamera(World[Corner]);
        }
        for (const FOrvBoxFace& Face : BoxFaces)
        {
            const FOrvRenderVec& AxisVector = Face.Axis == 0 ? Axes.X : (Face.Axis == 1 ? Axes.Y : Axes.Z);
            const FOrvRenderVec Normal = AxisVector * Face.Sign;
            const FOrvRenderVec Center = (World[Face.Corners[0]] + World[Face.Corners[1]] +
                                          World[Face.Corners[2]] + World[Face.Corners[3]]) *
                                         0.25;
            const bool bFacesCamera =
                bPerspective ? Dot(Normal, Eye - Center) > 0.0 : Dot(Normal, Forward) < 0.0;
            if (!bFacesCamera)
            {
                continue;
            }
            // Flat shading by orientation: tops brightest, bottoms darkest, sides told apart.
            const double Brightness =
                std::clamp(0.62 + 0.38 * Normal.Z + 0.12 * Normal.X - 0.08 * Normal.Y, 0.25, 1.0);
            const FOrvColor Color = Shade(Box.Tint, Brightness);

            // Clip the quad against the near plane (perspective only), then project.
            std::array<FOrvRenderVec, 8> Clipped;
            int ClippedCount = 0;
            for (int Index = 0; Index < 4; ++Index)
            {
                const FOrvRenderVec& A = Camera[Face.Corners[Index]];
                const FOrvRenderVec& B = Camera[Face.Corners[(Index + 1) % 4]];
                const bool bAInside = !bPerspective || A.Z >= NearPlane;
                const bool bBInside = !bPerspective || B.Z >= NearPlane;
                if (bAInside)
                {
                    Clipped[ClippedCount++] = A;
                }
                if (bAInside != bBInside)
                {
                    const double T = (NearPlane - A.Z) / (B.Z - A.Z);
                    Clipped[ClippedCount++] = A + (B - A) * T;
                }
            }
            if (ClippedCount < 3)
            {
                continue;
            }
            std::array<FOrvScreenPoint, 8> Screen;
            for (int Index = 0; Index < ClippedCount; ++Index)
            {
                Screen[Index] = Project(Clipped[Index]);
            }
            for (int Index = 1; Index + 1 < ClippedCount; ++Index)
            {
                FillTriangle(Screen[0], Screen[Index], Screen[Index + 1], Color);
            }
        }
    }

    void FOrvRenderFrame::FillTriangle(const FOrvScreenPoint& A, const FOrvScreenPoint& B,
                                       const FOrvScreenPoint& C, const FOrvColor& Color)
    {
        const double Area = (B.X - A.X) * (C.Y - A.Y) - (B.Y - A.Y) * (C.X - A.X);
        if (!(std::fabs(Area) > 1e-9))
        {
            return;
        }
        const int MinX = std::max(0, static_cast<int>(std::floor(std::min({A.X, B.X, C.X}))));
        const int MaxX = std::min(Width - 1, static_cast<int>(std::ceil(std::max({A.X, B.X, C.X}))));
        const int MinY = std::max(0, static_cast<int>(std::floor(std::min({A.Y, B.Y, C.Y}))));
        const int MaxY = std::min(Height - 1, static_cast<int>(std::ceil(std::max({A.Y, B.Y, C.Y}))));
        if (MinX > MaxX || MinY > MaxY)
        {
            return;
        }
        // Edge functions, normalised by the area so both windings give positive weights inside.
        const double InvArea = 1.0 / Area;
        const auto Edge = [](const FOrvScreenPoint& P0, const FOrvScreenPoint& P1, double X, double Y)
        { return (P1.X - P0.X) * (Y - P0.Y) - (P1.Y - P0.Y) * (X - P0.X); };
        const double StepWA = -(C.Y - B.Y) * InvArea;
        const double StepWB = -(A.Y - C.Y) * InvArea;
        const double StepWC = -(B.Y - A.Y) * InvArea;
        for (int Row = MinY; Row <= MaxY; ++Row)
        {
            const double Y = Row + 0.5;
            const double X0 = MinX + 0.5;
            double WA = Edge(B, C, X0, Y) * InvArea;
            double WB = Edge(C, A, X0, Y) * InvArea;
            double WC = Edge(A, B, X0, Y) * InvArea;
            const std::size_t RowStart = static_cast<std::size_t>(Row) * Width;
            for (int Column = MinX; Column <= MaxX; ++Column, WA += StepWA, WB += StepWB, WC += StepWC)
            {
                if (WA < 0.0 || WB < 0.0 || WC < 0.0)
                {
                    continue;
                }
                const float Key = static_cast<float>(WA * A.Key + WB * B.Key + WC * C.Key);
                float& Stored = Depth[RowStart + Column];
                if (Key > Stored)
                {
                    Stored = Key;
                    Pixels[RowStart + Column] = Color;
                }
            }
        }
    }
} // namespace OrvWebBridge
