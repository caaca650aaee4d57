#include "Unreal/Closed/OrvClosedProductTag.h"

#if ORV_WITH_CLOSED_MODULES

#include "Unreal/OrvUnrealConversions.h"

#include "Engine/StaticMesh.h"
#include "Templates/Casts.h"
// ASSUMED (1): the import module's header for its product tag is called so.
#include "OrvProductData.h"

namespace OrvWebBridge
{
    std::optional<FOrvProductTag> ReadClosedProductTag(UStaticMesh& Mesh)
    {
        // ASSUMED (2): UOrvProductData is exported; without that, StaticClass() fails to link here.
        return ReadClosedProductTag(Mesh.GetAssetUserDataOfClass(UOrvProductData::StaticClass()));
    }

    std::optional<FOrvProductTag> ReadClosedProductTag(UAssetUserData* Entry)
    {
        UOrvProductData* Tag = Cast<UOrvProductData>(Entry);
        if (!Tag)
        {
            return std::nullopt;
        }
        // ASSUMED (3): ProductID is an FString. ASSUMED (4): IsValid() may be const or not; a non-const tag
        // serves both.
        return FOrvProductTag{FOrvUnrealConversions::ToUtf8(Tag->ProductID), Tag->IsValid()};
    }
} // namespace OrvWebBridge

#endif
