#include "Host/Editor/OrvSoftwareRenderer.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <limits>

namespace
{
    constexpr double Pi = 3.14159265358979323846;
    constexpr double NearPlane = 10.0;         ///< centimetres, the editor's near clipping plane
    constexpr double GridSpacing = 100.0;      ///< one floor line per metre
    constexpr double FogDistance = 9000.0;     ///< where the floor is half fog
    constexpr double MaxFloorDistance = 1.0e6; ///< beyond 10 km the floor is all fog

    struct FVec
    {
        double X = 0.0;
        double Y = 0.0;
        double Z = 0.0;
    };

    FVec operator+(const FVec& A, const FVec& B)
    {
        return {A.X + B.X, A.Y + B.Y, A.Z + B.Z};
    }
    FVec operator-(const FVec& A, const FVec& B)
    {
        return {A.X - B.X, A.Y - B.Y, A.Z - B.Z};
    }
    FVec operator*(const FVec& A, double S)
    {
        return {A.X * S, A.Y * S, A.Z * S};
    }
    double Dot(const FVec& A, const FVec& B)
    {
        return A.X * B.X + A.Y * B.Y + A.Z * B.Z;
    }
    FVec ToVec(const FOrvVector& V)
    {
        return {V.X, V.Y, V.Z};
    }

    /** The rotated X, Y and Z axes: the rows of the engine's FRotationMatrix. */
    struct FAxes
    {
        FVec X;
        FVec Y;
        FVec Z;
    };

    FAxes RotationAxes(const FOrvRotator& Rotation)
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

    /** A point in camera space: X right, Y up, Z along the view (depth). */
    using FCamPoint = FVec;

    /** A projected vertex: pixel position and a depth key that is affine on screen (larger is nearer). */
    struct FScreenPoint
    {
        double X = 0.0;
        double Y = 0.0;
        double Key = 0.0;
    };

    FOrvColor Shade(const FOrvColor& Tint, double Brightness)
    {
        const auto Channel = [Brightness](std::uint8_t Value)
        { return static_cast<std::uint8_t>(std::clamp(Value * Brightness + 0.5, 0.0, 255.0)); };
        return {Channel(Tint.B), Channel(Tint.G), Channel(Tint.R), 255};
    }

    /** A blend from A (T = 0) to B (T = 1) in 1/256 steps: integer maths, as it runs for every pixel. */
    FOrvColor Mix(const FOrvColor& A, const FOrvColor& B, double T)
    {
        const int W = static_cast<int>(std::clamp(T, 0.0, 1.0) * 256.0);
        const auto Channel = [W](int From, int To)
        { return static_cast<std::uint8_t>((From * (256 - W) + To * W) >> 8); };
        return {Channel(A.B, B.B), Channel(A.G, B.G), Channel(A.R, B.R), 255};
    }

    const FOrvColor SkyHorizon{222, 214, 204, 255};
    const FOrvColor SkyZenith{186, 150, 112, 255};
    const FOrvColor FloorColor{112, 118, 122, 255};
    const FOrvColor GridColor{78, 82, 86, 255};
    const FOrvColor AxisXColor{70, 70, 170, 255}; ///< the line Y = 0 runs along X: red, as in the editor
    const FOrvColor AxisYColor{70, 150, 70, 255}; ///< the line X = 0 runs along Y: green

    /** The six faces of a box: corner indices (bit 0: max X, bit 1: max Y, bit 2: max Z) and the local
     * normal. */
    struct FFace
    {
        std::array<int, 4> Corners;
        int Axis; ///< 0 X, 1 Y, 2 Z
        double Sign;
    };

    constexpr std::array<FFace, 6> BoxFaces{{
        {{0, 2, 6, 4}, 0, -1.0},
        {{1, 3, 7, 5}, 0, 1.0},
        {{0, 1, 5, 4}, 1, -1.0},
        {{2, 3, 7, 6}, 1, 1.0},
        {{0, 1, 3, 2}, 2, -1.0},
        {{4, 5, 7, 6}, 2, 1.0},
    }};

    class FFrame
    {
    public:
        FFrame(const FOrvRenderCamera& Camera, std::vector<FOrvColor>& InPixels, std::vector<float>& InDepth)
            : Pixels(InPixels), Depth(InDepth), Width(Camera.Size.X), Height(Camera.Size.Y),
              bPerspective(Camera.bPerspective), Eye(ToVec(Camera.View.Location))
        {
            const FAxes Axes = RotationAxes(Camera.View.Rotation);
            Forward = Axes.X;
            Right = Axes.Y;
            Up = Axes.Z;
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

        void DrawBackground();
        void DrawBox(const FOrvRenderBox& Box);

    private:
        FCamPoint ToCamera(const FVec& World) const
        {
            const FVec Rel = World - Eye;
            return {Dot(Rel, Right), Dot(Rel, Up), Dot(Rel, Forward)};
        }

        FScreenPoint Project(const FCamPoint& Point) const
        {
            if (bPerspective)
            {
                return {Width * 0.5 + Point.X / Point.Z * Focal, Height * 0.5 - Point.Y / Point.Z * Focal,
                        1.0 / Point.Z};
            }
            return {Width * 0.5 + Point.X * OrthoScale, Height * 0.5 - Point.Y * OrthoScale, -Point.Z};
        }

        void DrawPerspectiveRow(int Row, FOrvColor* PixelRow, float* DepthRow) const;
        void DrawOrthographicRow(int Row, FOrvColor* PixelRow, float* DepthRow) const;
        FOrvColor FloorAt(double HitX, double HitY, double Distance, double Footprint) const;
        void FillPolygon(const FScreenPoint* Points, int Count, const FOrvColor& Color);
        void FillTriangle(const FScreenPoint& A, const FScreenPoint& B, const FScreenPoint& C,
                          const FOrvColor& Color);

        std::vector<FOrvColor>& Pixels;
        std::vector<float>& Depth;
        int Width;
        int Height;
        bool bPerspective;
        FVec Eye;
        FVec Forward;
        FVec Right;
        FVec Up;
        double Focal = 1.0;
        double OrthoScale = 1.0;
        std::vector<double> ColumnLengths; ///< |(1, U)| of each column's perspective ray
    };

    /** Distance from Value to the nearest multiple of GridSpacing; |Value| stays below MaxFloorDistance. */
    double GridLineDistance(double Value)
    {
        const double Cells = Value * (1.0 / GridSpacing) + 0.5;
        std::int64_t Whole = static_cast<std::int64_t>(Cells);
        Whole -= Cells < static_cast<double>(Whole) ? 1 : 0;
        return std::fabs(Cells - static_cast<double>(Whole) - 0.5) * GridSpacing;
    }

    inline FOrvColor FFrame::FloorAt(double HitX, double HitY, double Distance, double Footprint) const
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

    void FFrame::DrawBackground()
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

    void FFrame::DrawPerspectiveRow(int Row, FOrvColor* PixelRow, float* DepthRow) const
    {
        // Rays from the eye through each pixel with a unit forward component: the ray parameter at the
        // floor is the view depth, and its inverse (the depth key) is linear along the row.
        const double Scale = 1.0 / Focal;
        const double V = (Height * 0.5 - (Row + 0.5)) * Scale;
        const FVec Step = Right * Scale;
        FVec Direction = Forward + Right * ((0.5 - Width * 0.5) * Scale) + Up * V;
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

    void FFrame::DrawOrthographicRow(int Row, FOrvColor* PixelRow, float* DepthRow) const
    {
        // Parallel rays from each pixel; nothing is behind an orthographic camera, so no near plane.
        const double Scale = 1.0 / OrthoScale;
        const double V = (Height * 0.5 - (Row + 0.5)) * Scale;
        const FVec Step = Right * Scale;
        FVec Origin = Eye + Right * ((0.5 - Width * 0.5) * Scale) + Up * V;
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

    void FFrame::DrawBox(const FOrvRenderBox& Box)
    {
        const FAxes Axes = RotationAxes(Box.Transform.Rotation);
        const FVec Origin = ToVec(Box.Transform.Location);
        const FOrvBox& Local = Box.LocalBounds;
        std::array<FVec, 8> World;
        std::array<FCamPoint, 8> Camera;
        for (int Corner = 0; Corner < 8; ++Corner)
        {
            const double X = (Corner & 1) ? Local.Max.X : Local.Min.X;
            const double Y = (Corner & 2) ? Local.Max.Y : Local.Min.Y;
            const double Z = (Corner & 4) ? Local.Max.Z : Local.Min.Z;
            World[Corner] = Origin + Axes.X * X + Axes.Y * Y + Axes.Z * Z;
            Camera[Corner] = ToCamera(World[Corner]);
        }
        for (const FFace& Face : BoxFaces)
        {
            const FVec& AxisVector = Face.Axis == 0 ? Axes.X : (Face.Axis == 1 ? Axes.Y : Axes.Z);
            const FVec Normal = AxisVector * Face.Sign;
            const FVec Center = (World[Face.Corners[0]] + World[Face.Corners[1]] + World[Face.Corners[2]] +
                                 World[Face.Corners[3]]) *
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
            std::array<FCamPoint, 8> Clipped;
            int ClippedCount = 0;
            for (int Index = 0; Index < 4; ++Index)
            {
                const FCamPoint& A = Camera[Face.Corners[Index]];
                const FCamPoint& B = Camera[Face.Corners[(Index + 1) % 4]];
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
            std::array<FScreenPoint, 8> Screen;
            for (int Index = 0; Index < ClippedCount; ++Index)
            {
                Screen[Index] = Project(Clipped[Index]);
            }
            FillPolygon(Screen.data(), ClippedCount, Color);
        }
    }

    void FFrame::FillPolygon(const FScreenPoint* Points, int Count, const FOrvColor& Color)
    {
        for (int Index = 1; Index + 1 < Count; ++Index)
        {
            FillTriangle(Points[0], Points[Index], Points[Index + 1], Color);
        }
    }

    void FFrame::FillTriangle(const FScreenPoint& A, const FScreenPoint& B, const FScreenPoint& C,
                              const FOrvColor& Color)
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
        const auto Edge = [](const FScreenPoint& P0, const FScreenPoint& P1, double X, double Y)
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
} // namespace

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
    FFrame Frame(Camera, Out, Depth);
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
