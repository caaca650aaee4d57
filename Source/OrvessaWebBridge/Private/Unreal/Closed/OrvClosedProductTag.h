#pragma once

#include "CoreMinimal.h"

#include "Core/Common/OrvTypes.h"

#include <optional>

class UStaticMesh;

namespace OrvWebBridge
{
#if ORV_WITH_CLOSED_MODULES
    /** The catalogue tag that the maker's import module attached to Mesh, or none. */
    std::optional<FOrvProductTag> ReadClosedProductTag(UStaticMesh& Mesh);
#else
    /** Without the maker's import module no mesh carries a catalogue tag. */
    inline std::optional<FOrvProductTag> ReadClosedProductTag(UStaticMesh&)
    {
        return std::nullopt;
    }
#endif
} // namespace OrvWebBridge
