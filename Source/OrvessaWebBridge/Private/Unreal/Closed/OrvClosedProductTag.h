#pragma once

#include "CoreMinimal.h"

#include "Core/Common/OrvTypes.h"

#include <optional>

class UAssetUserData;
class UStaticMesh;

namespace OrvWebBridge
{
#if ORV_WITH_CLOSED_MODULES
    /** The catalogue tag that the maker's import module attached to Mesh, or none. */
    std::optional<FOrvProductTag> ReadClosedProductTag(UStaticMesh& Mesh);

    /** The catalogue tag when Entry (of a mesh's asset user data) is the import module's, or none. */
    std::optional<FOrvProductTag> ReadClosedProductTag(UAssetUserData* Entry);
#else
    /** Without the maker's import module no mesh carries a catalogue tag. */
    inline std::optional<FOrvProductTag> ReadClosedProductTag(UStaticMesh&)
    {
        return std::nullopt;
    }

    inline std::optional<FOrvProductTag> ReadClosedProductTag(UAssetUserData*)
    {
        return std::nullopt;
    }
#endif
} // namespace OrvWebBridge
