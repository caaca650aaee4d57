#pragma once

#include "Core/Outliner/OrvOutlinerTreeItems.h"
#include "Core/Ports/IOrvEditorWorld.h"

#include <cstdint>

namespace OrvWebBridge
{
    /** @brief How a tree build learns which actors still exist. */
    enum class EOrvActorCounting : std::uint8_t
    {
        CountLiveActors,      ///< ask the world for each actor
        AllListedActorsExist, ///< the products were filled from the world in this same call
    };

    /** @brief Turns a product map into the outliner's sorted tree of macro categories, categories and
     * products.
     */
    struct FOrvOutlinerTreeBuilder
    {
        /**
         * Macro category items (sorted by name, each with its categories sorted by name), then the categories
         * of products without a macro category at the root. Products sort by "Brand Name"; all without case.
         * Counts are of the actors that still exist now. Linear in actors, n log n in products.
         */
        static FOrvOutlinerTreeItems Build(const FOrvSceneProductMap& Products, const IOrvEditorWorld& World,
                                           EOrvActorCounting Counting = EOrvActorCounting::CountLiveActors);

        /** How many of the product's actors still exist. */
        static std::int32_t CountLiveActors(const FOrvSceneProduct& Product, const IOrvEditorWorld& World);
    };
} // namespace OrvWebBridge
