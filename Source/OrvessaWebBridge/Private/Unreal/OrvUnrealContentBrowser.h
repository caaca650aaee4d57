#pragma once

#include "CoreMinimal.h"

#include "Core/Ports/IOrvContentBrowser.h"

namespace OrvWebBridge
{
    /** @brief IOrvContentBrowser over the ContentBrowser module's singleton (the primary browser). */
    class FOrvUnrealContentBrowser final : public IOrvContentBrowser
    {
    public:
        virtual std::vector<FOrvAssetData> GetSelectedAssets() const override;
    };
} // namespace OrvWebBridge
