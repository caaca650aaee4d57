#pragma once

#include "Core/Tools/OrvViewportCapture.h"

#include <string_view>

namespace OrvWebBridge
{
    /** @brief Constants of the scene file format that its reader and writer share. */
    struct FOrvSceneFileSchema
    {
        static constexpr int Version = 1;
        static constexpr std::string_view DefaultMapName = "Untitled";
        static constexpr std::string_view StaticMeshClassPath = "/Script/Engine.StaticMesh";
        static constexpr std::string_view StaticMeshActorClass = "StaticMeshActor";
        static constexpr int MaxViewportSide = FOrvViewportCapture::MaxSide;
    };
} // namespace OrvWebBridge
