#pragma once

#include "Core/Common/OrvTypes.h"

#include <optional>
#include <vector>

namespace OrvWebBridge
{
    /** @brief What the current level editing viewport client looks through. */
    struct FOrvViewInfo
    {
        FOrvVector Location; ///< from the perspective or orthographic view transform, as IsPerspective() says
        FOrvRotator Rotation;      ///< likewise
        double FieldOfView = 90.0; ///< the client's ViewFOV, degrees
    };

    /** @brief The editor's level viewport (GCurrentLevelEditingViewportClient and its FViewport). Game
     * thread. */
    class IOrvViewport
    {
    public:
        virtual ~IOrvViewport() = default;

        /** Whether the editor engine exists and GetActiveViewport() is non-null. */
        virtual bool HasActiveViewport() const = 0;

        /** The current level editing viewport client's view; nothing when there is no such client. */
        virtual std::optional<FOrvViewInfo> GetLevelViewportView() const = 0;

        /** Whether that client exists and its Viewport member is non-null. */
        virtual bool HasClientViewport() const = 0;

        /** The client viewport's size in pixels (GetSizeXY); zero without a viewport. */
        virtual FOrvIntPoint GetViewportSize() const = 0;

        /** ReadPixels of the whole client viewport into Out (resized to what was read); false when it fails.
         */
        virtual bool ReadPixels(std::vector<FOrvColor>& Out) = 0;
    };
} // namespace OrvWebBridge
