#pragma once

#include "Core/Outliner/OrvOutlinerTreeItems.h"
#include "Core/Ports/IOrvEditorWorld.h"

#include <cstdint>

/** @brief Turns a product map into the outliner's sorted tree of macro categories, categories and products.
 */
struct FOrvOutlinerTreeBuilder
{
    /**
     * Macro category items (sorted by name, each with its categories sorted by name), then the categories
     * of products without a macro category at the root. Products sort by "Brand Name"; all without case.
     * Counts are of the actors that still exist now. Linear in actors, n log n in products.
     */
    static FOrvOutlinerTreeItems Build(const FOrvSceneProductMap& Products, const IOrvEditorWorld& World);

    /** How many of the product's actors still exist. */
    static std::int32_t CountLiveActors(const FOrvSceneProduct& Product, const IOrvEditorWorld& World);
};
