#pragma once

#include "Core/Outliner/OrvSceneProduct.h"

#include <cstddef>
#include <vector>

namespace OrvWebBridge
{
    /**
     * @brief The order of the schedule's rows: by brand, then by name, both without case (the order of
     * FOrvStrings::CompareIgnoreCase); products equal in both keep their map order.
     * Returns indices into Products.
     */
    std::vector<std::size_t> OrvOutlinerScheduleOrder(const std::vector<const FOrvSceneProduct*>& Products);
} // namespace OrvWebBridge
