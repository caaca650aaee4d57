#pragma once

#include "Core/Common/OrvTypes.h"

#include <span>
#include <string_view>
#include <vector>

namespace OrvWebBridge
{
    /** @brief One placed mesh as the renderer draws it: its local box, placed by the actor's transform. */
    struct FOrvRenderBox
    {
        FOrvBox LocalBounds;
        FOrvTransform Transform;
        FOrvColor Tint;
    };

    /** @brief The editor camera and the size of the picture to make. */
    struct FOrvRenderCamera
    {
        bool bPerspective = true;
        FOrvTransform View;
        double FieldOfView = 90.0;  ///< horizontal, degrees (perspective)
        double OrthoWidth = 2000.0; ///< world width seen across the picture, centimetres (orthographic)
        FOrvIntPoint Size;
    };

    /**
     * @brief Draws the level as the editor viewport would show it, simplified: each mesh as its world-space
     * box, flat-shaded by face orientation in the product's tint, depth-tested, over a 1 m floor grid at
     * Z = 0 under a sky gradient. The result only depends on its inputs (no time, no threads).
     */
    class FOrvSoftwareRenderer
    {
    public:
        /** Renders into Out, resized to Size.X * Size.Y pixels in B, G, R, A order, alpha 255. */
        void Render(const FOrvRenderCamera& Camera, std::span<const FOrvRenderBox> Boxes,
                    std::vector<FOrvColor>& Out);

        /** A stable, pleasant colour for a product id or mesh path (the same key always gives the same tint).
         */
        static FOrvColor TintFor(std::string_view Key);

        /** Frees the depth buffer kept between frames (after a frame too large to keep). */
        void ReleaseBuffers() { std::vector<float>().swap(Depth); }

    private:
        std::vector<float> Depth; ///< kept between frames; larger is nearer
    };
} // namespace OrvWebBridge
