#pragma once

#include "Core/Outliner/OrvSceneProduct.h"
#include "Core/Ports/IOrvAssetRegistry.h"
#include "Core/Ports/IOrvEditorWorld.h"

#include <cstdint>

namespace OrvWebBridge
{
    /** @brief The level's tagged actors grouped by product. */
    struct FOrvOutlinerWorldWalk
    {
        FOrvSceneProductMap Products; ///< in the order products are first met
        std::int32_t TotalActorCount = 0;

        /**
         * Walks every actor of the world: the first static mesh component whose mesh carries a valid
         * product tag decides the actor's product. Each mesh is asked for its tag once, and actors are
         * gathered in two passes over flat arrays, so the walk stays linear in actors and light on memory.
         */
        static FOrvOutlinerWorldWalk Run(const IOrvEditorWorld& World, const IOrvStaticMeshes& Meshes);
    };
} // namespace OrvWebBridge
