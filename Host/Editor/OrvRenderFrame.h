#pragma once

#include "Core/Common/OrvTypes.h"
#include "Host/Editor/OrvSoftwareRenderer.h"

#include <vector>

namespace OrvWebBridge
{
    /** @brief A 3D vector of the software renderer (engine axes: X forward, Y right, Z up). */
    struct FOrvRenderVec
    {
        double X = 0.0;
        double Y = 0.0;
        double Z = 0.0;

        static FOrvRenderVec From(const FOrvVector& Vector) { return {Vector.X, Vector.Y, Vector.Z}; }
        friend FOrvRenderVec operator+(const FOrvRenderVec& A, const FOrvRenderVec& B)
        {
            return {A.X + B.X, A.Y + B.Y, A.Z + B.Z};
        }
        friend FOrvRenderVec operator-(const FOrvRenderVec& A, const FOrvRenderVec& B)
        {
            return {A.X - B.X, A.Y - B.Y, A.Z - B.Z};
        }
        friend FOrvRenderVec operator*(const FOrvRenderVec& A, double Scale)
        {
            return {A.X * Scale, A.Y * Scale, A.Z * Scale};
        }
        friend double Dot(const FOrvRenderVec& A, const FOrvRenderVec& B)
        {
            return A.X * B.X + A.Y * B.Y + A.Z * B.Z;
        }
    };

    /** @brief A rotation's X, Y and Z axes: the rows of the engine's FRotationMatrix. */
    struct FOrvRenderAxes
    {
        FOrvRenderVec X;
        FOrvRenderVec Y;
        FOrvRenderVec Z;

        static FOrvRenderAxes From(const FOrvRotator& Rotation);
    };

    /** @brief A projected vertex: pixel position and a depth key that is affine on screen (larger is nearer).
     */
    struct FOrvScreenPoint
    {
        double X = 0.0;
        double Y = 0.0;
        double Key = 0.0;
    };

    /**
     * @brief One picture being drawn: the camera's basis and projection, and the colour and depth buffers
     * (already sized). Depth keys are 1/depth in perspective and -depth in orthographic views, both affine
     * on screen, so one "larger is nearer" test serves both.
     */
    class FOrvRenderFrame
    {
    public:
        static constexpr double NearPlane = 10.0; ///< centimetres, the editor's near clipping plane

        FOrvRenderFrame(const FOrvRenderCamera& Camera, std::vector<FOrvColor>& InPixels,
                        std::vector<float>& InDepth);

        void DrawBackground();                  ///< OrvRenderBackground.cpp: sky, floor and grid, every pixel
        void DrawBox(const FOrvRenderBox& Box); ///< OrvRenderBoxes.cpp: the box's faces that face the camera

        /** A blend from A (T = 0) to B (T = 1) in 1/256 steps: integer maths, as it runs for every pixel. */
        static FOrvColor Mix(const FOrvColor& A, const FOrvColor& B, double T);

    private:
        /** Camera space: X right, Y up, Z along the view (depth). */
        FOrvRenderVec ToCamera(const FOrvRenderVec& World) const
        {
            const FOrvRenderVec Relative = World - Eye;
            return {Dot(Relative, Right), Dot(Relative, Up), Dot(Relative, Forward)};
        }

        FOrvScreenPoint Project(const FOrvRenderVec& Point) const
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
        void FillTriangle(const FOrvScreenPoint& A, const FOrvScreenPoint& B, const FOrvScreenPoint& C,
                          const FOrvColor& Color);

        std::vector<FOrvColor>& Pixels;
        std::vector<float>& Depth;
        int Width;
        int Height;
        bool bPerspective;
        FOrvRenderVec Eye;
        FOrvRenderVec Forward;
        FOrvRenderVec Right;
        FOrvRenderVec Up;
        double Focal = 1.0;                ///< pixels per unit of view-plane offset (perspective)
        double OrthoScale = 1.0;           ///< pixels per centimetre (orthographic)
        std::vector<double> ColumnLengths; ///< |(1, U)| of each column's perspective ray
    };
} // namespace OrvWebBridge
